#pragma once

#include "command/set_dialog.h"
#include "contract/export.h"
#include "contract/tables/load_set_tables.h"

/// Set Load Cases for Wind Direction: sets of the load cases along the wind, across it and in torsion, with their two factors.
class ZEL_CMD_API CLoadCaseWindDirectDlg final : public CSetDialog<CDataLcwd, T_LCWD_BASE> {
public:
    explicit CLoadCaseWindDirectDlg(CWnd* parent = nullptr);
    ~CLoadCaseWindDirectDlg() override;

private:
    int OnInitDialog() override;
    void InitCtrl_LoadCaseCmb();
    void Initial_LCaseComboBox() override { InitCtrl_LoadCaseCmb(); }
    CListCtrl& List() override { return list; }
    std::vector<zel::FieldColumn> Columns() const override;
    CString DataToStr(int column, const T_LCWD_BASE& set) const override;
    void MakeItemEx() override;

    bool Dlg2Data() override;
    bool Dlg2Item(T_LCWD_BASE& set) override;
    bool ValidItem(const T_LCWD_BASE& set) override;
    bool IsOnlyOne(const T_LCWD_BASE& set, int skipRow) override;
    /// Shows the kind of building and the factors, and leaves the load cases.
    void ShowFactors(const T_LCWD_BASE& set);
    /// Torsion and the factors belong to high buildings alone.
    void CtrlEnable();

    const char* NoRowToDelete() const override { return "IDS_ZEL_CMD__ADDD__Error___Not_Selected_Data____"; }
    bool StepsBackAfterDelete() const override { return false; }

    void OnCmdWindAddBtn() { AddItem(); }
    void OnCmdWindModBtn() { ModifyItem(); }
    void OnCmdWindDelBtn() { DeleteItem(); }
    void OnCmdOkBtn() { OnOK(); }
    void OnCmdCancelBtn() { OnCancel(); }

    void UpdateBuffer(const CViewBuff& buffer) override;
    /// Lets every set with this change go through `clear`, last row first, and drops those without a case along the wind.
    /// @param clear  clears what the change has made invalid; true if the row is to be shown anew
    template <class Clear> void ClearSets(const Clear& clear, bool& refresh);

    static constexpr zel::Choice directions[] = {
        {0, "IDS_ZEL_CMD_WIND_DIRECTION_PLUS_MINUS"},
        {1, "IDS_ZEL_CMD_WIND_DIRECTION_PLUS"},
        {2, "IDS_ZEL_CMD_WIND_DIRECTION_MINUS"},
    };

    CGroup windLoads{*this, "Wind Loads Group"};
    CRadioGroup buildingType{windLoads, &T_LCWD_BASE::buildingType};
    CRadioButton middleLowRise{buildingType, "middleLowRise", "Middle Low Rise Building"};
    CRadioButton highRise{buildingType, "highRise", "High Rise Building"};
    CRow alongRow{windLoads};
    zel::LoadCaseCombo along{alongRow, "along", "Along Wind Load Case :", &T_LCWD_BASE::along, zel::LoadCaseCombo::Lines::names};
    CButton loadCaseButton{alongRow, "loadCaseButton", "...", &CLoadCaseWindDirectDlg::OnClickLoadCaseBtn};
    zel::LoadCaseCombo across{windLoads, "across", "Across Wind Load Case :", &T_LCWD_BASE::across, zel::LoadCaseCombo::Lines::namesOrNone};
    zel::LoadCaseCombo torsion{windLoads, "torsion", "Torsional Wind Load Case :", &T_LCWD_BASE::torsion, zel::LoadCaseCombo::Lines::namesOrNone};
    CEditUnit gd{windLoads, "gd", "GD :", {&T_LCWD_BASE::gd, zel::orZero}};
    CEditUnit k{windLoads, "k", "k :", {&T_LCWD_BASE::k, zel::orZero}};
    CListCtrl list{windLoads, "list", &CLoadCaseWindDirectDlg::OnChangedCurrentItem};
    CButtonRow buttons{windLoads};
    CButton add{buttons, "add", "Add", &CLoadCaseWindDirectDlg::OnCmdWindAddBtn};
    CButton modify{buttons, "modify", "Modify", &CLoadCaseWindDirectDlg::OnCmdWindModBtn};
    CButton del{buttons, "del", "Delete", &CLoadCaseWindDirectDlg::OnCmdWindDelBtn};
    CComboBox torsionDirection{*this, "torsionDirection", "Torsion Wind Direction :", {&T_LCWD_D::torsionDirection, directions}};
    CButtonRow closing{*this};
    CButton ok{closing, "ok", "OK", &CLoadCaseWindDirectDlg::OnCmdOkBtn};
    CButton cancel{closing, "cancel", "Cancel", &CLoadCaseWindDirectDlg::OnCmdCancelBtn};
};
