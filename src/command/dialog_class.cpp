#include "command/dialog_class.h"

#include "command/dialog_table.h"
#include "contract/forms/dialog_names.h"

#include <algorithm>
#include <vector>

namespace zel {

namespace {

// Function-local, because dialog classes enter themselves while the library loads, in no particular order.
std::vector<DialogClass>& dialogClasses()
{
    static std::vector<DialogClass> classes;
    return classes;
}

}  // namespace

const DialogClass* findDialogClass(std::string_view name)
{
    const std::vector<DialogClass>& classes = dialogClasses();
    const auto found = std::ranges::find(classes, name, &DialogClass::name);
    return found == classes.end() ? nullptr : &*found;
}

bool enterDialogClass(const DialogClass& dialogClass)
{
    dialogClasses().push_back(dialogClass);
    return enterDialogName(*dialogClass.type, dialogClass.name);
}

bool hasDialogClass(std::string_view name)
{
    return findDialogClass(name) != nullptr;
}

std::vector<std::string_view> exportedDialogs()
{
    std::vector<std::string_view> names;
    for (const DialogRow& row : dialogRows) {
        if (row.exported == Exported::yes && hasDialogClass(row.dialogClass))
            names.push_back(row.dialogClass);
    }
    std::ranges::sort(names);
    return names;
}

std::unique_ptr<CInternationalDlg> makeExportedDialog(std::string_view name)
{
    const auto* row = std::ranges::find_if(dialogRows, [name](const DialogRow& each) { return each.dialogClass == name && each.exported == Exported::yes; });
    const DialogClass* dialogClass = row != std::ranges::end(dialogRows) ? findDialogClass(name) : nullptr;
    return dialogClass != nullptr ? dialogClass->make() : nullptr;
}

}  // namespace zel
