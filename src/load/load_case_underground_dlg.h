#pragma once

#include "command/model_listener.h"
#include "contract/export.h"
#include "contract/forms/forms.h"
#include "contract/tables/load_set_tables.h"
#include "load/load_case_under_main_grid.h"
#include "load/scale_up_form.h"

/// Set Load Cases for Underground Load: which seismic cases are scaled up and by how much, and which earth pressures act with a
/// seismic case in each direction.
class ZEL_CMD_API CLoadCaseUndergroundDlg final : public CDlgMove, public zel::ModelListener, private zel::ScaleUpForm {
public:
    explicit CLoadCaseUndergroundDlg(CWnd* parent = nullptr);
    ~CLoadCaseUndergroundDlg() override;

    /// The current row of the grid has changed: stores the check lists into the row that is left, and shows those of the new one.
    void OnChangedGridRow(int row);
    /// The check lists belong to no row from now on.
    void ForgetGridRow();

private:
    int OnInitDialog() override;
    void ReadRecord();
    void InitCtrl();
    void Data2Dlg();
    void Dlg2Data();

    // Scale-up of seismic load cases.
    CListCtrl& ScaleUpList() override { return list; }
    void SetComboBox_RS();
    void Show_EditComboBox(bool enable);
    void AddDataToScList(double factor, zel::Key key, zel::Key eccentricKey);
    [[nodiscard]] bool CheckRSSameLC();
    [[nodiscard]] bool CheckRSScaleFactor();
    [[nodiscard]] zel::Key GetKey() const;
    [[nodiscard]] zel::Key GetEccentricKey() const;
    void OnCmdLoadcombScAddBtn();
    void OnCmdLoadcombScModBtn();
    void OnCmdLoadcombScDelBtn();
    void OnCmdConsEccentricity();
    void OnItemchangedCmdLoadcombScList();

    // Load groups.
    void SetListCtrl_Seis();
    void SetData_CheckBoxList(const CString& rowName, const CArray<zel::Key>& seismicKeys, const CArray<zel::Key>& staticKeys);
    /// The keys of the ticked lines, or of all.
    void GetData_CheckBoxList(CArray<zel::Key>& seismicKeys, CArray<zel::Key>& staticKeys, bool all) const;
    void SetAllCheck_CheckBoxList(bool check);
    /// What the ticks are of; null if they belong to no row.
    [[nodiscard]] T_LCUG_SEIS* TickedGroup();
    void OnClickCmdSeismicList();
    void OnClickCmdStaticList();
    void OnCmdLoadcombLcomTypeFactorBtn();

    void OnOK() override;

    /// The dialog does not follow changes of the model while it is open.
    void UpdateBuffer(const CViewBuff& /*buffer*/) override {}
    [[nodiscard]] bool canUpdate() const override { return IsWindow(); }

    CGroup scaleUp{*this, "Scale Up of Seismic Load Cases"};
    CEditUnit scaleUpFactor{scaleUp, "scaleUpFactor", "Scale Up Factor :"};
    CComboBox loadCase{scaleUp, "loadCase", "Load Case :"};
    CCheckBox eccentricity{scaleUp, "eccentricity", "Consider Accidental Eccentricity", &CLoadCaseUndergroundDlg::OnCmdConsEccentricity};
    CComboBox esLoadCase{scaleUp, "esLoadCase", "ES Load Case :"};
    CListCtrl list{scaleUp, "list", &CLoadCaseUndergroundDlg::OnItemchangedCmdLoadcombScList};
    CButtonRow buttons{scaleUp};
    CButton add{buttons, "add", "Add", &CLoadCaseUndergroundDlg::OnCmdLoadcombScAddBtn};
    CButton modify{buttons, "modify", "Modify", &CLoadCaseUndergroundDlg::OnCmdLoadcombScModBtn};
    CButton del{buttons, "del", "Delete", &CLoadCaseUndergroundDlg::OnCmdLoadcombScDelBtn};

    CGroup loadGroup{*this, "Seismic Load Case List"};
    CLoadCaseUnderMainGrid grid{loadGroup, "grid", *this};
    CGroup earthPressure{*this, "Earth Pressure Load Case"};
    CCheckListBox seismicList{earthPressure, "seismicList", "Seismic", &CLoadCaseUndergroundDlg::OnClickCmdSeismicList};
    CCheckListBox staticList{earthPressure, "staticList", "Static", &CLoadCaseUndergroundDlg::OnClickCmdStaticList};

    CButton seismicFactors{*this, "seismicFactors", "Factors for Seismic Design...", &CLoadCaseUndergroundDlg::OnCmdLoadcombLcomTypeFactorBtn};
    CButtonRow closing{*this};
    CButton ok{closing, "ok", "OK", &CLoadCaseUndergroundDlg::OnOK};
    CButton cancel{closing, "cancel", "Cancel", &CLoadCaseUndergroundDlg::OnCancel};

    T_LCUG_D m_record;  ///< working copy
    CString m_rowName;  ///< grid row that the check lists show
};
