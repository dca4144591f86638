#include "loadcomb/editor/auto_load_comb_dlg.h"

#include "command/guarded.h"
#include "command/load_cases.h"
#include "command/messages.h"
#include "contract/design_codes.h"
#include "contract/document.h"
#include "contract/forms/dialog_names.h"
#include "contract/load_types.h"
#include "contract/tables/load_set_tables.h"
#include "contract/tables/static_load_case_table.h"
#include "load/cmd_set_ortho_lc_dlg.h"
#include "load/dgn_gen_seis_factor.h"
#include "load/load_case_underground_dlg.h"
#include "load/load_case_wind_direct_dlg.h"
#include "loadcomb/editor/load_comb_alpha_h_dlg.h"
#include "loadcomb/generation/load_comb_ctrl.h"
#include "loadcomb/tables/code_registry.h"

#include <algorithm>

ZEL_DIALOG_NAME(CCMAutoLoadCombDlg)

namespace {

using zel::codes::CombType;

template <class... Names> bool isOneOf(const CString& code, Names... names)
{
    return ((code == names) || ...);
}

/// The codes that a design kind offers.
CArray<CString> codesOfKind(int kind)
{
    CArray<CString, CString&> names;
    switch (kind) {
    case 1:
        CDBLib::GetConLcomCodeNameList(names);
        return names;
    case 2:
        return {"AIK-ASD83", "AIK-LSD97", "AISC-ASD89", "AISC-LRFD93"};
    case 3:
        CDBLib::GetConCodeNameList(names);
        return names;
    case 4:
        return {"KCI-USD99", "AIK-USD94", "ACI318-89"};
    case 5:
        return {"SSRC79", "AIK-SRC2K"};
    default:
        return {};
    }
}

void fill(CComboBox& combo, const CArray<CString>& texts)
{
    combo.ResetContent();
    for (const CString& text : texts)
        combo.AddString(text);
    combo.SetCurSel(texts.empty() ? -1 : 0);
}

template <class Dialog> auto opens(CWnd* parent)
{
    return [parent] { Dialog(parent).DoModal(); };
}

}  // namespace

CCMAutoLoadCombDlg::CCMAutoLoadCombDlg(int kind, CWnd* parent) : CDlgMove(31002, "Select Default Load Combination", parent), m_kind(kind)
{
    windSets.onClick(opens<CLoadCaseWindDirectDlg>(this));
    orthogonalSets.onClick(opens<CCmdSetOrthoLCDlg>(this));
    seismicFactors.onClick(opens<CDgnGenSeisFactor>(this));
    undergroundSets.onClick(opens<CLoadCaseUndergroundDlg>(this));
    SetRules();
}

CCMAutoLoadCombDlg::~CCMAutoLoadCombDlg() = default;

void CCMAutoLoadCombDlg::SetRules()
{
    const auto group = [](CGroup& which, const std::function<bool()>& rule) {
        which.visibleWhen(rule);
        which.enabledWhen(rule);
    };
    const auto hasUnderground = [this] { return CDBLib::IsConCode_UnderGroundLcom(code()); };
    const auto isUnderground = [this] { return selectedType() == CombType::underground || selectedType() == CombType::undergroundSpecial; };

    // The underground types take their scale-ups from their own set.
    scaleUps.group.enabledWhen([this, isUnderground] { return !CDBLib::IsConCode_SeisLcom(code()) || !isUnderground(); });

    group(wind, [this] { return CDBLib::IsConCode_WindLcom(code()); });
    group(orthogonalGroup, [this] { return CDBLib::IsConCode_Ortho(code()); });
    orthogonalSets.enabledWhen([this] { return orthogonal.GetCheck(); });

    group(types, [this] { return CDBLib::IsConCode_SeisLcom(code()); });
    underground.visibleWhen(hasUnderground);
    undergroundSpecial.visibleWhen(hasUnderground);
    seismicFactors.enabledWhen([this] { return selectedType() == CombType::special || selectedType() == CombType::vertical; });
    undergroundSets.visibleWhen(hasUnderground);
    undergroundSets.enabledWhen(isUnderground);

    group(verticalPressureGroup, [this] { return hasVerticalPressure(); });
    alphaH.enabledWhen([this] { return verticalPressure.GetCheck(); });
    alphaHButton.enabledWhen([this] { return verticalPressure.GetCheck(); });
}

int CCMAutoLoadCombDlg::OnInitDialog()
{
    CDlgMove::OnInitDialog();
    mode.SetSel(0);
    FillDesignCodes();
    fill(strengthFactor, {"1.6", "0.9", "0"});
    fill(serviceFactor, {"1.0", "0.6", "0"});
    horizontalPressureGroup.ShowWindow(false);
    horizontalPressureGroup.EnableWindow(false);
    scaleUps.scaleUpFactor.SetEditUnit(T_SURS_SF().factor);
    alphaH.SetEditUnit(1.0);
    scaleUps.SetComboBox_RS([](const T_STLD_D& loadCase) { return loadCase.type == zel::load_type::earthquake; });
    OnDesignCode();
    scaleUps.InitListCtrl_RS();
    ReadScaleUps();
    return 1;
}

