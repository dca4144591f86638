#pragma once

#include "command/model_listener.h"
#include "command/record_fields.h"
#include "contract/forms/forms.h"
#include "load/cm_load_case_grid.h"

/// Static Load Cases: a form above the list of the load cases. Each action writes at once, so there is nothing to confirm or to
/// cancel.
class CCMLoadCaseDlg final : public CDBDlgBase, public zel::ModelListener {
public:
    explicit CCMLoadCaseDlg(CWnd* parent = nullptr);
    ~CCMLoadCaseDlg() override;

    int DestroyWindow() override;

private:
    int OnInitDialog() override;
    void InitTypes();

    /// The form, as it stands, into the working record. False, after the message of the field where it has one, if that can't be done.
    bool Dlg2Data();
    void Data2Dlg();
    [[nodiscard]] int SubLoadCaseCount() const;
    [[nodiscard]] bool HasMajorCase() const;
    void RefreshMajorCases();

    void OnLoadCase(zel::Row row);
    void OnAdd();
    void OnModify();
    void OnDelete();

    void UpdateBuffer(const CViewBuff& buffer) override { grid.UpdateBuffer(buffer); }
    void UnitChanged() override { grid.ChangeUnits(); }
    [[nodiscard]] bool canUpdate() const override { return IsWindow(); }

    // How sub-load cases are combined.
    enum CombinationType { sum, srssOfAbsolutes, srssWithMaximum, srssWithMajorCase };
    static constexpr zel::Choice combinationTypes[] = {
        {sum, "IDS_CMD_STLD_ADD"},
        {srssOfAbsolutes, "IDS_CMD_STLD_SRSS_ABS"},
        {srssWithMaximum, "IDS_CMD_STLD_SRSS_MAX"},
        {srssWithMajorCase, "IDS_CMD_STLD_SRSS_MAJOR"},
    };

    CEdit name{*this, "name", "Name        :", &T_STLD_D::name};
    CComboBox type{*this, "type", "Type         :", {&T_STLD_D::type, zel::required}};
    CEditUnit selfWeightFactor{
        *this, "selfWeightFactor", "Self Weight Factor :", {&T_STLD_D::selfWeightFactor, "IDS_ZEL_CMD__Error___Invalid_Self_Weight_Factor_"}};
    CRow countRow{*this};
    CEdit subLoadCaseCount{
        countRow, "subLoadCaseCount", "Number of Sub-Load Case :", {&T_STLD_D::subLoadCaseCount, zel::orZero}, &CCMLoadCaseDlg::RefreshMajorCases};
    CSpinButtonCtrl subLoadCaseSpin{countRow, "subLoadCaseSpin", subLoadCaseCount};
    CComboBox combinationType{
        *this, "combinationType", "Combination Type :", {&T_STLD_D::combinationType, combinationTypes}, &CCMLoadCaseDlg::RefreshMajorCases};
    CComboBox majorCase{*this, "majorCase", "Major Case :"};
    CEdit description{*this, "description", "Description :", &T_STLD_D::description};
    CCMLoadCaseGrid grid{*this, "grid", &CCMLoadCaseDlg::OnLoadCase};
    CButtonRow buttons{*this};
    CButton add{buttons, "add", "Add", &CCMLoadCaseDlg::OnAdd};
    CButton modify{buttons, "modify", "Modify", &CCMLoadCaseDlg::OnModify};
    CButton del{buttons, "del", "Delete", &CCMLoadCaseDlg::OnDelete};
    CButton close{buttons, "close", "Close", &CCMLoadCaseDlg::DestroyWindow};

    T_STLD_D m_record;  ///< working record
};
