#include "contract/forms/dlg_modeless_mgr.h"

#include "contract/forms/db_dlg_base.h"
#include "contract/forms/open_dialogs.h"

CDialog* CDlgModelessMgr::GetDlg(unsigned id) const
{
    const auto found = m_dialogs.find(id);
    return found == m_dialogs.end() ? nullptr : found->second;
}

std::vector<CDialog*> CDlgModelessMgr::dialogs() const
{
    std::vector<CDialog*> frontFirst;
    for (CDialog* open : zel::openDialogs()) {
        for (const auto& [id, dialog] : m_dialogs) {
            if (dialog == open)
                frontFirst.push_back(open);
        }
    }
    return frontFirst;
}

int CDlgModelessMgr::enter(unsigned id, CDBDlgBase& dialog)
{
    return m_dialogs.emplace(id, &dialog).second ? 1 : 0;
}

void CDlgModelessMgr::remove(const CDBDlgBase& dialog)
{
    std::erase_if(m_dialogs, [&dialog](const auto& entry) { return entry.second == &dialog; });
}

void CDlgModelessMgr::closeAll()
{
    while (!m_dialogs.empty()) {
        CDBDlgBase* dialog = m_dialogs.begin()->second;
        m_dialogs.erase(m_dialogs.begin());
        dialog->DestroyWindow();
    }
    zel::deleteClosedDialogs();
}
