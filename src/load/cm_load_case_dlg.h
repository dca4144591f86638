#pragma once

#include "command/model_listener.h"
#include "contract/forms/forms.h"
#include "load/cm_load_case_grid.h"

/// Static Load Cases: a form above the list of the load cases. Each action writes at once, so there is nothing to confirm or to
/// cancel.
class CCMLoadCaseDlg final : public CDBDlgBase, public zel::ModelListener {
public:
    explicit CCMLoadCaseDlg(CWnd* parent = nullptr);
    ~CCMLoadCaseDlg() override;

    /// Shows a load case in the form.
    void ShowLoadCase(zel::Key key);

    int DestroyWindow() override;

private:
    int OnInitDialog() override;
    void InitTypes();
    void InitCombinationTypes();

    /// The form, as it stands, into the working record. False, after a message about the factor, if that can't be done.
    bool Dlg2Data();
    void Data2Dlg();
    [[nodiscard]] int SubLoadCaseCount() const;
    [[nodiscard]] bool HasMajorCase() const;
    void RefreshMajorCases();

    void OnAdd();
    void OnModify();
    void OnDelete();

    void UpdateBuffer(const CViewBuff& buffer) override { grid.UpdateBuffer(buffer); }
    void UnitChanged() override { grid.ChangeUnits(); }
    [[nodiscard]] bool canUpdate() const override { return IsWindow(); }

    CEdit name{*this, "name", "Name        :"};
    CComboBox type{*this, "type", "Type         :"};
    CEditUnit selfWeightFactor{*this, "selfWeightFactor", "Self Weight Factor :"};
    CRow countRow{*this};
    CEdit subLoadCaseCount{countRow, "subLoadCaseCount", "Number of Sub-Load Case :", &CCMLoadCaseDlg::RefreshMajorCases};
    CSpinButtonCtrl subLoadCaseSpin{countRow, "subLoadCaseSpin", subLoadCaseCount};
    CComboBox combinationType{*this, "combinationType", "Combination Type :", &CCMLoadCaseDlg::RefreshMajorCases};
    CComboBox majorCase{*this, "majorCase", "Major Case :"};
    CEdit description{*this, "description", "Description :"};
    CCMLoadCaseGrid grid{*this, "grid"};
    CButtonRow buttons{*this};
    CButton add{buttons, "add", "Add", &CCMLoadCaseDlg::OnAdd};
    CButton modify{buttons, "modify", "Modify", &CCMLoadCaseDlg::OnModify};
    CButton del{buttons, "del", "Delete", &CCMLoadCaseDlg::OnDelete};
    CButton close{buttons, "close", "Close", &CCMLoadCaseDlg::DestroyWindow};

    T_STLD_D m_record;             ///< working record
    std::vector<CString> m_types;  ///< type codes, parallel to the lines of the Type list
};
