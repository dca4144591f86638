#include "desktop/views/dialog_opening.h"

#include "command/dialog_table.h"
#include "command/exported_dialogs.h"
#include "journal/user_hand.h"

#include <algorithm>

namespace zel::desktop {

namespace {

const ModelessDialog* modelessOf(std::string_view id)
{
    const auto* row = std::ranges::find(modelessDialogs, id, &ModelessDialog::name);
    return row != modelessDialogs.end() ? row : nullptr;
}

}  // namespace

bool DialogOpening::isThere() const
{
    if (const ModelessDialog* row = modelessOf(id))
        return hasDialogClass(row->dialogClass);
    if (const ModalCommand* command = findModalCommand(number))
        return hasDialogClass(command->dialogClass);
    return findExportedDialog(dialogClass) != nullptr;
}

std::string_view DialogOpening::title() const
{
    if (const ModelessDialog* row = modelessOf(id))
        return row->title;
    if (const ModalCommand* command = findModalCommand(number))
        return command->title;
    return {};
}

void DialogOpening::run(UserHand& hand) const
{
    if (const ModelessDialog* row = modelessOf(id))
        hand.modeless(*row->id);
    else if (number != 0)
        hand.modal(number);
    else
        hand.open(dialogClass);
}

}  // namespace zel::desktop
