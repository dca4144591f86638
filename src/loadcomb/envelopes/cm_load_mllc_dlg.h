#pragma once

#include "command/load_cases.h"
#include "command/model_listener.h"
#include "contract/export.h"
#include "contract/forms/forms.h"
#include "contract/tables/load_combination_table.h"
#include "contract/user_interface.h"

#include <vector>

/// Create Load Cases Using Load Combinations: turns one combination into real loads of one static load case.
class ZEL_CMD_API CCMLoadMLLCDlg final : public CDlgMove, public zel::ModelListener {
public:
    explicit CCMLoadMLLCDlg(CWnd* parent = nullptr);
    ~CCMLoadMLLCDlg() override;

private:
    int OnInitDialog() override;
    void OnOK() override { OnApply(); }

    static constexpr unsigned openLoadCombinations = 32894;  ///< the host's command that opens Load Combinations

    /// Where a line of the combination list leads.
    struct Combination {
        int kind = 0;
        zel::Key key = 0;
        bool operator==(const Combination&) const = default;
    };

    void FillLoadCases();
    void FillCombinations();
    void OnApply();
    void CheckAll(bool check);

    void UpdateBuffer(const CViewBuff& buffer) override;
    [[nodiscard]] bool canUpdate() const override { return IsWindow() && !m_suspended; }

    CRow combinationRow{*this};
    CComboBox loadCombination{combinationRow, "loadCombination", "Load Combination :"};
    CButton loadCombinationButton{combinationRow, "loadCombinationButton", "...", [] { zel::sendHostCommand(openLoadCombinations); }};
    CRow loadCaseRow{*this};
    CComboBox loadCase{loadCaseRow, "loadCase", "Load Case           :"};
    CButton loadCaseButton{loadCaseRow, "loadCaseButton", "...", [] { zel::sendHostCommand(zel::openStaticLoadCases); }};
    CCheckBox deleteCurrentLoads{*this, "deleteCurrentLoads", "Delete Current Loads in the Selected Load Case"};
    CCheckBox selfWeight{*this, "selfWeight", "Self Weight", &T_LOAD_ATTR::selfWeight};
    CCheckBox pointLoad{*this, "pointLoad", "Point Load", &T_LOAD_ATTR::pointLoad};
    CCheckBox specifiedDisplacement{*this, "specifiedDisplacement", "Specified Displacement", &T_LOAD_ATTR::specifiedDisplacement};
    CCheckBox lineLoad{*this, "lineLoad", "Line Load", &T_LOAD_ATTR::lineLoad};
    CCheckBox areaLoad{*this, "areaLoad", "Area Load", &T_LOAD_ATTR::areaLoad};
    CButtonRow checkButtons{*this};
    CButton checkAll{checkButtons, "checkAll", "Check All", [this] { CheckAll(true); }};
    CButton checkNone{checkButtons, "checkNone", "Check None", [this] { CheckAll(false); }};
    CButtonRow buttons{*this};
    CButton apply{buttons, "apply", "Apply", &CCMLoadMLLCDlg::OnApply};
    CButton close{buttons, "close", "Close", &CCMLoadMLLCDlg::OnCancel};

    std::vector<Combination> m_combinations;  ///< parallel to the lines of the list
    bool m_suspended = false;                 ///< the loads are being made: notices are passed over
};
