#pragma once

#include <map>
#include <vector>

class CDBDlgBase;
class CDialog;

/// The open modeless dialogs of one document, at most one for each id. Owned by the document.
class CDlgModelessMgr {
public:
    CDlgModelessMgr() = default;
    CDlgModelessMgr(const CDlgModelessMgr&) = delete;
    CDlgModelessMgr& operator=(const CDlgModelessMgr&) = delete;
    ~CDlgModelessMgr() { closeAll(); }

    /// The dialog that is open under `id`; null if there is none.
    [[nodiscard]] CDialog* GetDlg(unsigned id) const;
    /// All of them, front first.
    [[nodiscard]] std::vector<CDialog*> dialogs() const;

    /// For CDBDlgBase. `enter` returns 0 if the id is taken.
    int enter(unsigned id, CDBDlgBase& dialog);
    void remove(const CDBDlgBase& dialog);

    /// Destroys the windows of all of them; for a document that is about to go.
    void closeAll();

private:
    std::map<unsigned, CDBDlgBase*> m_dialogs;
};
