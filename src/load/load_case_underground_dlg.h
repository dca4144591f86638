#pragma once

#include "command/model_listener.h"
#include "contract/export.h"
#include "contract/forms/forms.h"
#include "contract/tables/load_set_tables.h"
#include "load/load_case_under_main_grid.h"
#include "load/scale_up_form.h"

/// Set Load Cases for Underground Load: which seismic cases are scaled up and by how much, and which earth pressures act with a
/// seismic case in each direction.
class ZEL_CMD_API CLoadCaseUndergroundDlg final : public CDlgMove, public zel::ModelListener {
public:
    explicit CLoadCaseUndergroundDlg(CWnd* parent = nullptr);
    ~CLoadCaseUndergroundDlg() override;

private:
    int OnInitDialog() override;
    void ReadRecord();
    void InitCtrl();
    void Data2Dlg();
    void Dlg2Data();

    // Load groups.
    void SetListCtrl_Seis();
    void SetData_CheckBoxList(const CString& rowName, const CArray<zel::Key>& seismicKeys, const CArray<zel::Key>& staticKeys);
    /// The keys of the ticked lines, or of all.
    void GetData_CheckBoxList(CArray<zel::Key>& seismicKeys, CArray<zel::Key>& staticKeys, bool all) const;
    void SetAllCheck_CheckBoxList(bool check);
    /// What the ticks are of; null if they belong to no row.
    [[nodiscard]] T_LCUG_SEIS* TickedGroup();
    /// The current row of the grid has changed: stores the check lists into the row that is left, and shows those of the new one.
    void OnChangedGridRow(zel::Row row);
    /// The check lists belong to no row from now on.
    void ForgetGridRow();
    void OnClickCmdSeismicList();
    void OnClickCmdStaticList();
    void OnCmdLoadcombLcomTypeFactorBtn();

    void OnOK() override;

    /// The dialog does not follow changes of the model while it is open.
    void UpdateBuffer(const CViewBuff& /*buffer*/) override {}
    [[nodiscard]] bool canUpdate() const override { return IsWindow(); }

    zel::ScaleUpForm scaleUps{
        *this,
        {.group = "Scale Up of Seismic Load Cases", .caseId = "loadCase", .caseLabel = "Load Case :", .caseTitle = "IDS_ZEL_CMD__Load_Case"},
        {.refusesOddFactors = true, .testsPairsByTheBox = false, .keepsRefusedFactors = true, .rowsTickTheBox = false, .deletionShowsNext = false}};

    CGroup loadGroup{*this, "Seismic Load Case List"};
    CLoadCaseUnderMainGrid grid{loadGroup, "grid", &CLoadCaseUndergroundDlg::OnChangedGridRow, &CLoadCaseUndergroundDlg::ForgetGridRow};
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
