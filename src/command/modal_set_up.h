#pragma once

#include "command/dialog_class.h"
#include "command/dialog_table.h"

/// What a modal command hands to its dialog before it runs.
namespace zel {

/// What the caller's array holds for one command; null where the caller gave nothing.
struct ModalArguments {
    const unsigned* key = nullptr;
    const void* record = nullptr;
};

inline ModalArguments readModalArguments(const ModalCommand& command, const CArray<void*, void*>* args)
{
    const bool wantsRecord = !command.record.empty();
    const std::size_t needed = wantsRecord ? 2 : 1;
    if (args == nullptr || args->size() < needed)
        return {};
    return {static_cast<const unsigned*>((*args)[0]), wantsRecord ? (*args)[1] : nullptr};
}

inline void handToItem(IItemArguments& item, SetUp setUp, const ModalArguments& given, int flag)
{
    if (given.key == nullptr || given.record == nullptr)
        return;
    if (setUp == SetUp::addOrModify && flag == 0)
        item.openToAddUnder(*given.key);
    else
        item.openToModify(*given.key, given.record);
}

/// Prepares a dialog that has just been built.
/// @param args  the caller's key and record; null: the dialog opens as its own defaults say
inline void setUpModal(CInternationalDlg& dialog, const ModalCommand& command, const CArray<void*, void*>* args, int flag)
{
    const ModalArguments given = readModalArguments(command, args);
    switch (command.setUp) {
    case SetUp::none:
        break;
    case SetUp::initialPlace:
        dynamic_cast<CDlgMove&>(dialog).SetInitPos(1, 0, 0);
        break;
    case SetUp::identityMode1:
    case SetUp::identityMode2:
        dynamic_cast<IModalMode&>(dialog).setModalMode(command.setUp == SetUp::identityMode1 ? 1 : 2);
        break;
    case SetUp::addOrModify:
    case SetUp::modify:
    case SetUp::modifyByName:
        handToItem(dynamic_cast<IItemArguments&>(dialog), command.setUp, given, flag);
        break;
    case SetUp::scaleFactorsOfKey:
        if (given.key != nullptr)
            dynamic_cast<IScaleFactorsOfKey&>(dialog).SetModifyData(*given.key);
        break;
    }
}

}  // namespace zel
