#include "command/command.h"
#include "command/dialog_class.h"
#include "command/dialog_table.h"
#include "command/guarded.h"
#include "contract/document.h"

#include <memory>

namespace {

using zel::SetUp;

/// What the caller's array holds for one command; null where the caller gave nothing.
struct Arguments {
    const unsigned* key = nullptr;
    const void* record = nullptr;
};

Arguments readArguments(const zel::ModalCommand& command, const CArray<void*, void*>* args)
{
    const bool wantsRecord = !command.record.empty();
    const std::size_t needed = wantsRecord ? 2 : 1;
    if (args == nullptr || args->size() < needed)
        return {};
    return {static_cast<const unsigned*>((*args)[0]), wantsRecord ? (*args)[1] : nullptr};
}

void handToItem(zel::IItemArguments& item, SetUp setUp, const Arguments& given, int flag)
{
    if (given.key == nullptr || given.record == nullptr)
        return;
    if (setUp == SetUp::addOrModify && flag == 0)
        item.openToAddUnder(*given.key);
    else
        item.openToModify(*given.key, given.record);
}

void prepare(CInternationalDlg& dialog, const zel::ModalCommand& command, const Arguments& given, int flag)
{
    switch (command.setUp) {
    case SetUp::none:
        break;
    case SetUp::initialPlace:
        dynamic_cast<CDlgMove&>(dialog).SetInitPos(1, 0, 0);
        break;
    case SetUp::identityMode1:
    case SetUp::identityMode2:
        dynamic_cast<zel::IModalMode&>(dialog).setModalMode(command.setUp == SetUp::identityMode1 ? 1 : 2);
        break;
    case SetUp::addOrModify:
    case SetUp::modify:
    case SetUp::modifyByName:
        handToItem(dynamic_cast<zel::IItemArguments&>(dialog), command.setUp, given, flag);
        break;
    case SetUp::scaleFactorsOfKey:
        if (given.key != nullptr)
            dynamic_cast<zel::IScaleFactorsOfKey&>(dialog).SetModifyData(*given.key);
        break;
    }
}

int doModal(unsigned commandNumber, const CArray<void*, void*>* args, int flag)
{
    const zel::ModalCommand* command = zel::findModalCommand(commandNumber);
    if (command == nullptr || CDBDoc::GetDocPoint() == nullptr)
        return 0;
    const zel::DialogClass* dialogClass = zel::findDialogClass(command->dialogClass);
    if (dialogClass == nullptr)
        return 0;
    const std::unique_ptr<CInternationalDlg> dialog = dialogClass->make();
    prepare(*dialog, *command, readArguments(*command, args), flag);
    return dialog->DoModal();
}

}  // namespace

int CMD_DoModal(unsigned commandNumber, CArray<void*, void*>* args, int flag)
{
    return zel::guarded(0, [&] { return doModal(commandNumber, args, flag); });
}
