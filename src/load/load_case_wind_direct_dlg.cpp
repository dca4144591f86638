#include "load/load_case_wind_direct_dlg.h"

#include "contract/forms/dialog_names.h"
#include "contract/load_types.h"
#include "contract/tables/static_load_case_table.h"

#include <algorithm>
#include <cmath>

ZEL_DIALOG_NAME(CLoadCaseWindDirectDlg)

namespace {

constexpr int lowBuilding = 0;
constexpr int highBuilding = 1;
constexpr double lowestK = 0.55;
constexpr double highestK = 0.8;
constexpr double sameFactor = 1e-9;  ///< factors that differ by no more are one

CString noCase()
{
    return zel::loadText("IDS_ZEL_CMD__NONE");
}

/// Name of a load case, as the list and the form show it.
CString caseText(zel::Key key)
{
    T_STLD_D record;
    return CDataStld().Get(key, record) != 0 ? record.name : noCase();
}

bool sameCases(const T_LCWD_BASE& a, const T_LCWD_BASE& b)
{
    return a.along == b.along && a.across == b.across && a.torsion == b.torsion && std::abs(a.gd - b.gd) <= sameFactor && std::abs(a.k - b.k) <= sameFactor;
}

void fillWithNone(CComboBox& list, std::string_view type)
{
    list.ResetContent();
    list.AddString(noCase());
    zel::addLoadCases(list, [type](const T_STLD_D& loadCase) { return loadCase.type == type; });
    list.SetCurSel(list.GetCount() > 1 ? 1 : 0);
}

}  // namespace

CLoadCaseWindDirectDlg::CLoadCaseWindDirectDlg(CWnd* parent) : CSetDialog(14110, "Set Load Cases for Wind Direction", &T_LCWD_D::sets, parent) {}

CLoadCaseWindDirectDlg::~CLoadCaseWindDirectDlg() = default;

int CLoadCaseWindDirectDlg::OnInitDialog()
{
    InitCtrl();
    CSetDialog::OnInitDialog();
    CtrlEnable();
    return 1;
}

void CLoadCaseWindDirectDlg::InitCtrl()
{
    torsionDirection.ResetContent();
    torsionDirection.AddString(zel::loadText("IDS_ZEL_CMD_WIND_DIRECTION_PLUS_MINUS"));
    torsionDirection.AddString(zel::loadText("IDS_ZEL_CMD_WIND_DIRECTION_PLUS"));
    torsionDirection.AddString(zel::loadText("IDS_ZEL_CMD_WIND_DIRECTION_MINUS"));
    ShowFactors(T_LCWD_BASE());
}

/// Cases along the wind have no line for none: what the wind does is told along it first. Where there are two or more the second
/// is offered, as cases come in pairs of directions.
void CLoadCaseWindDirectDlg::InitCtrl_LoadCaseCmb()
{
    along.ResetContent();
    zel::addLoadCases(along, [](const T_STLD_D& loadCase) { return loadCase.type == zel::load_type::wind; });
    along.SetCurSel(std::min(along.GetCount() - 1, 1));
    fillWithNone(across, zel::load_type::acrossWind);
    fillWithNone(torsion, zel::load_type::torsionalWind);
}

void CLoadCaseWindDirectDlg::SetListCtrlHeader()
{
    list.AddColumn(zel::loadText("IDS_ZEL_CMD_Orthgonal_Effect_Group_No"), 70);  // of orthogonal pairs: it is meant
    list.AddColumn(zel::loadText("IDS_ZEL_CMD_WIND_DIRECTION_ALONG"), 60);
    list.AddColumn(zel::loadText("IDS_ZEL_CMD_WIND_DIRECTION_ACROSS"), 60);
    list.AddColumn(zel::loadText("IDS_ZEL_CMD_WIND_DIRECTION_TORSION"), 60);
    list.AddColumn(zel::loadText("IDS_ZEL_CMD_WIND_DIRECTION_FACTOR_GD"), 40);
    list.AddColumn(zel::loadText("IDS_ZEL_CMD_WIND_DIRECTION_FACTOR_K"), 40);
}

CString CLoadCaseWindDirectDlg::DataToStr(int column, const T_LCWD_BASE& set) const
{
    if (column == 1)
        return caseText(set.along);
    if (column == 2)
        return caseText(set.across);
    if (set.buildingType == lowBuilding)
        return "-";
    if (column == 3)
        return caseText(set.torsion);
    return zel::numberText("%g", column == 4 ? set.gd : set.k);
}

void CLoadCaseWindDirectDlg::MakeItemEx()
{
    CSetDialog::MakeItemEx();
    if (items().empty())
        return;
    ShowFactors(items().front());
    CtrlEnable();
}

void CLoadCaseWindDirectDlg::Data2Dlg()
{
    torsionDirection.SetCurSel(m_record.torsionDirection);
}

bool CLoadCaseWindDirectDlg::Dlg2Data()
{
    m_record.reserved = 0;
    m_record.torsionDirection = torsionDirection.GetCurSel();
    return true;
}

