#pragma once

#include "contract/document.h"
#include "contract/notices.h"
#include "journal/journal_reply.h"
#include "journal/program_settings.h"
#include "journal/recorder_ticket.h"
#include "platform/forms/forwarding_user_interface.h"

#include <functional>
#include <iosfwd>
#include <nlohmann/json.hpp>
#include <optional>
#include <string>
#include <vector>

namespace zel {

class HostCommands;

struct RecorderOptions {
    /// Takes the replies that the journal will have when it is played; null: none are written.
    std::ostream* transcript = nullptr;
    /// Called once when the journal can't be written any more; from then on nothing is.
    std::function<void()> onFailure{};
};

/// Writes what a user does as a journal. UserHand tells it of each step; of questions, files and all that happens because of a step it
/// learns as the user interface, which it is while it records: it hands everything on to the one that was installed before.
///
/// A command is written when the next one begins, because answers to what it asks belong before it. Until then it may be changed
/// or taken back. A line that is written has left the program.
class JournalRecorder final : private ForwardingUserInterface, private CDBUpdateConnector {
public:
    JournalRecorder(CDBDoc& document, std::ostream& journal, RecorderOptions options = {});
    ~JournalRecorder() override;

    /// Writes a line of comment.
    void note(const std::string& text);
    /// Writes what a journal needs to begin where the user stands: program settings, open dialogs, the selection, the mode of the host.
    void writeStart(const HostCommands& host);
    /// Writes what is held, and steps aside. Nothing is recorded from then on.
    void stop();
    [[nodiscard]] bool hasFailed() const { return m_failed; }
    /// Number of commands so far; the held one counts.
    [[nodiscard]] long commandCount() const { return m_commands; }

    // For UserHand.

    using Ticket = RecorderTicket;

    /// A step begins: what was held is written, this command is held. A null command is none (yet): what happens comes with the next one.
    Ticket begin(Json command);
    /// The same, while what was held stays so and may yet be taken back.
    Ticket beginBeside(Json command);
    /// Whether the command is not written yet.
    [[nodiscard]] bool isHeld(Ticket ticket) const;
    /// Puts another command in place of one that is held. False if it is written already.
    bool replace(Ticket ticket, Json command);
    /// Takes a held command back. What has happened because of the last one comes with the next command to a control; one that is not the last
    /// goes without a trace.
    void takeBack(Ticket ticket);
    /// The command's result, unless its reply was written when a modal dialog began to take input.
    void setResult(Ticket ticket, Json result);
    /// Something happened because of the last command.
    void event(Json what);

private:
    /// A command that is not written yet, with the answers that belong before it.
    struct Held {
        Ticket ticket = 0;
        Json command;
        std::vector<Json> answers;
        JournalReply reply;
    };

    static void append(Held& held, Held more);
    [[nodiscard]] Held* find(Ticket ticket);
    Ticket hold(Json command);
    void answered(Json answer);
    void write(Held held);
    void writeHeld();
    void writeReply();
    void writeLine(const std::string& line);
    /// Writes a `settings` command if the program settings are no longer those that the journal has when it is played.
    void writeSettings();

    // IUserInterface
    int messageBox(const CString& text, unsigned type) override;
    bool openFile(const CString& filter, CString& path) override;
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
    std::ostream& m_journal;
    RecorderOptions m_options;
    IUserInterface* m_former;
    std::vector<Held> m_held;
    Held m_carried;                       ///< what has happened without a command: because the focus moved
    std::optional<JournalReply> m_reply;  ///< of the command that was written last, until the next one is
    Ticket m_replyTo = 0;
    ProgramSettings m_settings;  ///< as the journal has made them
    std::string m_lastNote;
    long m_line = 0;
    long m_commands = 0;
    bool m_stopped = false;
    bool m_failed = false;
};

}  // namespace zel
