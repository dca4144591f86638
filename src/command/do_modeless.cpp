#include "command/command.h"
#include "command/dialog_class.h"
#include "command/dialog_table.h"
#include "command/guarded.h"
#include "contract/document.h"
#include "contract/forms/db_dlg_base.h"
#include "contract/forms/dlg_modeless_mgr.h"

#include <algorithm>

namespace {

/// A new dialog of a modeless row, owned by nobody yet; null if its class is not built.
std::unique_ptr<CDBDlgBase> makeModeless(const zel::ModelessDialog& row)
{
    const zel::DialogClass* found = zel::findDialogClass(row.dialogClass);
    if (found == nullptr)
        return nullptr;
    std::unique_ptr<CInternationalDlg> made = found->make();
    auto* dialog = dynamic_cast<CDBDlgBase*>(made.get());
    if (dialog != nullptr)
        (void)made.release();
    return std::unique_ptr<CDBDlgBase>(dialog);
}

CDialog* createModeless(CDBDoc& document, unsigned dialogId, CWnd* parent)
{
    const auto row = std::ranges::find_if(zel::modelessDialogs, [dialogId](const zel::ModelessDialog& each) { return *each.id == dialogId; });
    if (row == zel::modelessDialogs.end())
        return nullptr;
    std::unique_ptr<CDBDlgBase> made = makeModeless(*row);
    if (!made)
        return nullptr;
    CDBDlgBase* dialog = made.release();  // from here on its window frees it
    dialog->m_pDoc = &document;
    dialog->Create(dialogId, row->templateId, parent);
    return dialog;
}

CDialog* doModeless(unsigned dialogId, CWnd* parent)
{
    CDBDoc* document = CDBDoc::GetDocPoint();
    if (document == nullptr)
        return nullptr;
    CDialog* dialog = document->GetDlgCtrl()->GetDlg(dialogId);
    if (dialog == nullptr)
        dialog = createModeless(*document, dialogId, parent);
    if (dialog == nullptr)
        return nullptr;
    dialog->ShowWindow();
    dialog->SetActiveWindow();
    return dialog;
}

}  // namespace

CDialog* CMD_DoModeless(unsigned dialogId, CWnd* parent)
{
    return zel::guarded<CDialog*>(nullptr, [&] { return doModeless(dialogId, parent); });
}
