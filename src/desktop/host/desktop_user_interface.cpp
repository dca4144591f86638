#include "desktop/host/desktop_user_interface.h"

#include "contract/forms/dialog.h"
#include "contract/forms/open_dialogs.h"
#include "desktop/forms/form_window.h"
#include "desktop/forms/text.h"
#include "desktop/host/main_window.h"
#include "desktop/host/window_places.h"

#include <QAbstractEventDispatcher>
#include <QApplication>
#include <QEventLoop>
#include <QFileDialog>
#include <QFileInfo>
#include <QMessageBox>
#include <QProcess>
#include <QTimer>

namespace zel::desktop {

namespace {

constexpr int repostInterval = 20;  ///< [ms]

/// While a box asks, nothing is a step of the user: windows that come to the front when it goes are not chosen by him.
class Asking {
public:
    Asking(UserHand& hand, int& count) : m_hand(hand), m_count(count), m_wasLocked(hand.isLocked())
    {
        ++m_count;
        m_hand.setLocked(true);
    }
    Asking(const Asking&) = delete;
    Asking& operator=(const Asking&) = delete;
    ~Asking()
    {
        m_hand.setLocked(m_wasLocked);
        --m_count;
    }

private:
    UserHand& m_hand;
    int& m_count;
    bool m_wasLocked;
};

}  // namespace

DesktopUserInterface::DesktopUserInterface(MainWindow& window, UserHand& hand)
    : ForwardingUserInterface(nullptr), m_window(window), m_hand(hand), m_former(setUserInterface(this)), m_step([&window](const QString& text) {
          window.showBusy(text);
      })
{
}

DesktopUserInterface::~DesktopUserInterface()
{
    setUserInterface(m_former);
}

FormWindow* DesktopUserInterface::windowOf(const CDialog& dialog) const
{
    const auto found = m_forms.find(&dialog);
    return found != m_forms.end() ? found->second : nullptr;
}

std::vector<FormWindow*> DesktopUserInterface::formWindows() const
{
    std::vector<FormWindow*> windows;
    for (const CDialog* dialog : openDialogs()) {
        if (FormWindow* window = windowOf(*dialog))
            windows.push_back(window);
    }
    return windows;
}

void DesktopUserInterface::showChanges()
{
    for (FormWindow* window : formWindows())
        window->showChanges();
}

QWidget* DesktopUserInterface::parentForNew() const
{
    for (const CDialog* dialog : openDialogs()) {
        FormWindow* window = windowOf(*dialog);
        if (dialog->isModal() && window != nullptr)
            return window;
    }
    return &m_window;
}

// Questions

int DesktopUserInterface::messageBox(const CString& text, unsigned type)
{
    showChanges();
    QWidget* parent = QApplication::activeModalWidget();
    if (parent == nullptr)
        parent = QApplication::activeWindow() != nullptr ? QApplication::activeWindow() : &m_window;
    QMessageBox box(parent);
    box.setWindowTitle(QApplication::applicationDisplayName());
    box.setTextFormat(Qt::PlainText);
    box.setText(toQt(text));
    const bool question = type == MB_YESNO;
    box.setIcon(question ? QMessageBox::Question : QMessageBox::Warning);
    box.setStandardButtons(question ? QMessageBox::Yes | QMessageBox::No : QMessageBox::StandardButtons(QMessageBox::Ok));
    box.setDefaultButton(question ? QMessageBox::Yes : QMessageBox::Ok);
    const Asking asking(m_hand, m_asking);
    const int answer = box.exec();
    if (!question)
        return IDOK;
    return answer == QMessageBox::Yes ? IDYES : IDNO;
}

QString fileFilters(const CString& filter)
{
    QStringList filters;
    const QStringList parts = toQt(filter).split(QLatin1Char('|'));
    for (qsizetype i = 0; i + 1 < parts.size() && !parts[i].isEmpty(); i += 2) {
        QString text = parts[i];
        const qsizetype bracket = text.indexOf(QLatin1Char('('));
        if (bracket > 0)
            text.truncate(bracket);
        QString patterns = parts[i + 1];
        filters.append(text.trimmed() + QStringLiteral(" (") + patterns.replace(QLatin1Char(';'), QLatin1Char(' ')) + QLatin1Char(')'));
    }
    return filters.join(QStringLiteral(";;"));
}

bool DesktopUserInterface::openFile(const CString& filter, CString& path)
{
    showChanges();
    const QString folder = toQt(path).isEmpty() ? QString() : QFileInfo(toQt(path)).path();
    const Asking asking(m_hand, m_asking);
    const QString chosen = QFileDialog::getOpenFileName(QApplication::activeWindow(), QStringLiteral("Open"), folder, fileFilters(filter));
    if (chosen.isEmpty())
        return false;
    path = fromQt(chosen);
    return true;
}

// Dialogs

void DesktopUserInterface::runModal(CDialog& dialog)
{
    m_running.push_back(&dialog);
    QEventLoop loop;
    const auto endIfOver = [&] {
        if (dialog.hasEnded())
            loop.quit();
    };
    // A dialog may be ended by anything that happens in an event, so it is asked after each.
    const QMetaObject::Connection idle = QObject::connect(QAbstractEventDispatcher::instance(), &QAbstractEventDispatcher::aboutToBlock, &loop, endIfOver);
    while (!dialog.hasEnded())
        loop.exec();
    QObject::disconnect(idle);
    m_running.pop_back();
    if (!m_posted.empty())
        QTimer::singleShot(0, &m_window, [this] { runPosted(); });
}

void DesktopUserInterface::dialogOpened(CDialog& dialog)
{
    auto* window = new FormWindow(dialog, m_hand, parentForNew());
    m_forms[&dialog] = window;
    if (dialog.isModal())
        window->setWindowModality(Qt::ApplicationModal);
    placeForm(*window, dialog);
    window->show();
    window->raise();
    window->activateWindow();
}

void DesktopUserInterface::dialogActivated(CDialog& dialog)
{
    if (FormWindow* window = windowOf(dialog)) {
        window->show();
        window->raise();
        window->activateWindow();
    }
}

void DesktopUserInterface::dialogClosed(CDialog& dialog)
{
    FormWindow* window = windowOf(dialog);
    if (window == nullptr)
        return;
    keepPlaceOf(*window, dialog);
    m_forms.erase(&dialog);
    // Dialogs that were opened from this one and stay open go on under the window that this one stood over.
    for (FormWindow* inner : formWindows()) {
        if (inner->parentWidget() == window) {
            inner->setParent(window->parentWidget(), inner->windowFlags());
            inner->show();
        }
    }
    window->letGo();
    QTimer::singleShot(0, &m_window, [] { deleteClosedDialogs(); });
}

// Commands

void DesktopUserInterface::sendCommand(unsigned number)
{
    m_commands.run(number);
}

void DesktopUserInterface::postCommand(unsigned number)
{
    m_posted.push_back(number);
    QTimer::singleShot(0, &m_window, [this] { runPosted(); });
}

void DesktopUserInterface::runPosted()
{
    while (!m_posted.empty()) {
        const bool opensOn = !m_running.empty() && m_running.back()->hasEnded();
        if (m_step.isPainting() || m_asking > 0 || opensOn) {
            QTimer::singleShot(repostInterval, &m_window, [this] { runPosted(); });
            return;
        }
        const unsigned number = m_posted.front();
        m_posted.pop_front();
        m_commands.run(number);
    }
}

void DesktopUserInterface::showPreferences(int page)
{
    m_window.showPreferences(page);
}

// Lines

void DesktopUserInterface::output(const CString& line)
{
    m_window.addOutput(toQt(line));
    m_step.spoke();
}

void DesktopUserInterface::history(const CString& line)
{
    m_window.addHistory(toQt(line));
    m_step.spoke();
}

void DesktopUserInterface::busy(const CString& text)
{
    m_step.busy(toQt(text));
}

void DesktopUserInterface::gridWarning(Control& grid, const CString& text)
{
    for (const FormWindow* window : formWindows()) {
        if (ControlView* view = window->viewOf(grid))
            view->warn(toQt(text));
    }
}

// The machine

bool DesktopUserInterface::startProcess(const CString& commandLine)
{
    QStringList words = QProcess::splitCommand(toQt(commandLine));
    if (words.isEmpty())
        return false;
    const QString program = words.takeFirst();
    return QProcess::startDetached(program, words);
}

void DesktopUserInterface::modelingMode(int mode)
{
    m_window.showModelingMode(mode);
}

}  // namespace zel::desktop
