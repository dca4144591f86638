#pragma once

#include "contract/export.h"
#include "contract/forms/forms.h"
#include "load/scale_up_form.h"
#include "loadcomb/tables/code_table.h"

/// Select Default Load Combination: the options of a generation of load combinations, the scale-up factors of response spectrum
/// load cases, which are remembered in the model, and the ways to the sets that the generator reads. OK generates.
class CCMAutoLoadCombDlg final : public CDlgMove {
public:
    /// @param kind  design kind of the combinations: 1 general, 2 steel, 3 concrete, 4 footing, 5 SRC
    explicit CCMAutoLoadCombDlg(int kind, CWnd* parent = nullptr);
    ~CCMAutoLoadCombDlg() override;

private:
    int OnInitDialog() override;
    void SetRules();
    void FillDesignCodes();
    void ReadScaleUps();

    // What is chosen.
    [[nodiscard]] CString code() const { return designCode.GetWindowText(); }
    /// The radios stand in the order of the types.
    [[nodiscard]] zel::codes::CombType selectedType() const { return static_cast<zel::codes::CombType>(combType.GetSel()); }
    [[nodiscard]] bool hasVerticalPressure() const;

    void OnDesignCode();

    void OnAlphaH();

    void OnOK() override;
    /// Remembers the scale-ups in the model. False if the model refused.
    [[nodiscard]] bool StoreScaleUps() const;
    [[nodiscard]] bool HasOrthogonalPairs() const;
    [[nodiscard]] bool Generate(double alpha) const;

    CRadioGroup mode{*this};
    CRadioButton modeAdd{mode, "modeAdd", "Add"};
    CRadioButton modeReplace{mode, "modeReplace", "Replace"};
    CComboBox designCode{*this, "designCode", "Design Code :", &CCMAutoLoadCombDlg::OnDesignCode};
    CComboBox loadCode{*this, "loadCode", "Load Code :"};  // hidden for every code

    zel::ScaleUpForm scaleUps{
        *this,
        {.group = "Scale Up of Response Spectrum Load Cases", .caseId = "rsLoadCase", .caseLabel = "RS Load Case :", .caseTitle = "IDS_ZEL_CMD_RS_Load_Name"},
        {.refusesOddFactors = false, .testsPairsByTheBox = true, .keepsRefusedFactors = false, .rowsTickTheBox = true, .deletionShowsNext = true}};

    CGroup wind{*this, "Wind Direction"};
    CButton windSets{wind, "windSets", "Set Load Cases for Wind Direction..."};

    CGroup orthogonalGroup{*this, "Orthogonal Effect"};
    CCheckBox orthogonal{orthogonalGroup, "orthogonal", "Consider Orthogonal Effect (100:30 Rule)"};
    CButton orthogonalSets{orthogonalGroup, "orthogonalSets", "Set Load Cases for Orthogonal Effect..."};

    CGroup types{*this, "Type"};
    CRadioGroup combType{types};
    CRadioButton strength{combType, "strength", "Strength"};
    CRadioButton special{combType, "special", "for Special Seismic Load"};
    CRadioButton vertical{combType, "vertical", "for Vertical Seismic Load"};
    CRadioButton underground{combType, "underground", "for Underground Load"};
    CRadioButton undergroundSpecial{combType, "undergroundSpecial", "for Underground Load (Special)"};
    CButton seismicFactors{types, "seismicFactors", "Factors for Seismic Design..."};
    CButton undergroundSets{types, "undergroundSets", "Set Load Cases for Underground Load..."};

    CGroup verticalPressureGroup{*this, "Vertical Pressure Load"};
    CCheckBox verticalPressure{verticalPressureGroup, "verticalPressure", "Consider Vertical Pressure Load(Earth)"};
    CRow alphaHRow{verticalPressureGroup};
    CEditUnit alphaH{alphaHRow, "alphaH", "Alpha_H :"};
    CButton alphaHButton{alphaHRow, "alphaHButton", "...", &CCMAutoLoadCombDlg::OnAlphaH};

    CGroup horizontalPressureGroup{*this, "Horizontal Pressure Load"};  // hidden for every code
    CCheckBox horizontalPressure{horizontalPressureGroup, "horizontalPressure", "Consider Horizontal Pressure Load(Earth)"};
    CComboBox strengthFactor{horizontalPressureGroup, "strengthFactor", "Load Factor For Strength :"};
    CComboBox serviceFactor{horizontalPressureGroup, "serviceFactor", "Load Factor For Serviceability :"};

    CButtonRow closing{*this};
    CButton ok{closing, "ok", "OK", &CCMAutoLoadCombDlg::OnOK};
    CButton cancel{closing, "cancel", "Cancel", &CCMAutoLoadCombDlg::OnCancel};

    int m_kind;
};

namespace zel::loadcomb {

/// Runs the dialog modally: what the editor's button does. Returns its end code.
ZEL_CMD_API int selectDefaultCombination(int kind, CWnd* parent = nullptr);

}  // namespace zel::loadcomb
