#pragma once

#include "contract/forms/forms.h"
#include "contract/records/envl.h"

#include <vector>

/// Define Envelope: chooses what an envelope is made of. Both tables keep the order of their sources.
class CCMEnvlItemDlg final : public CDlgMove {
public:
    explicit CCMEnvlItemDlg(CWnd* parent = nullptr);
    ~CCMEnvlItemDlg() override;

    /// Opens on an envelope that is to be modified. Without it, OK adds a new one.
    void SetModifyData(const T_ENVL_D& envelope);

private:
    int OnInitDialog() override;
    void MakeItemEx();
    void Move(CListCtrl& from, bool select);
    bool Save();
    void OnOK() override;
    void OnApply();

    struct Candidate {
        T_ENVL_BASE item;
        bool selected = false;
    };

    CEdit name{*this, "name", "Envelope Name : "};
    CEdit description{*this, "description", "Description        : "};
    CGroup candidateGroup{*this, "Load Case && Combination List"};
    CListCtrl candidates{candidateGroup, "candidates", {}, CListCtrl::Selection::multiple};
    CButtonRow moveButtons{*this};
    CButton moveRight{moveButtons, "moveRight", "->", [this] { Move(candidates, true); }};
    CButton moveLeft{moveButtons, "moveLeft", "<-", [this] { Move(selected, false); }};
    CGroup selectedGroup{*this, "Selected List"};
    CListCtrl selected{selectedGroup, "selected", {}, CListCtrl::Selection::multiple};
    CButtonRow buttons{*this};
    CButton ok{buttons, "ok", "&OK", &CCMEnvlItemDlg::OnOK};
    CButton cancel{buttons, "cancel", "&Cancel", &CCMEnvlItemDlg::OnCancel};
    CButton apply{buttons, "apply", "&Apply", &CCMEnvlItemDlg::OnApply};

    std::vector<Candidate> m_candidates;  ///< everything that can be enveloped, and the items of the envelope that no longer exist
    T_ENVL_D m_record;
    CString m_oldName;
    bool m_modify = false;
};
