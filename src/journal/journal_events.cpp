#include "journal/journal_events.h"

#include "contract/notices.h"
#include "journal/notice_json.h"

#include <nlohmann/json.hpp>

namespace zel {

Json openedEvent(const CDialog& dialog)
{
    return {
        {"event", "opened"}, {"dialog", dialog.ClassName()}, {"template", dialog.templateId()}, {"title", dialog.GetWindowText()}, {"modal", dialog.isModal()}};
}

Json activatedEvent(const CDialog& dialog)
{
    return {{"event", "activated"}, {"dialog", dialog.ClassName()}};
}

Json closedEvent(const CDialog& dialog)
{
    const std::optional<int> code = dialog.isModal() ? dialog.endCode() : std::nullopt;
    return {{"event", "closed"}, {"dialog", dialog.ClassName()}, {"result", code ? Json(*code) : Json()}};
}

Json returnedEvent(int value)
{
    return {{"event", "returned"}, {"call", "modal"}, {"value", value}};
}

Json messageEvent(const CString& text, bool question, const CString& answer)
{
    return {{"event", "message"}, {"text", text}, {"buttons", question ? "yesno" : "ok"}, {"answer", answer}};
}

Json warningEvent(const Control& grid, const CString& text)
{
    return {{"event", "warning"}, {"grid", grid.id()}, {"text", text}};
}

Json outputEvent(const CString& line)
{
    return {{"event", "output"}, {"text", line}};
}

Json historyEvent(const CString& line)
{
    return {{"event", "history"}, {"text", line}};
}

Json hostCommandEvent(unsigned number, bool posted)
{
    return {{"event", "command"}, {"number", number}, {"how", posted ? "posted" : "sent"}};
}

Json fileEvent(const CString& filter, const std::optional<CString>& path)
{
    return {{"event", "file"}, {"filter", filter}, {"path", path ? Json(*path) : Json()}};
}

Json processEvent(const CString& commandLine)
{
    return {{"event", "process"}, {"commandLine", commandLine}};
}

Json noticeEvent(CDBDoc& document, long long hint)
{
    return {{"event", "notice"}, {"hint", hint}, {"changes", Hint::isData(hint) ? changesToJson(*document.GetViewBuff()) : Json::array()}};
}

Json modeEvent(int mode)
{
    return {{"event", "mode"}, {"value", mode}};
}

Json preferencesEvent(int page)
{
    return {{"event", "preferences"}, {"page", page}};
}

}  // namespace zel
