#pragma once

#include "contract/document.h"
#include "contract/notices.h"
#include "journal/host_commands.h"
#include "journal/journal_command.h"
#include "journal/journal_reply.h"
#include "journal/journal_script.h"
#include "journal/program_settings.h"
#include "platform/forms/forwarding_user_interface.h"
#include "platform/forms/headless_user_interface.h"

#include <deque>
#include <functional>
#include <iosfwd>
#include <optional>
#include <string>

namespace zel {

/// How a journal went: the exit status of a program that plays it.
enum class JournalStatus { done = 0, endedInModalDialog = 1, commandFailed = 2 };

struct JournalOptions {
    bool runHostCommands = true;  ///< false: a command for the host is only told as an event
    bool strict = false;          ///< stop at the first command that can't be carried out
    /// A user interface that shows what happens while the journal plays, and to which a modal dialog may be left at the end of the script.
    /// Questions are answered by the script all the same. Null: nobody watches.
    IUserInterface* watching = nullptr;
    /// The host of who watches, whose mode the journal changes and obeys; null: the player has one of its own.
    HostCommands* host = nullptr;
    /// Called before each command and at the end of the script: time to show what has changed.
    std::function<void()> pause{};
    /// Called with each reply.
    std::function<void(const JournalReply&)> replied{};
    /// Called once at the end of the script, inside the modal dialogs that are open there. Where it returns true they are left to who watches;
    /// else they are cancelled.
    std::function<bool(JournalStatus)> ended{};
};

/// Plays a journal on the current document: reads commands from a script, does at the forms what they say, and writes one
/// reply line for each. It is the user interface while it plays: messages and files are answered from the script. It begins with the default
/// program settings, and gives the user's back when it goes or leaves a dialog to him.
///
/// A modal dialog runs inside the command that opened it: the player goes on reading there until the dialog has ended. The
/// reply to a command is written when the player is about to read the next one.
class JournalPlayer final : private ForwardingUserInterface, private CDBUpdateConnector {
public:
    JournalPlayer(CDBDoc& document, std::istream& script, std::ostream& transcript, JournalOptions options = {});
    ~JournalPlayer() override;

    using Status = JournalStatus;
    using enum JournalStatus;

    /// Plays to the end of the script.
    /// @throws std::runtime_error  when the transcript can't be written
    Status play();
    /// Whether the model's file has refused a write of some command, which counts as a command that could not be carried out.
    [[nodiscard]] bool fileRefused() const { return m_fileRefused; }
    /// Ends the script at the command that is being carried out.
    void stop() { m_stopped = true; }

private:
    // The loop.
    void playUntil(const std::function<bool()>& over);
    void writeReply();
    void endScript();
    void giveSettingsBack();
    [[nodiscard]] Status status() const;
    void carryOut(const std::string& line);
    std::optional<Json> perform(const JournalCommand& command);
    void runPostedCommands();
    void noteRefusedWrites();
    void runHostCommand(unsigned number);
    void event(Json what);

    // Commands.
    std::optional<Json> queueAnswer(const JournalCommand& command);
    std::optional<Json> queueFile(const JournalCommand& command);
    std::optional<Json> view(const JournalCommand& command);

    // ForwardingUserInterface
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
    bool startProcess(const CString& commandLine) override;
    void gridWarning(Control& grid, const CString& text) override;
    void modelingMode(int mode) override;

    // CDBUpdateConnector
    void OnUpdate(CView* sender, long long hint, CObject* object) override;

    CDBDoc& m_document;
    JournalScript m_script;
    std::ostream& m_transcript;
    JournalOptions m_options;
    HostCommands m_ownHost;
    HostCommands& m_host;
    IUserInterface* m_former;
    HeadlessModelView m_view;
    I_ZELModelBase* m_formerView;
    std::optional<ProgramSettings> m_userSettings;  ///< until they are given back

    std::optional<JournalReply> m_reply;  ///< of the command that was read last, until it is written
    std::deque<std::string> m_answers;
    std::deque<std::optional<std::string>> m_files;
    std::deque<unsigned> m_posted;
    bool m_stopped = false;
    bool m_ended = false;  ///< the end of the script was told
    bool m_left = false;   ///< ... and what is open is left to who watches
    bool m_failed = false;
    bool m_fileRefused = false;
    std::size_t m_refusedWrites;  ///< of the program when they were looked at last
    bool m_cancelled = false;     ///< a modal dialog was open there
    bool m_broken = false;        ///< the transcript can't be written
};

}  // namespace zel
