#include "journal/dialog_commands.h"

#include "contract/forms/control.h"
#include "contract/forms/find_control.h"
#include "contract/forms/open_dialogs.h"
#include "journal/step_arguments.h"

#include <algorithm>
#include <string>

namespace zel {

namespace {

/// The one visible control whose label, its message key left out, is `name`; null if there is none or there are several.
Control* findBehindKey(const CDialog& dialog, std::string_view name)
{
    const CString wanted = normalisedLabel(name);
    Control* found = nullptr;
    for (Control* control : dialog.controls()) {
        const std::string_view label = control->label();
        if (!control->IsWindowVisible() || withoutKey(label) == label || normalisedLabel(withoutKey(label)) != wanted)
            continue;
        if (found != nullptr)
            return nullptr;
        found = control;
    }
    return found;
}

Control& namedControl(const CDialog& dialog, const std::string& name)
{
    const FoundControl found = findControl(dialog, name);
    if (found.control != nullptr)
        return *found.control;
    if (Control* behindKey = findBehindKey(dialog, name))
        return *behindKey;
    throw JsonFault("control", found.error);
}

/// @throws JsonFault  when the verb has no meaning for the control
void needFit(const Control& control, const VerbRow& verb, const std::string& calledAs)
{
    if (!verb.isFor(control))
        throw JsonFault("control", "\"" + calledAs + "\" " + verb.misfit());
}

UserStep readStep(const JournalCommand& command, const VerbRow& verb, const Control& control)
{
    UserStep step{verb.verb};
    for (const StepArgument* argument : verb.arguments)
        argument->read(command, control, step);
    return step;
}

}  // namespace

CDialog& addressedDialog(const JournalCommand& command)
{
    CDialog* dialog = nullptr;
    if (command.has("dialog")) {
        const std::string& name = command.text("dialog");
        const std::vector<CDialog*>& open = openDialogs();
        const auto found = std::find_if(open.begin(), open.end(), [&](const CDialog* each) { return each->ClassName() == name; });
        if (found == open.end())
            throw JsonFault("dialog", "no dialog " + name + " is open");
        dialog = *found;
    } else {
        dialog = activeDialog();
        if (dialog == nullptr)
            throw JsonFault("no dialog is open");
    }
    need(dialog->reach());
    return *dialog;
}

void need(const Taken& taken)
{
    if (!taken)
        throw JsonFault(taken.refusal);
}

void actOnControl(const CDialog& dialog, const JournalCommand& command, const VerbRow& verb)
{
    if (verb.run == nullptr)
        throw JsonFault("do", "\"" + command.name() + "\" is no command of a control");
    const std::string& name = command.text("control");
    Control& control = namedControl(dialog, name);
    needFit(control, verb, name);
    need(verb.run(control, readStep(command, verb, control)));
}

void pressKey(CDialog& dialog, const JournalCommand& command)
{
    const UserKey key = keyOf(command);
    need(command.has("control") ? namedControl(dialog, command.text("control")).key(key) : dialog.userKey(key));
}

void closeAllDialogs()
{
    for (CDialog* dialog = activeDialog(); dialog != nullptr && dialog->DestroyWindow() != 0; dialog = activeDialog()) {}
    deleteClosedDialogs();
}

}  // namespace zel
