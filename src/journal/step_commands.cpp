#include "journal/step_commands.h"

#include "contract/forms/dialog.h"
#include "contract/forms/lists.h"
#include "contract/forms/open_dialogs.h"
#include "contract/forms/tabs.h"
#include "journal/control_name.h"
#include "journal/step_arguments.h"

#include <string>

namespace zel {

Json commandNamed(Verb verb)
{
    return Json::object({{"do", std::string(rowOf(verb).name)}});
}

Json commandTo(Verb verb, const CDialog& dialog)
{
    const CDialog& form = dialog.root();
    Json command = commandNamed(verb);
    if (&form != activeDialog())
        command["dialog"] = form.ClassName();
    return command;
}

Json commandOf(const UserStep& step, const Control& control)
{
    Json command = with(commandTo(step.verb, control.dialog()), "control", controlName(control));
    for (const StepArgument* argument : rowOf(step.verb).arguments) {
        if (Json value = argument->write(step, control); !value.is_null())
            command[std::string(argument->name)] = std::move(value);
    }
    return command;
}

Json keyCommand(const CDialog& dialog, UserKey key)
{
    return with(commandTo(Verb::key, dialog), "value", keyName(key));
}

UserStep choosing(const Control& control, int index)
{
    if (const auto* combo = dynamic_cast<const CComboBox*>(&control))
        return {.verb = Verb::set, .value = entryName(combo->items(), index)};
    if (const auto* tabs = dynamic_cast<const CDlgTabCtrl*>(&control)) {
        std::vector<CString> titles;
        for (int i = 0; i < tabs->GetPageCount(); ++i)
            titles.push_back(tabs->GetTitle(i));
        return {.verb = Verb::tab, .value = entryName(titles, index)};
    }
    return {.verb = Verb::select, .rows = {index}};
}

}  // namespace zel
