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
    void InitCtrl();
    void InitCtrl_LoadCaseCmb();
    void Initial_LCaseComboBox() override { InitCtrl_LoadCaseCmb(); }
    CListCtrl& List() override { return list; }
    void SetListCtrlHeader() override;
    bool HasNumberedRows() const override { return true; }
    std::vector<int> LoadCaseColumns() const override { return {1, 2, 3}; }
    CString DataToStr(int column, const T_LCWD_BASE& set) const override;
    void MakeItemEx() override;

    void Data2Dlg() override;
    bool Dlg2Data() override;
    bool Dlg2Item(T_LCWD_BASE& set) override;
    bool ValidItem(const T_LCWD_BASE& set) override;
    bool IsOnlyOne(const T_LCWD_BASE& set, int skipRow) override;
    void Item2Dlg(const T_LCWD_BASE& set);
    void ShowFactors(const T_LCWD_BASE& set);
    /// Torsion and the factors belong to high buildings alone.
    void CtrlEnable();

    const char* NoRowToDelete() const override { return "IDS_ZEL_CMD__ADDD__Error___Not_Selected_Data____"; }
    bool StepsBackAfterDelete() const override { return false; }
    void OnChangedCurrentItem() override;
    void OnClickBuildingTypeRdo() { CtrlEnable(); }

    void OnCmdWindAddBtn() { AddItem(); }
    void OnCmdWindModBtn() { ModifyItem(); }
    void OnCmdWindDelBtn() { DeleteItem(); }
    void OnCmdOkBtn() { OnOK(); }
    void OnCmdCancelBtn() { OnCancel(); }

    void UpdateBuffer(const CViewBuff& buffer) override;
    /// Lets every set with this change go through `clear`, last row first, and drops those without a case along the wind.
    /// @param clear  clears what the change has made invalid; true if the row is to be shown anew
    template <class Clear> void ClearSets(const Clear& clear, bool& refresh);

    CGroup windLoads{*this, "Wind Loads Group"};
    CRadioGroup buildingType{windLoads, &CLoadCaseWindDirectDlg::OnClickBuildingTypeRdo};
    CRadioButton middleLowRise{buildingType, "middleLowRise", "Middle Low Rise Building"};
    CRadioButton highRise{buildingType, "highRise", "High Rise Building"};
    CRow alongRow{windLoads};
    CComboBox along{alongRow, "along", "Along Wind Load Case :"};
    CButton loadCaseButton{alongRow, "loadCaseButton", "...", &CLoadCaseWindDirectDlg::OnClickLoadCaseBtn};
    CComboBox across{windLoads, "across", "Across Wind Load Case :"};
    CComboBox torsion{windLoads, "torsion", "Torsional Wind Load Case :"};
    CEditUnit gd{windLoads, "gd", "GD :"};
    CEditUnit k{windLoads, "k", "k :"};
    CListCtrl list{windLoads, "list", &CLoadCaseWindDirectDlg::OnChangedCurrentItem};
    CButtonRow buttons{windLoads};
    CButton add{buttons, "add", "Add", &CLoadCaseWindDirectDlg::OnCmdWindAddBtn};
    CButton modify{buttons, "modify", "Modify", &CLoadCaseWindDirectDlg::OnCmdWindModBtn};
    CButton del{buttons, "del", "Delete", &CLoadCaseWindDirectDlg::OnCmdWindDelBtn};
    CComboBox torsionDirection{*this, "torsionDirection", "Torsion Wind Direction :"};
    CButtonRow closing{*this};
    CButton ok{closing, "ok", "OK", &CLoadCaseWindDirectDlg::OnCmdOkBtn};
    CButton cancel{closing, "cancel", "Cancel", &CLoadCaseWindDirectDlg::OnCmdCancelBtn};
};
