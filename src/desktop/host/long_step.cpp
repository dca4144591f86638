#include "desktop/host/long_step.h"

#include <QAbstractEventDispatcher>
#include <QApplication>
#include <QCursor>
#include <QEvent>

#include <utility>

namespace zel::desktop {

namespace {

constexpr std::chrono::milliseconds paintInterval{80};
constexpr std::chrono::milliseconds patience{400};  ///< a step that takes longer shows a busy cursor

}  // namespace

LongStep::LongStep(std::function<void(const QString&)> show) : m_show(std::move(show))
{
    // When the program waits for input again, the step is over, whether it has said so or not.
    QObject::connect(QAbstractEventDispatcher::instance(), &QAbstractEventDispatcher::aboutToBlock, this, [this] {
        if (!m_painting)
            end();
    });
}

LongStep::~LongStep()
{
    setCursor(false);
}

void LongStep::busy(const QString& text)
{
    if (text.isEmpty()) {
        end();
        return;
    }
    const bool isFirst = !std::exchange(m_hasText, true);
    m_show(text);
    setCursor(true);
    if (isFirst)
        m_painted = {};  // the first text is seen at once
    paint();
}

void LongStep::spoke()
{
    const Time now = std::chrono::steady_clock::now();
    if (!m_began)
        m_began = now;
    if (now - *m_began > patience)
        setCursor(true);
    paint();
}

void LongStep::paint()
{
    if (m_painting || std::chrono::steady_clock::now() - m_painted < paintInterval)
        return;
    m_painting = true;
    qApp->installEventFilter(this);
    QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents | QEventLoop::ExcludeSocketNotifiers);
    qApp->removeEventFilter(this);
    m_painting = false;
    m_painted = std::chrono::steady_clock::now();
}

/// The input of the window system waits; what is sent by other ways must not get through to a form in the middle of a step.
bool LongStep::eventFilter(QObject* /*watched*/, QEvent* event)
{
    switch (event->type()) {
    case QEvent::KeyPress:
    case QEvent::KeyRelease:
    case QEvent::Shortcut:
    case QEvent::ShortcutOverride:
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonRelease:
    case QEvent::MouseButtonDblClick:
    case QEvent::Wheel:
    case QEvent::ContextMenu:
    case QEvent::Drop:
    case QEvent::Close:
        return true;
    default:
        return false;
    }
}

void LongStep::setCursor(bool busy)
{
    if (std::exchange(m_hasCursor, busy) == busy)
        return;
    if (busy)
        QApplication::setOverrideCursor(Qt::WaitCursor);
    else
        QApplication::restoreOverrideCursor();
}

void LongStep::end()
{
    m_began.reset();
    setCursor(false);
    if (std::exchange(m_hasText, false))
        m_show({});
}

}  // namespace zel::desktop
