#include "journal/journal_recorder.h"

#include "command/dialog_table.h"
#include "contract/forms/open_dialogs.h"
#include "contract/view_ctrl.h"
#include "journal/host_commands.h"
#include "journal/journal_events.h"
#include "journal/model_commands.h"
#include "journal/step_commands.h"

#include <algorithm>
#include <iterator>
#include <ostream>
#include <utility>

namespace zel {

namespace {

JournalRecorder::Ticket nextTicket()
{
    static JournalRecorder::Ticket last = 0;  // no two recorders have one in common: a step may outlast the recorder that it began with
    return ++last;
}

/// The exported id that opens a dialog of this class beside the views; empty if none does.
std::string idOfModeless(const CString& className)
{
    const auto* row = std::ranges::find(modelessDialogs, className, &ModelessDialog::dialogClass);
    return row != modelessDialogs.end() ? std::string(row->name) : std::string();
}

}  // namespace

void JournalRecorder::append(Held& held, Held more)
{
    std::ranges::move(more.answers, std::back_inserter(held.answers));
    for (Json& event : more.reply.events)
        held.reply.events.push_back(std::move(event));
}

JournalRecorder::JournalRecorder(CDBDoc& document, std::ostream& journal, RecorderOptions options)
    : ForwardingUserInterface(userInterface()), m_document(document), m_journal(journal), m_options(std::move(options)), m_former(setUserInterface(this))
{
}

JournalRecorder::~JournalRecorder()
{
    stop();
}

// Lines

void JournalRecorder::note(const std::string& text)
{
    if (text == m_lastNote)
        return;
    writeHeld();
    m_lastNote = text;
    std::string line = "# " + text;
    std::ranges::replace_if(
        line, [](char c) { return c == '\n' || c == '\r'; }, ' ');
    writeLine(line);
}

void JournalRecorder::writeSettings()
{
    const ProgramSettings settings = ProgramSettings::of(m_document);
    if (settings == m_settings)
        return;
    Held held{nextTicket(), with(commandNamed(Verb::settings), "put", changesToJson(settings, m_settings)), {}, {}};
    held.reply.result = settingsToJson(settings);
    m_settings = settings;
    ++m_commands;
    write(std::move(held));
}

void JournalRecorder::writeStart(const HostCommands& host)
{
    writeSettings();
    const std::vector<CDialog*>& open = openDialogs();
    for (auto dialog = open.rbegin(); dialog != open.rend(); ++dialog) {
        const std::string id = idOfModeless((*dialog)->ClassName());
        if (id.empty())
            note("The dialog \"" + (*dialog)->GetWindowText() + "\" was open. No command opens it here.");
        else
            begin(with(commandNamed(Verb::modeless), "id", id));
    }
    if (const T_SELECTION selection = m_document.GetViewCtrl()->selection(); selection != T_SELECTION{})
        begin(with(commandNamed(Verb::view), "select", selectionToJson(selection)));
    if (host.isPost())
        begin(with(commandNamed(Verb::view), "mode", "model"));
    writeHeld();
}

void JournalRecorder::stop()
{
    if (m_stopped)
        return;
    writeHeld();
    writeSettings();
    writeReply();
    m_stopped = true;
    m_document.leave(*this);
    if (userInterface() == this)
        setUserInterface(m_former);
}

void JournalRecorder::writeLine(const std::string& line)
{
    if (m_failed)
        return;
    m_journal << line << '\n' << std::flush;
    ++m_line;
    if (m_journal)
        return;
    m_failed = true;
    if (m_options.onFailure)
        m_options.onFailure();
}

void JournalRecorder::writeReply()
{
    if (m_reply && m_options.transcript != nullptr)
        *m_options.transcript << m_reply->text() << '\n' << std::flush;
    m_reply.reset();
    m_replyTo = 0;
}

void JournalRecorder::write(Held held)
{
    held.answers.push_back(std::move(held.command));
    for (const Json& command : held.answers) {
        writeReply();
        writeLine(printJson(command));
        m_reply.emplace();
        m_reply->line = m_line;
        m_reply->command = command.at("do").get<std::string>();
    }
    m_lastNote.clear();
    m_reply->result = std::move(held.reply.result);
    m_reply->events = std::move(held.reply.events);
    m_replyTo = held.ticket;
}

void JournalRecorder::writeHeld()
{
    for (Held& held : std::exchange(m_held, {})) {
        if (held.command.is_null())
            m_held.push_back(std::move(held));
        else
            write(std::move(held));
    }
}

// Steps

JournalRecorder::Ticket JournalRecorder::begin(Json command)
{
    if (m_stopped)
        return 0;
    if (!command.is_null()) {
        writeHeld();
        writeSettings();
    }
    return hold(std::move(command));
}

JournalRecorder::Ticket JournalRecorder::beginBeside(Json command)
{
    return m_stopped ? 0 : hold(std::move(command));
}

JournalRecorder::Ticket JournalRecorder::hold(Json command)
{
    Held held{nextTicket(), std::move(command), {}, {}};
    if (!held.command.is_null())
        ++m_commands;
    if (held.command.contains("control"))  // the command moves the focus there first, and what came of that comes then
        append(held, std::exchange(m_carried, {}));
    m_held.push_back(std::move(held));
    return m_held.back().ticket;
}

JournalRecorder::Held* JournalRecorder::find(Ticket ticket)
{
    const auto found = std::ranges::find(m_held, ticket, &Held::ticket);
    return found != m_held.end() ? &*found : nullptr;
}

bool JournalRecorder::isHeld(Ticket ticket) const
{
    return std::ranges::find(m_held, ticket, &Held::ticket) != m_held.end();
}

bool JournalRecorder::replace(Ticket ticket, Json command)
{
    Held* held = find(ticket);
    if (held == nullptr)
        return false;
    if (held->command.is_null())
        ++m_commands;
    held->command = std::move(command);
    return true;
}

void JournalRecorder::takeBack(Ticket ticket)
{
    Held* held = find(ticket);
    if (held == nullptr)
        return;
    if (!held->command.is_null())
        --m_commands;
    Held gone = std::move(*held);
    const bool isLast = held == &m_held.back();
    m_held.erase(m_held.begin() + (held - m_held.data()));
    if (isLast)
        append(m_carried, std::move(gone));
}

void JournalRecorder::setResult(Ticket ticket, Json result)
{
    if (Held* held = find(ticket))
        held->reply.result = std::move(result);
    else if (m_reply && m_replyTo == ticket && m_held.empty())
        m_reply->result = std::move(result);
}

void JournalRecorder::event(Json what)
{
    if (m_stopped || m_options.transcript == nullptr)
        return;
    if (!m_held.empty())
        m_held.back().reply.events.push_back(std::move(what));
    else if (m_reply)
        m_reply->events.push_back(std::move(what));
}

void JournalRecorder::answered(Json answer)
{
    if (m_stopped)
        return;
    std::vector<Json>& answers = m_held.empty() ? m_carried.answers : m_held.back().answers;  // of a late question: the next command that can ask
    answers.push_back(std::move(answer));
}

// ForwardingUserInterface

int JournalRecorder::messageBox(const CString& text, unsigned type)
{
    const bool question = type == MB_YESNO;
    const int answer = ForwardingUserInterface::messageBox(text, type);
    const char* name = !question ? "ok" : answer == IDNO ? "no" : "yes";
    if (question)  // an OK box takes no answer of a script that was meant for a question
        answered(with(commandNamed(Verb::answer), "with", name));
    event(messageEvent(text, question, name));
    return answer;
}

bool JournalRecorder::openFile(const CString& filter, CString& path)
{
    const bool chosen = ForwardingUserInterface::openFile(filter, path);
    answered(with(commandNamed(Verb::file), "path", chosen ? Json(path) : Json()));
    event(fileEvent(filter, chosen ? std::optional<CString>(path) : std::nullopt));
    return chosen;
}

void JournalRecorder::dialogOpened(CDialog& dialog)
{
    event(openedEvent(dialog));
    ForwardingUserInterface::dialogOpened(dialog);
}

void JournalRecorder::dialogActivated(CDialog& dialog)
{
    event(activatedEvent(dialog));
    ForwardingUserInterface::dialogActivated(dialog);
}

void JournalRecorder::dialogClosed(CDialog& dialog)
{
    event(closedEvent(dialog));
    ForwardingUserInterface::dialogClosed(dialog);
}

void JournalRecorder::sendCommand(unsigned number)
{
    event(hostCommandEvent(number, false));
    ForwardingUserInterface::sendCommand(number);
}

void JournalRecorder::postCommand(unsigned number)
{
    event(hostCommandEvent(number, true));
    ForwardingUserInterface::postCommand(number);
}

void JournalRecorder::showPreferences(int page)
{
    event(preferencesEvent(page));
    ForwardingUserInterface::showPreferences(page);
}

void JournalRecorder::output(const CString& line)
{
    event(outputEvent(line));
    ForwardingUserInterface::output(line);
}

void JournalRecorder::history(const CString& line)
{
    event(historyEvent(line));
    ForwardingUserInterface::history(line);
}

bool JournalRecorder::startProcess(const CString& commandLine)
{
    event(processEvent(commandLine));
    return ForwardingUserInterface::startProcess(commandLine);
}

void JournalRecorder::gridWarning(Control& grid, const CString& text)
{
    event(warningEvent(grid, text));
    ForwardingUserInterface::gridWarning(grid, text);
}

void JournalRecorder::modelingMode(int mode)
{
    event(modeEvent(mode));
    ForwardingUserInterface::modelingMode(mode);
}

// CDBUpdateConnector

void JournalRecorder::OnUpdate(CView* /*sender*/, long long hint, CObject* /*object*/)
{
    if (!m_stopped && m_options.transcript != nullptr)
        event(noticeEvent(m_document, hint));
}

}  // namespace zel
