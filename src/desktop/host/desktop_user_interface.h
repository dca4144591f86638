#pragma once

#include "desktop/host/long_step.h"
#include "journal/host_commands.h"
#include "journal/user_hand.h"
#include "platform/forms/forwarding_user_interface.h"

#include <QPointer>

#include <deque>
#include <functional>
#include <map>

class QWidget;

namespace zel::desktop {

class FormWindow;
class MainWindow;

/// The services of the forms, by windows: one window a dialog, native message boxes and file dialogs, a nested event loop for each modal dialog.
/// It installs itself and puts the former one back when it goes.
class DesktopUserInterface final : public ForwardingUserInterface {
public:
    DesktopUserInterface(MainWindow& window, UserHand& hand);
    ~DesktopUserInterface() override;

    /// The window of an open dialog; null if it has none.
    [[nodiscard]] FormWindow* windowOf(const CDialog& dialog) const;
    /// The windows of all open dialogs, front first.
    [[nodiscard]] std::vector<FormWindow*> formWindows() const;
    /// Shows in all windows at once what has changed since the last event.
    void showChanges();
    /// What the host does on commands that dialogs send it.
    [[nodiscard]] HostCommands& hostCommands() { return m_commands; }

    int messageBox(const CString& text, unsigned type) override;
    bool openFile(const CString& filter, CString& path) override;
    void runModal(CDialog& dialog) override;
    void dialogOpened(CDialog& dialog) override;
    void dialogActivated(CDialog& dialog) override;
    void dialogClosed(CDialog& dialog) override;
    void sendCommand(unsigned number) override;
    void postCommand(unsigned number) override;
    void showPreferences(int page) override;
    void output(const CString& line) override;
    void history(const CString& line) override;
    void busy(const CString& text) override;
    bool startProcess(const CString& commandLine) override;
    void gridWarning(Control& grid, const CString& text) override;
    void modelingMode(int mode) override;

private:
    /// The window that a new one stands over: the innermost modal form, else the main window.
    [[nodiscard]] QWidget* parentForNew() const;
    /// Carries out what was posted, once the action that posted it is over: not while it shows a box or paints, nor while the opener of a modal
    /// dialog that has ended is still to go on.
    void runPosted();

    MainWindow& m_window;
    UserHand& m_hand;
    HostCommands m_commands;
    IUserInterface* m_former;
    std::map<const CDialog*, FormWindow*> m_forms;
    LongStep m_step;
    std::deque<unsigned> m_posted;
    std::vector<const CDialog*> m_running;  ///< the modal dialogs, the innermost one last
    int m_asking = 0;                       ///< boxes that wait for an answer
};

/// The pairs of text and pattern of a file question, in the form that file dialogs take: "a|*.x|b|*.*||" is "a (*.x);;b (*.*)".
QString fileFilters(const CString& filter);

}  // namespace zel::desktop