bool CLoadCaseWindDirectDlg::Dlg2Item(T_LCWD_BASE& set)
{
    if (along.GetCurSel() < 0) {
        zel::showMessage("IDS_ZEL_CMD__Loadcase_was_not_selected_");
        return false;
    }
    set.along = GetStldKey(along.GetWindowText());
    set.across = GetStldKey(across.GetWindowText());
    set.torsion = GetStldKey(torsion.GetWindowText());
    set.gd = gd.GetEditValue();
    set.k = k.GetEditValue();
    set.buildingType = buildingType.GetSel();
    if (set.buildingType == lowBuilding)
        set.torsion = 0;
    return true;
}

bool CLoadCaseWindDirectDlg::ValidItem(const T_LCWD_BASE& set)
{
    if (set.along == 0 && set.across == 0 && set.torsion == 0) {
        zel::showMessage("IDS_ZEL_CMD__ADDD__Invalid_loadcase_key_");
        return false;
    }
    if (set.gd <= 0.0) {
        zel::showMessage("IDS_ZEL_CMD_ERROR_CHK_WIND_LOAD_DIRECTION_GD");
        return false;
    }
    if (set.k > highestK || set.k < lowestK) {
        zel::showMessage("IDS_ZEL_CMD_ERROR_CHK_WIND_LOAD_DIRECTION_K");
        return false;
    }
    return true;
}

/// A set that is modified must differ from the others in more than the kind of building; a new one need not.
bool CLoadCaseWindDirectDlg::IsOnlyOne(const T_LCWD_BASE& set, int skipRow)
{
    const bool adding = skipRow < 0;
    for (std::size_t row = 0; row < items().size(); ++row) {
        const T_LCWD_BASE& other = items()[row];
        if (static_cast<int>(row) != skipRow && sameCases(other, set) && (!adding || other.buildingType == set.buildingType)) {
            zel::showMessage("IDS_ZEL_CMD__ADDD__An_identical_load_group_already_exists_");
            return false;
        }
    }
    return true;
}

void CLoadCaseWindDirectDlg::ShowFactors(const T_LCWD_BASE& set)
{
    gd.SetEditUnit(set.gd);
    k.SetEditUnit(set.k);
    buildingType.SetSel(set.buildingType);
}

void CLoadCaseWindDirectDlg::Item2Dlg(const T_LCWD_BASE& set)
{
    zel::selectText(along, caseText(set.along));
    zel::selectText(across, caseText(set.across));
    zel::selectText(torsion, caseText(set.torsion));
    ShowFactors(set);
    CtrlEnable();
}

void CLoadCaseWindDirectDlg::CtrlEnable()
{
    const bool isHighRise = buildingType.GetSel() == highBuilding;
    torsion.EnableWindow(isHighRise);
    gd.EnableWindow(isHighRise);
    k.EnableWindow(isHighRise);
}

void CLoadCaseWindDirectDlg::OnChangedCurrentItem()
{
    int row = 0;
    if (GetSelectedItem(row) != 0)
        Item2Dlg(items()[static_cast<std::size_t>(row)]);
}

template <class Clear> void CLoadCaseWindDirectDlg::ClearSets(const Clear& clear, bool& refresh)
{
    for (int row = list.GetItemCount() - 1; row >= 0; --row) {
        T_LCWD_BASE& set = items()[static_cast<std::size_t>(row)];
        if (clear(set))
            refresh = true;
        if (set.along == 0) {
            RemoveRow(row);
            refresh = false;  // the rows that are left are not shown anew: it is meant
        }
    }
}

void CLoadCaseWindDirectDlg::UpdateBuffer(const CViewBuff& buffer)
{
    bool changed = false;
    bool refresh = false;
    zel::readChanges(buffer,
                     zel::TableWatch<CDataStld>{
                         .added = [&](const CDataStld& /*now*/) { changed = true; },
                         .deleted =
                             [&](const CDataStld& before) {
                                 changed = true;
                                 ClearSets(
                                     [key = before.currentKey](T_LCWD_BASE& set) {
                                         for (zel::Key* place : {&set.along, &set.across, &set.torsion}) {
                                             if (*place == key) {
                                                 *place = 0;
                                                 return true;
                                             }
                                         }
                                         return false;
                                     },
                                     refresh);
                             },
                         .modified =
                             [&](const CDataStld& now, const CDataStld& before) {
                                 changed = true;
                                 ClearSets(
                                     [key = before.currentKey, &type = now.currentRecord.type](T_LCWD_BASE& set) {
                                         if (set.along == key && type != zel::load_type::wind) {
                                             set.along = 0;
                                             return false;  // the set goes
                                         }
                                         if (set.across == key && type != zel::load_type::acrossWind) {
                                             set.across = 0;
                                             return true;
                                         }
                                         if (set.torsion == key && type != zel::load_type::torsionalWind) {
                                             set.torsion = 0;
                                             return true;
                                         }
                                         return false;
                                     },
                                     refresh);
                             },
                     });
    if (!changed)
        return;
    InitCtrl_LoadCaseCmb();
    if (refresh)
        MakeItemEx();
}
