#include "load/load_case_wind_direct_dlg.h"

#include "command/dialog_class.h"
#include "contract/load_types.h"
#include "contract/tables/static_load_case_table.h"

#include <algorithm>
#include <cmath>

namespace {

constexpr int lowBuilding = 0;
constexpr double lowestK = 0.55;
constexpr double highestK = 0.8;
constexpr double sameFactor = 1e-9;  ///< factors that differ by no more are one

bool sameCases(const T_LCWD_BASE& a, const T_LCWD_BASE& b)
{
    return a.along == b.along && a.across == b.across && a.torsion == b.torsion && std::abs(a.gd - b.gd) <= sameFactor && std::abs(a.k - b.k) <= sameFactor;
}

/// The cases of a type.
auto ofType(std::string_view type)
{
    return [type](const T_STLD_D& loadCase) { return loadCase.type == type; };
}

}  // namespace

ZEL_DIALOG(CLoadCaseWindDirectDlg)

CLoadCaseWindDirectDlg::CLoadCaseWindDirectDlg(CWnd* parent) : CSetDialog(14110, "Set Load Cases for Wind Direction", &T_LCWD_D::sets, parent)
{
    CtrlEnable();
}

CLoadCaseWindDirectDlg::~CLoadCaseWindDirectDlg() = default;

int CLoadCaseWindDirectDlg::OnInitDialog()
{
    ShowFactors(T_LCWD_BASE());
    return CSetDialog::OnInitDialog();
}

void CLoadCaseWindDirectDlg::CtrlEnable()
{
    for (zel::Control* each : {static_cast<zel::Control*>(&torsion), static_cast<zel::Control*>(&gd), static_cast<zel::Control*>(&k)})
        each->enabledWhen([this] { return highRise.GetCheck(); });
}

/// Cases along the wind have no line for none: what the wind does is told along it first. Where there are two or more the second
/// is offered, as cases come in pairs of directions.
void CLoadCaseWindDirectDlg::InitCtrl_LoadCaseCmb()
{
    along.fill(ofType(zel::load_type::wind));
    along.SetCurSel(std::min(along.GetCount() - 1, 1));
    across.fill(ofType(zel::load_type::acrossWind));
    across.SetCurSel(across.GetCount() > 1 ? 1 : 0);
    torsion.fill(ofType(zel::load_type::torsionalWind));
    torsion.SetCurSel(torsion.GetCount() > 1 ? 1 : 0);
}

std::vector<zel::FieldColumn> CLoadCaseWindDirectDlg::Columns() const
{
    return {
        {zel::loadText("IDS_ZEL_CMD_Orthgonal_Effect_Group_No"), 70},  // of orthogonal pairs: it is meant
        {zel::loadText("IDS_ZEL_CMD_WIND_DIRECTION_ALONG"), 60, &along},     {zel::loadText("IDS_ZEL_CMD_WIND_DIRECTION_ACROSS"), 60, &across},
        {zel::loadText("IDS_ZEL_CMD_WIND_DIRECTION_TORSION"), 60, &torsion}, {zel::loadText("IDS_ZEL_CMD_WIND_DIRECTION_FACTOR_GD"), 40, &gd},
        {zel::loadText("IDS_ZEL_CMD_WIND_DIRECTION_FACTOR_K"), 40, &k},
    };
}

CString CLoadCaseWindDirectDlg::DataToStr(int column, const T_LCWD_BASE& set) const
{
    const bool ofHighBuildings = column >= 3;
    return ofHighBuildings && set.buildingType == lowBuilding ? "-" : CSetDialog::DataToStr(column, set);
}

void CLoadCaseWindDirectDlg::MakeItemEx()
{
    CSetDialog::MakeItemEx();
    if (!items().empty())
        ShowFactors(items().front());
}

bool CLoadCaseWindDirectDlg::Dlg2Data()
{
    m_record.edited.reserved = 0;
    return CSetDialog::Dlg2Data();
}

bool CLoadCaseWindDirectDlg::Dlg2Item(T_LCWD_BASE& set)
{
    if (along.GetCurSel() < 0) {
        zel::showMessage("IDS_ZEL_CMD__Loadcase_was_not_selected_");
        return false;
    }
    if (!CSetDialog::Dlg2Item(set))
        return false;
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
    const auto same = [&](const T_LCWD_BASE& other) { return sameCases(other, set) && (!adding || other.buildingType == set.buildingType); };
    if (!HasAnotherRow(skipRow, same))
        return true;
    zel::showMessage("IDS_ZEL_CMD__ADDD__An_identical_load_group_already_exists_");
    return false;
}

void CLoadCaseWindDirectDlg::ShowFactors(const T_LCWD_BASE& set)
{
    buildingType.showField(&set);
    gd.showField(&set);
    k.showField(&set);
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
