#include "journal/step_commands.h"

#include "contract/forms/dialog.h"
#include "contract/forms/lists.h"
#include "contract/forms/open_dialogs.h"
#include "contract/forms/tabs.h"
#include "journal/control_name.h"

namespace zel {

namespace {

const char* keyText(UserKey key)
{
    switch (key) {
    case UserKey::enter:
        return "Enter";
    case UserKey::escape:
        return "Escape";
    case UserKey::tab:
        break;
    }
    return "Tab";
}

}  // namespace

Json commandNamed(const char* name)
{
    return Json::object({{"do", name}});
}

Json commandTo(const char* name, const CDialog& dialog)
{
    const CDialog& form = dialog.root();
    Json command = commandNamed(name);
    if (&form != activeDialog())
        command["dialog"] = form.ClassName();
    return command;
}

Json commandTo(const char* name, const Control& control)
{
    return with(commandTo(name, control.dialog()), "control", controlName(control));
}

Json commandAt(const char* name, const CTBGrid& grid, int row, int column)
{
    return with(with(commandTo(name, grid), "row", rowName(row)), "column", columnName(grid, column));
}

Json keyCommand(const CDialog& dialog, const Control* control, UserKey key)
{
    return with(control != nullptr ? commandTo("key", *control) : commandTo("key", dialog), "value", keyText(key));
}

Json chooseCommand(const Control& control, int index)
{
    if (const auto* combo = dynamic_cast<const CComboBox*>(&control))
        return with(commandTo("set", control), "value", entryName(combo->items(), index));
    if (const auto* tabs = dynamic_cast<const CDlgTabCtrl*>(&control)) {
        std::vector<CString> titles;
        for (int i = 0; i < tabs->GetPageCount(); ++i)
            titles.push_back(tabs->GetTitle(i));
        return with(commandTo("tab", control), "value", entryName(titles, index));
    }
    return with(commandTo("select", control), "rows", Json::array({index}));
}

Json toJson(const UserValue& value)
{
    return std::visit([](const auto& each) { return Json(each); }, value);
}

}  // namespace zel
