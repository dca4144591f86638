#pragma once

#include "contract/text.h"

#include <chrono>
#include <cstdint>

class CDialog;

inline constexpr unsigned MB_OK = 0;
inline constexpr unsigned MB_YESNO = 4;
inline constexpr int IDYES = 6;
inline constexpr int IDNO = 7;

namespace zel {

class Control;

/// Questions to a person, the windows of dialogs, and commands of the host.
class IDialogHost {
public:
    IDialogHost() = default;
    IDialogHost(const IDialogHost&) = delete;
    IDialogHost& operator=(const IDialogHost&) = delete;
    virtual ~IDialogHost() = default;

    /// Shows a message and returns the answer.
    /// @param type  MB_OK, answered by IDOK, or MB_YESNO, answered by IDYES or IDNO
    virtual int messageBox(const CString& text, unsigned type) = 0;
    /// Asks for a file to open. False when it was cancelled, with `path` as it was.
    /// @param filter  pairs of text and pattern: "PYL dbase file *.dbs|*.dbs||"
    virtual bool openFile(const CString& filter, CString& path) = 0;

    /// Runs the nested loop of a modal dialog, which is open: takes input until `dialog.hasEnded()`.
    virtual void runModal(CDialog& dialog) = 0;
    virtual void dialogOpened(CDialog& dialog) = 0;
    /// A modeless dialog that was open already came to the front.
    virtual void dialogActivated(CDialog& dialog) = 0;
    /// The window has gone; the object lives until this returns. `dialog.endCode()` is the result of a modal run.
    virtual void dialogClosed(CDialog& dialog) = 0;
    /// A grid refused a cell or a row, for the reason that stands in the text.
    virtual void gridWarning(Control& grid, const CString& text) = 0;

    /// A menu command of the host. Sent: carried out before this returns. Posted: when the current action is over.
    virtual void sendCommand(unsigned number) = 0;
    virtual void postCommand(unsigned number) = 0;
    /// The preferences, opened at a page.
    virtual void showPreferences(int page) = 0;
    /// The modelling mode of the model view was set.
    virtual void modelingMode(int mode) = 0;
};

/// What a host tells without waiting for an answer.
class ILinePane {
public:
    ILinePane() = default;
    ILinePane(const ILinePane&) = delete;
    ILinePane& operator=(const ILinePane&) = delete;
    virtual ~ILinePane() = default;

    /// One line for the output pane, and for the history.
    virtual void output(const CString& line) = 0;
    virtual void history(const CString& line) = 0;
    /// What a long step is busy with, in the status line; an empty text ends it.
    virtual void busy(const CString& text) = 0;
};

/// The machine that the program runs on.
class IMachine {
public:
    IMachine() = default;
    IMachine(const IMachine&) = delete;
    IMachine& operator=(const IMachine&) = delete;
    virtual ~IMachine() = default;

    /// Starts a program without waiting for it. False if it can't be started.
    virtual bool startProcess(const CString& commandLine) = 0;
    /// Folder of the running program, with a separator at its end.
    [[nodiscard]] virtual CString programFolder() const = 0;
    [[nodiscard]] virtual std::chrono::system_clock::time_point now() const = 0;
    /// Physical memory of the machine [bytes].
    [[nodiscard]] virtual std::uint64_t physicalMemory() const = 0;
};

/// What a host does for the forms: everything that reaches a person or the machine. One is installed at a time.
class IUserInterface : public IDialogHost, public ILinePane, public IMachine {};

/// The installed user interface; null if there is none. Without one, questions get their default answer (OK, Yes, cancelled
/// for files and modal dialogs), and everything else does nothing.
[[nodiscard]] IUserInterface* userInterface();
/// Installs another one and returns the former. The caller keeps it alive while it is installed.
IUserInterface* setUserInterface(IUserInterface* userInterface);

void postHostCommand(unsigned number);
void sendHostCommand(unsigned number);

}  // namespace zel

/// A message box; returns IDOK, IDYES or IDNO.
/// @param type  MB_OK or MB_YESNO
/// @param help  not used
int AfxMessageBox(const CString& text, unsigned type = MB_OK, unsigned help = 0);

/// Write a line, formatted as printf does, to the host's output pane and to its history.
void GMsgOutFormatNF(const char* format, ...);
void GSaveHistoryFormatNF(const char* format, ...);

class CPrefer {
public:
    /// Opens the host's preferences at a page.
    static void SetUpPrefer(int page);
};
