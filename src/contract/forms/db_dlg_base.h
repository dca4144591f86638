#pragma once

#include "contract/forms/dialog.h"

class CDBDoc;

/// A dialog that may stay open beside the views, one for each id. Made by `new`; when its window has gone it takes itself
/// out of the document's CDlgModelessMgr at once, and is deleted as soon as no user action is under way.
///
/// It can also be run by DoModal, on the caller's stack. DestroyWindow then ends the run as cancelled.
class CDBDlgBase : public CDlgMove {
public:
    CDBDlgBase(unsigned templateId, CString title, CWnd* parent = nullptr);
    ~CDBDlgBase() override;

    /// A new dialog id, unique in the process.
    static unsigned RegisterDialog();

    /// Makes the window and enters the dialog under `id`. Returns 0, with nothing made, if the id is taken.
    int Create(unsigned id, unsigned templateId, CWnd* parent);
    [[nodiscard]] unsigned dialogId() const { return m_id; }

    CDBDoc* m_pDoc = nullptr;  ///< the document; set by who opens the dialog, else by the constructor

protected:
    void OnOK() override;
    void OnCancel() override;
    void PostNcDestroy() override;

private:
    unsigned m_id = 0;
};

/// A modeless dialog that its host makes by `new` and that is under no id. It frees itself as CDBDlgBase does.
class CGlobalModeless : public CInternationalDlg {
public:
    using CInternationalDlg::CInternationalDlg;

    /// Makes the window; returns 0 if there is one.
    int Create(CWnd* parent = nullptr);
    /// Destroys the window and frees the dialog.
    void End() { DestroyWindow(); }

protected:
    void OnOK() override { End(); }
    void OnCancel() override { End(); }
    void PostNcDestroy() override;
};
