#pragma once

#include "contract/user_interface.h"

namespace zel {

/// A user interface that hands everything on, part by part; who derives from it overrides what it does itself. What a part hands on to is
/// kept alive by who gives it. Without one, questions get their default answer (OK, Yes, cancelled for files and modal dialogs), lines and
/// commands go nowhere, no program is started, and the machine is the one that this runs on.
class ForwardingUserInterface : public IUserInterface {
public:
    int messageBox(const CString& text, unsigned type) override;
    bool openFile(const CString& filter, CString& path) override;
    void runModal(CDialog& dialog) override;
    void dialogOpened(CDialog& dialog) override;
    void dialogActivated(CDialog& dialog) override;
    void dialogClosed(CDialog& dialog) override;
    void gridWarning(Control& grid, const CString& text) override;
    void sendCommand(unsigned number) override;
    void postCommand(unsigned number) override;
    void showPreferences(int page) override;
    void modelingMode(int mode) override;
    void output(const CString& line) override;
    void history(const CString& line) override;
    void busy(const CString& text) override;
    bool startProcess(const CString& commandLine) override;
    [[nodiscard]] CString programFolder() const override;
    [[nodiscard]] std::chrono::system_clock::time_point now() const override;
    [[nodiscard]] std::uint64_t physicalMemory() const override;

protected:
    explicit ForwardingUserInterface(IUserInterface* next) : ForwardingUserInterface(next, next, next) {}
    ForwardingUserInterface(IDialogHost* dialogs, ILinePane* lines, IMachine* machine) : m_dialogs(dialogs), m_lines(lines), m_machine(machine) {}

private:
    IDialogHost* m_dialogs;
    ILinePane* m_lines;
    IMachine* m_machine;
};

}  // namespace zel