void CCMAutoLoadCombDlg::FillDesignCodes()
{
    fill(designCode, codesOfKind(m_kind));
    loadCode.ResetContent();
    loadCode.AddString("KDS 41 10 15:2021", 0);
    loadCode.AddString("KDS 41 10 15:2019", 1);
    loadCode.SetCurSel(0);
    loadCode.ShowWindow(false);
}

/// What is remembered goes the way of Add, and there without the test of pairs, since eccentricity is off. A case that has been deleted
/// since is forgotten.
void CCMAutoLoadCombDlg::ReadScaleUps()
{
    T_SURS_D record;
    if (CDataSurs().Get(record) == 0)
        return;
    const auto existing = [](zel::Key key) { return CDataStld().Exist(key) != 0 ? key : 0; };
    for (const T_SURS_SF& stored : record.scaleFactors) {
        if (existing(stored.loadCaseKey) != 0)
            scaleUps.AddDataToScList(stored.factor, stored.loadCaseKey, existing(stored.eccentricKey));
    }
}

bool CCMAutoLoadCombDlg::hasVerticalPressure() const
{
    const zel::codes::CodeEntry* entry = zel::codes::findCode(code());
    return entry != nullptr && zel::codes::takesAlphaH(*entry->table);
}

void CCMAutoLoadCombDlg::OnDesignCode()
{
    orthogonal.SetCheck(false);
    combType.SetSel(0);
    formChanged();  // groups come and go by their rules
}

void CCMAutoLoadCombDlg::OnAlphaH()
{
    CCMLoadCombAlphaHDlg dialog(this);
    if (dialog.DoModal() == IDOK)
        alphaH.SetEditUnit(dialog.alphaH());
}

// OK

void CCMAutoLoadCombDlg::OnOK()
{
    if (!CDBLib::IsConCodeName(code())) {
        zel::showMessage("IDS_ZEL_CMD__Not_Existed_Genernation_Code____");
        return;
    }
    if (!isOneOf(code(), "KBC-USD16", "KDS 41 30 : 2018", "KDS 41 20 : 2022"))
        horizontalPressure.SetCheck(false);  // the two load factors below it are read by no table
    double alpha = 1.0;
    if (verticalPressure.GetCheck() && alphaH.GetEditValue(alpha) == 0)
        return;

    CDBDoc* document = CDBDoc::GetDocPoint();
    document->beginChange("Generate load combinations of \"" + code() + "\"", CDBDoc::NoticeTime::each);  // one step to undo
    const bool ready = StoreScaleUps() && HasOrthogonalPairs();
    const bool generated = ready && Generate(alpha);
    if (document->endChange(1) == 0)  // what is written stays, whatever failed behind it, unless the file did not take it
        return;
    if (ready)
        scaleUps.ClearScaleUps();  // of what has run nothing is left for a second run
    if (generated)
        EndDialog(IDOK);
}

bool CCMAutoLoadCombDlg::StoreScaleUps() const
{
    T_SURS_D record;
    for (const T_LCUG_SF& entry : scaleUps.ScaleUps())
        record.scaleFactors.push_back({entry.loadCaseKey, entry.factor, entry.eccentricKey});
    return record.scaleFactors.empty() || CDataSurs().Add(record) != 0;
}

bool CCMAutoLoadCombDlg::HasOrthogonalPairs() const
{
    T_LCOE_D record;
    if (!orthogonal.GetCheck() || (CDataLcoe().Get(record) != 0 && !record.pairs.empty()))
        return true;
    zel::showMessage("IDS_ZEL_CMD__Not_Existed_Orthogonal_Case____");
    return false;
}

bool CCMAutoLoadCombDlg::Generate(double alpha) const
{
    CLoadCombCtrl control;
    control.SetKind(m_kind);
    control.SetScaleFactors(scaleUps.factors());
    control.SetEccentricCases(scaleUps.eccentricKeys());
    control.SetOrthoOption(orthogonal.GetCheck() ? 1 : 0);
    control.SetCombType(selectedType());
    control.SetAlphaH(alpha);
    control.SetLoadCode(static_cast<int>(loadCode.selectedData()));
    return control.Generate(mode.GetSel(), code()) != 0;
}

int zel::loadcomb::selectDefaultCombination(int kind, CWnd* parent)
{
    return guarded(0, [&] { return CCMAutoLoadCombDlg(kind, parent).DoModal(); });
}
