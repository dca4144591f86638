#pragma once

#include "command/item_dialog.h"
#include "contract/tables/envelope_table.h"

#include <vector>

/// Define Envelope: chooses what an envelope is made of. Both tables keep the order of their sources.
class CCMEnvlItemDlg final : public CItemDialog<CDataEnvl> {
public:
    explicit CCMEnvlItemDlg(CWnd* parent = nullptr);
    ~CCMEnvlItemDlg() override;

private:
    int OnInitDialog() override;
    void MakeItemEx();
    void Move(CListCtrl& from, bool select);
    bool Dlg2Data() override;
    bool ValidItem(const T_ENVL_D& envelope) override;
    void ReadyForNext() override {}  // Apply leaves the form as it stands

    struct Candidate {
        T_ENVL_BASE item;
        bool selected = false;
    };

    CEdit name{*this, "name", "Envelope Name : ", {&T_ENVL_D::name, zel::required, "IDS_ZEL_CMD__Error___Name_has_not_been_input_"}};
    CEdit description{*this, "description", "Description        : ", &T_ENVL_D::description};
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
};
