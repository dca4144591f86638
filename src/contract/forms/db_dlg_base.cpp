#include "contract/forms/db_dlg_base.h"

#include "contract/document.h"
#include "contract/forms/dlg_modeless_mgr.h"
#include "contract/forms/window_list.h"

namespace {

/// The manager of the dialog's document; null if that document is no longer there.
CDlgModelessMgr* managerOf(const CDBDlgBase& dialog)
{
    CDBDoc* document = CDBDoc::GetDocPoint();
    return document != nullptr && document == dialog.m_pDoc ? document->GetDlgCtrl() : nullptr;
}

}  // namespace

CDBDlgBase::CDBDlgBase(unsigned templateId, CString title, CWnd* parent) : CDlgMove(templateId, std::move(title), parent), m_pDoc(CDBDoc::GetDocPoint()) {}

CDBDlgBase::~CDBDlgBase()
{
    if (m_id == 0)
        return;
    if (CDlgModelessMgr* manager = managerOf(*this))
        manager->remove(*this);
}

unsigned CDBDlgBase::RegisterDialog()
{
    static unsigned last = 60000;  // above every template number, as some dialogs stand under theirs
    return ++last;
}

int CDBDlgBase::Create(unsigned id, unsigned templateId, CWnd* /*parent*/)
{
    if (IsWindow() || id == 0)
        return 0;
    CDlgModelessMgr* manager = managerOf(*this);
    if (manager != nullptr && manager->enter(id, *this) == 0)
        return 0;
    m_id = id;
    setTemplateId(templateId);
    openModeless();
    return 1;
}

void CDBDlgBase::OnOK()
{
    if (isModal())
        CDlgMove::OnOK();  // beside the views there is nothing to confirm
}

void CDBDlgBase::OnCancel()
{
    if (isModal())
        CDlgMove::OnCancel();
    else
        DestroyWindow();
}

void CDBDlgBase::PostNcDestroy()
{
    if (isModal())  // it lives on its owner's stack
        return;
    if (CDlgModelessMgr* manager = managerOf(*this))
        manager->remove(*this);
    m_id = 0;
    zel::WindowList::instance().deleteLater(*this);
}

int CGlobalModeless::Create(CWnd* /*parent*/)
{
    if (IsWindow())
        return 0;
    openModeless();
    return 1;
}

void CGlobalModeless::PostNcDestroy()
{
    if (!isModal())
        zel::WindowList::instance().deleteLater(*this);
}
