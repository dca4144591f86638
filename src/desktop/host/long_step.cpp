#include "desktop/host/long_step.h"

#include <QAbstractEventDispatcher>
#include <QApplication>
#include <QCursor>
#include <QEvent>
#include <QWindow>

#include <utility>

namespace zel::desktop {

namespace {

constexpr std::chrono::milliseconds paintInterval{80};
constexpr std::chrono::milliseconds patience{400};  ///< a step that takes longer shows a busy cursor

constexpr unsigned callsAClock = 64;  ///< a look at the clock costs more than a record

/// Whether an object is the panel of a run, a part of it or its window.
bool isOf(const QProgressDialog& panel, const QObject& object)
{
    for (const QObject* each = &object; each != nullptr; each = each->parent()) {
        if (each == &panel || each == panel.windowHandle())
            return true;
    }
    return false;
}

}  // namespace

LongStep::LongStep(std::function<void(const QString&)> show) : m_show(std::move(show)), m_formerWatcher(setRunWatcher(this))
{
    // When the program waits for input again, the step is over, whether it has said so or not.
    QObject::connect(QAbstractEventDispatcher::instance(), &QAbstractEventDispatcher::aboutToBlock, this, [this] {
        if (!m_painting)
            end();
    });
}

LongStep::~LongStep()
{
    setRunWatcher(m_formerWatcher);
    setCursor(false);
    delete m_progress;
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

bool LongStep::goOn(RunPhase phase, std::size_t done, std::size_t total)
{
    if (!isStoppable() || ++m_calls % callsAClock != 0)
        return true;
    const Time now = std::chrono::steady_clock::now();
    if (!m_began)
        m_began = now;
    if (now - *m_began > patience && now - m_painted >= paintInterval)
        showProgress(phase, done, total);
    if (m_progress == nullptr || !m_progress->wasCanceled())
        return true;
    end();  // the next run begins with a panel of its own
    return false;
}

void LongStep::showProgress(RunPhase phase, std::size_t done, std::size_t total)
{
    if (m_painting)
        return;
    // The panel may let events through while it is filled, and a look for input there is no end of the step.
    m_painting = true;
    qApp->installEventFilter(this);
    if (m_progress == nullptr) {
        m_progress = new QProgressDialog(QApplication::activeModalWidget() != nullptr ? QApplication::activeModalWidget() : QApplication::activeWindow());
        m_progress->setObjectName(QStringLiteral("longRun"));
        m_progress->setCancelButtonText(QStringLiteral("Stop"));
        m_progress->setMinimumDuration(0);
        m_progress->setAutoClose(false);
        m_progress->setAutoReset(false);
        m_progress->show();
    }
    m_progress->setLabelText(QString::fromStdString(runText(phase, done, total)));
    m_progress->setMaximum(static_cast<int>(total));
    m_progress->setValue(static_cast<int>(total != 0 ? done : 0));
    qApp->removeEventFilter(this);
    m_painting = false;
    paint();
}

void LongStep::paint()
{
    if (m_painting || std::chrono::steady_clock::now() - m_painted < paintInterval)
        return;
    m_painting = true;
    qApp->installEventFilter(this);
    const QEventLoop::ProcessEventsFlags input = m_progress != nullptr ? QEventLoop::AllEvents : QEventLoop::ExcludeUserInputEvents;
    QCoreApplication::processEvents(input | QEventLoop::ExcludeSocketNotifiers);
    qApp->removeEventFilter(this);
    m_painting = false;
    m_painted = std::chrono::steady_clock::now();
}

/// The input of the window system waits; what is sent by other ways must not get through to a form in the middle of a step.
bool LongStep::eventFilter(QObject* watched, QEvent* event)
{
    if (m_progress != nullptr && isOf(*m_progress, *watched))
        return false;
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
    delete m_progress;
    setCursor(false);
    if (std::exchange(m_hasText, false))
        m_show({});
}

}  // namespace zel::desktop
