#include "journal/journal_player.h"

#include "command/command.h"
#include "contract/forms/open_dialogs.h"
#include "contract/nearest.h"
#include "journal/dialog_commands.h"
#include "journal/form_json.h"
#include "journal/journal_events.h"
#include "journal/model_commands.h"
#include "journal/open_commands.h"
#include "journal/view_command.h"
#include "platform/modeldb/refusals.h"

#include <algorithm>
#include <array>
#include <ostream>
#include <stdexcept>
#include <utility>

namespace zel {

namespace {

/// The verb of a command. A mistyped field would be left out in silence, and the command would do something else.
/// @throws JsonFault  with the nearest name of a verb or a field
const VerbRow& verbOf(const JournalCommand& command)
{
    const VerbRow* verb = findVerb(command.name());
    if (verb == nullptr) {
        std::vector<std::string_view> names;
        for (const VerbRow& each : verbTable())
            names.push_back(each.name);
        throw JsonFault("do", "there is no command \"" + command.name() + "\"" + didYouMean(command.name(), names));
    }
    for (const auto& member : command.json().get_ref<const Json::object_t&>()) {
        const std::string& field = member.first;
        if (field != "do" && field != "dialog" && std::ranges::find(verb->fields, field) == verb->fields.end())
            throw JsonFault(field, command.name() + " has no such field" + didYouMean(field, verb->fields));
    }
    return *verb;
}

Json openDialogNames()
{
    Json names = Json::array();
    for (const CDialog* dialog : openDialogs())
        names.push_back(dialog->ClassName());
    return names;
}

}  // namespace

JournalPlayer::JournalPlayer(CDBDoc& document, std::istream& script, std::ostream& transcript, JournalOptions options)
    : ForwardingUserInterface(options.watching, options.watching, userInterface()),
      m_document(document),
      m_script(script),
      m_transcript(transcript),
      m_options(std::move(options)),
      m_host(m_options.host != nullptr ? *m_options.host : m_ownHost),
      m_former(setUserInterface(this)),
      m_formerView(m_options.watching != nullptr ? I_ZELModelBase::GetCurMySelfST() : I_ZELModelBase::setCurrent(&m_view)),
      m_userSettings(ProgramSettings::of(document)),
      m_refusedWrites(refusedFileWrites())
{
    ProgramSettings{}.putInto(m_document);
}

JournalPlayer::~JournalPlayer()
{
    giveSettingsBack();
    I_ZELModelBase::setCurrent(m_formerView);
    setUserInterface(m_former);
}

void JournalPlayer::giveSettingsBack()
{
    if (const auto settings = std::exchange(m_userSettings, std::nullopt))
        settings->putInto(m_document);
}

JournalPlayer::Status JournalPlayer::play()
{
    playUntil([] { return false; });
    if (m_broken)
        throw std::runtime_error("the transcript can't be written");
    return status();
}

void JournalPlayer::playUntil(const std::function<bool()>& over)
{
    while (!over()) {
        writeReply();
        if (m_options.pause)
            m_options.pause();
        if (m_stopped || !m_script.next()) {
            endScript();
            return;
        }
        m_reply.emplace();
        m_reply->line = m_script.line();
        carryOut(m_script.text());
        noteRefusedWrites();
        if (over())  // what was posted is carried out where the loop goes on that opened this one
            return;
        runPostedCommands();
        noteRefusedWrites();
        deleteClosedDialogs();
    }
}

/// A write that the model's file has refused is told by the reply's events; the journal has not been carried out all the same.
void JournalPlayer::noteRefusedWrites()
{
    if (std::exchange(m_refusedWrites, refusedFileWrites()) == refusedFileWrites())
        return;
    m_fileRefused = true;
    m_failed = true;
    m_stopped = m_stopped || m_options.strict;
}

void JournalPlayer::writeReply()
{
    if (!m_reply)
        return;
    const JournalReply reply = *std::exchange(m_reply, std::nullopt);
    m_transcript << reply.text() << '\n' << std::flush;
    if (!m_transcript) {
        m_broken = true;
        m_stopped = true;
    }
    if (m_options.replied)
        m_options.replied(reply);
}

void JournalPlayer::endScript()
{
    m_stopped = true;
    if (std::exchange(m_ended, true))
        return;
    const CDialog* front = activeDialog();
    m_cancelled = front != nullptr && front->isModal();
    m_left = m_options.watching != nullptr && m_options.ended && m_options.ended(status());
    if (m_left) {  // from here on a person answers
        setUserInterface(m_options.watching);
        giveSettingsBack();
    }
}

JournalPlayer::Status JournalPlayer::status() const
{
    if (m_failed)
        return commandFailed;
    return m_cancelled ? endedInModalDialog : done;
}

void JournalPlayer::carryOut(const std::string& line)
{
    const long number = m_reply->line;
    std::optional<Json> result;
    std::string error;
    try {
        const JournalCommand command(line);
        m_reply->command = command.name();
        result = perform(command);
    } catch (const std::exception& fault) {
        error = fault.what();
    }
    if (!error.empty()) {
        m_failed = true;
        m_stopped = m_stopped || m_options.strict;
    }
    if (m_reply && m_reply->line == number) {  // else the reply was written when a modal dialog began to read
        m_reply->result = std::move(result);
        m_reply->error = std::move(error);
    }
}

std::optional<Json> JournalPlayer::perform(const JournalCommand& command)
{
    const UserAction action;  // dialogs that are closed meanwhile live to its end
    const VerbRow& verb = verbOf(command);
    switch (verb.verb) {
    case Verb::modal:
        event(returnedEvent(runModalDialog(m_document, command)));
        return {};
    case Verb::modeless:
        return openModelessDialog(command);
    case Verb::open:
        openDialogOfClass(command);
        return {};
    case Verb::answer:
        return queueAnswer(command);
    case Verb::file:
        return queueFile(command);
    case Verb::dialogs:
        return openDialogNames();
    case Verb::db:
        return actOnTable(m_document, command);
    case Verb::units:
        return changeUnits(m_document, command);
    case Verb::settings:
        return changeSettings(m_document, command);
    case Verb::view:
        return view(command);
    case Verb::undo:
        return m_document.Undo();
    case Verb::redo:
        return m_document.Redo();
    case Verb::form:
        return formToJson(addressedDialog(command));
    case Verb::close:
        need(addressedDialog(command).userClose());
        return {};
    case Verb::activate:
        (void)command.at("dialog");
        need(addressedDialog(command).userActivate());
        return {};
    case Verb::key:
        pressKey(addressedDialog(command), command);
        return {};
    default:
        actOnControl(addressedDialog(command), command, verb);
        return {};
    }
}

void JournalPlayer::runPostedCommands()
{
    while (!m_posted.empty()) {
        const unsigned number = m_posted.front();
        m_posted.pop_front();
        runHostCommand(number);
    }
}

void JournalPlayer::runHostCommand(unsigned number)
{
    if (m_options.runHostCommands)
        m_host.run(number);
}

void JournalPlayer::event(Json what)
{
    if (m_reply)  // after the end of the script nobody reads what the cancelled dialogs do
        m_reply->events.push_back(std::move(what));
}

// Commands

std::optional<Json> JournalPlayer::queueAnswer(const JournalCommand& command)
{
    static constexpr std::array<std::string_view, 4> answers{"ok", "yes", "no", "cancel"};
    const std::string& answer = command.text("with");
    if (std::find(answers.begin(), answers.end(), answer) == answers.end())
        throw JsonFault("with", "must be ok, yes, no or cancel");
    m_answers.push_back(answer);
    return {};
}

std::optional<Json> JournalPlayer::queueFile(const JournalCommand& command)
{
    if (command.at("path").is_null())
        m_files.emplace_back();
    else
        m_files.emplace_back(command.text("path"));
    return {};
}

std::optional<Json> JournalPlayer::view(const JournalCommand& command)
{
    if (!command.has("select") && !command.has("mode"))
        return viewToJson(m_document, m_host);
    std::optional<T_SELECTION> selection;
    if (command.has("select"))
        selection = selectionFromJson(command.at("select"), "select");
    const std::string mode = command.has("mode") ? command.text("mode") : std::string();
    if (command.has("mode") && mode != "model" && mode != "post")
        throw JsonFault("mode", "must be model or post");

    if (selection)
        m_document.GetViewCtrl()->select(*selection, true);
    if (!mode.empty()) {
        m_host.leave(mode == "post");
        m_document.notify(nullptr, mode == "post" ? Hint::leavePost : Hint::leaveModel, nullptr);
    }
    return {};
}

// ForwardingUserInterface

int JournalPlayer::messageBox(const CString& text, unsigned type)
{
    const bool question = type == MB_YESNO;
    std::string answer = question ? "yes" : "ok";
    // An OK box leaves a "yes" or "no" to the question that it was meant for.
    if (!m_answers.empty() && (question || m_answers.front() == "ok" || m_answers.front() == "cancel")) {
        if (question)
            answer = m_answers.front() == "no" || m_answers.front() == "cancel" ? "no" : "yes";
        m_answers.pop_front();
    }
    event(messageEvent(text, question, answer));
    if (!question)
        return IDOK;
    return answer == "no" ? IDNO : IDYES;
}

bool JournalPlayer::openFile(const CString& filter, CString& path)
{
    std::optional<std::string> chosen;
    if (!m_files.empty()) {
        chosen = m_files.front();
        m_files.pop_front();
    }
    event(fileEvent(filter, chosen));
    if (chosen)
        path = *chosen;
    return chosen.has_value();
}

void JournalPlayer::runModal(CDialog& dialog)
{
    playUntil([&dialog] { return dialog.hasEnded(); });
    if (dialog.hasEnded())
        return;
    if (m_left) {
        m_options.watching->runModal(dialog);
        return;
    }
    (void)dialog.userClose();
    if (!dialog.hasEnded())  // it does not want to; nobody is left to change its mind
        dialog.EndDialog(IDCANCEL);
}

void JournalPlayer::dialogOpened(CDialog& dialog)
{
    event(openedEvent(dialog));
    ForwardingUserInterface::dialogOpened(dialog);
}

void JournalPlayer::dialogActivated(CDialog& dialog)
{
    event(activatedEvent(dialog));
    ForwardingUserInterface::dialogActivated(dialog);
}

void JournalPlayer::dialogClosed(CDialog& dialog)
{
    event(closedEvent(dialog));
    ForwardingUserInterface::dialogClosed(dialog);
}

void JournalPlayer::sendCommand(unsigned number)
{
    event(hostCommandEvent(number, false));
    runHostCommand(number);
}

void JournalPlayer::postCommand(unsigned number)
{
    event(hostCommandEvent(number, true));
    m_posted.push_back(number);
}

void JournalPlayer::showPreferences(int page)
{
    event(preferencesEvent(page));  // they stay closed: they are the host's own, and no script could close them again
}

void JournalPlayer::output(const CString& line)
{
    event(outputEvent(line));
    ForwardingUserInterface::output(line);
}

void JournalPlayer::history(const CString& line)
{
    event(historyEvent(line));
    ForwardingUserInterface::history(line);
}

bool JournalPlayer::startProcess(const CString& commandLine)
{
    event(processEvent(commandLine));
    return true;  // a script starts no outside program: nobody sits before its window
}

void JournalPlayer::gridWarning(Control& grid, const CString& text)
{
    event(warningEvent(grid, text));
    ForwardingUserInterface::gridWarning(grid, text);
}

void JournalPlayer::modelingMode(int mode)
{
    event(modeEvent(mode));
    ForwardingUserInterface::modelingMode(mode);
}

// CDBUpdateConnector

void JournalPlayer::OnUpdate(CView* /*sender*/, long long hint, CObject* /*object*/)
{
    if (m_reply)
        event(noticeEvent(m_document, hint));
}

}  // namespace zel
