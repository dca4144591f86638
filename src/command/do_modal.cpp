#include "command/command.h"
#include "command/dialog_class.h"
#include "command/dialog_table.h"
#include "command/guarded.h"
#include "command/modal_set_up.h"
#include "contract/document.h"

#include <memory>

namespace {

int doModal(unsigned commandNumber, const CArray<void*, void*>* args, int flag)
{
    const zel::ModalCommand* command = zel::findModalCommand(commandNumber);
    if (command == nullptr || CDBDoc::GetDocPoint() == nullptr)
        return 0;
    const zel::DialogClass* dialogClass = zel::findDialogClass(command->dialogClass);
    if (dialogClass == nullptr)
        return 0;
    const std::unique_ptr<CInternationalDlg> dialog = dialogClass->make();
    zel::setUpModal(*dialog, *command, args, flag);
    return dialog->DoModal();
}

}  // namespace

int CMD_DoModal(unsigned commandNumber, CArray<void*, void*>* args, int flag)
{
    return zel::guarded(0, [&] { return doModal(commandNumber, args, flag); });
}
