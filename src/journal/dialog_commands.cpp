#include "journal/dialog_commands.h"

#include "contract/forms/control.h"
#include "contract/forms/find_control.h"
#include "contract/forms/open_dialogs.h"
#include "journal/grid_commands.h"

#include <algorithm>
#include <array>
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

void need(const Taken& taken)
{
    if (!taken)
        throw JsonFault(taken.refusal);
}

struct KeyName {
    const char* name;
    UserKey key;
};

UserKey keyNamed(const std::string& name)
{
    static constexpr std::array<KeyName, 3> names{{{"Enter", UserKey::enter}, {"Escape", UserKey::escape}, {"Tab", UserKey::tab}}};
    for (const KeyName& each : names) {
        if (name == each.name)
            return each.key;
    }
    throw JsonFault("value", "there is no key \"" + name + "\"; there are Enter, Escape and Tab");
}

Taken chooseTab(Control& control, const JournalCommand& command)
{
    if (control.kind() != Kind::tabs)
        throw JsonFault("control", "\"" + command.text("control") + "\" has no tabs");
    return control.choose(command.value("value"));
}

Taken spinOnce(Control& control, const JournalCommand& command)
{
    const int delta = command.integer("delta");
    if (delta != 1 && delta != -1)
        throw JsonFault("delta", "must be 1 for a click up or -1 for a click down");
    return control.spin(delta);
}

Taken handPicked(Control& control, const JournalCommand& command)
{
    return control.pick(command.has("keys") ? command.keys("keys") : std::vector<Key>(), command.has("closed") && command.flag("closed"));
}

constexpr std::array<ControlCommand, 8> controlCommands{{
    {"set", [](Control& control, const JournalCommand& command) { return control.set(command.value("value")); }},
    {"press", [](Control& control, const JournalCommand&) { return control.press(); }},
    {"select", [](Control& control, const JournalCommand& command) { return control.select(command.rows("rows")); }},
    {"double_click", [](Control& control, const JournalCommand& command) { return control.doubleClick(command.integer("row")); }},
    {"tick", [](Control& control, const JournalCommand& command) { return control.tick(command.integer("row"), command.flag("value")); }},
    {"spin", spinOnce},
    {"tab", chooseTab},
    {"pick", handPicked},
}};

const ControlCommand* findCommand(std::span<const ControlCommand> commands, std::string_view name)
{
    const auto found = std::find_if(commands.begin(), commands.end(), [name](const ControlCommand& each) { return each.name == name; });
    return found != commands.end() ? &*found : nullptr;
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

void actOnControl(CDialog& dialog, const JournalCommand& command)
{
    const ControlCommand* found = findCommand(controlCommands, command.name());
    if (found == nullptr)
        found = findCommand(gridCommands(), command.name());
    if (found == nullptr)
        throw JsonFault("do", "\"" + command.name() + "\" is no command of a control");
    need(found->run(namedControl(dialog, command.text("control")), command));
}

void pressKey(CDialog& dialog, const JournalCommand& command)
{
    const UserKey key = keyNamed(command.text("value"));
    need(command.has("control") ? namedControl(dialog, command.text("control")).key(key) : dialog.userKey(key));
}

void closeAllDialogs()
{
    for (CDialog* dialog = activeDialog(); dialog != nullptr && dialog->DestroyWindow() != 0; dialog = activeDialog()) {}
    deleteClosedDialogs();
}

}  // namespace zel
