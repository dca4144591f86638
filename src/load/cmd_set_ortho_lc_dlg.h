#pragma once

#include "command/set_dialog.h"
#include "contract/export.h"
#include "contract/tables/load_set_tables.h"

/// Set Load Cases for Orthogonal Effect: the pairs of earthquake load cases that act at right angles to each other, for the
/// 100:30 rule.
class ZEL_CMD_API CCmdSetOrthoLCDlg final : public CSetDialog<CDataLcoe, T_LCOE_BASE> {
public:
    explicit CCmdSetOrthoLCDlg(CWnd* parent = nullptr);
    ~CCmdSetOrthoLCDlg() override;

    /// Makes all pairs of the listed load cases that do not stand in the list yet. Its button is hidden until a form offers it.
    void OnCmdOLGAuto();

private:
    int OnInitDialog() override;
    CListCtrl& List() override { return list; }
    std::vector<zel::FieldColumn> Columns() const override;
    void Initial_LCaseComboBox() override;

    bool Dlg2Item(T_LCOE_BASE& pair) override;
    bool ValidItem(const T_LCOE_BASE& pair) override;
    /// The same test for a row of the list: what is wrong goes to `message` instead of a box.
    static bool ValidItem(const T_LCOE_BASE& pair, CString& message);
    bool IsOnlyOne(const T_LCOE_BASE& pair, int skipRow) override;
    bool HasPair(const T_LCOE_BASE& pair, int skipRow);

    const char* NoRowToDelete() const override { return "IDS_ZEL_CMD__ADDD__Error___Not_Selected_Data____"; }
    bool StepsBackAfterDelete() const override { return false; }
    void OnChangedCurrentItem() override;
    bool Dlg2Data() override;
    void FollowLoadCases(const CViewBuff& buffer) override;

    void OnCmdOLGAdd() { AddItem(); }
    void OnCmdOLGModify() { ModifyItem(); }
    void OnCmdOLGDelete() { DeleteItem(); }

    CGroup define{*this, "Define Orthogonal Load Cases"};
    CRow loadCase1Row{define};
    zel::LoadCaseCombo loadCase1{loadCase1Row, "loadCase1", "Load Case 1 :", &T_LCOE_BASE::case1};
    CButton loadCaseButton{loadCase1Row, "loadCaseButton", "...", &CCmdSetOrthoLCDlg::OnClickLoadCaseBtn};
    zel::LoadCaseCombo loadCase2{define, "loadCase2", "Load Case 2 :", &T_LCOE_BASE::case2};
    CButton autoGrouping{define, "autoGrouping", "Auto Grouping", &CCmdSetOrthoLCDlg::OnCmdOLGAuto};
    CGroup pairs{*this, "Orthogonal Loads Group"};
    CListCtrl list{pairs, "list", &CCmdSetOrthoLCDlg::OnChangedCurrentItem};
    CButtonRow buttons{pairs};
    CButton add{buttons, "add", "Add", &CCmdSetOrthoLCDlg::OnCmdOLGAdd};
    CButton modify{buttons, "modify", "Modify", &CCmdSetOrthoLCDlg::OnCmdOLGModify};
    CButton del{buttons, "del", "Delete", &CCmdSetOrthoLCDlg::OnCmdOLGDelete};
    CButtonRow closing{*this};
    CButton ok{closing, "ok", "OK", &CCmdSetOrthoLCDlg::OnOK};
    CButton cancel{closing, "cancel", "Cancel", &CCmdSetOrthoLCDlg::OnCancel};
};
