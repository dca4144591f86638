#include "load/cmd_set_ortho_lc_dlg.h"

#include "contract/forms/dialog_names.h"
#include "contract/load_types.h"
#include "contract/tables/static_load_case_table.h"

#include <algorithm>

ZEL_DIALOG_NAME(CCmdSetOrthoLCDlg)

namespace {

/// Which case of a pair an earthquake rule forbids: the text that names it, empty for none. No rule forbids any today.
CString forbiddenCases(const CString& name1, const CString& name2)
{
    constexpr bool firstAllowed = true;
    constexpr bool secondAllowed = true;
    if (!firstAllowed && !secondAllowed)
        return zel::formatText("%s and %s", {name1, name2});
    if (!firstAllowed)
        return name1;
    if (!secondAllowed)
        return name2;
    return {};
}

}  // namespace

CCmdSetOrthoLCDlg::CCmdSetOrthoLCDlg(CWnd* parent) : CSetDialog(14174, "Set Load Cases for Orthogonal Effect", &T_LCOE_D::pairs, parent) {}

CCmdSetOrthoLCDlg::~CCmdSetOrthoLCDlg() = default;

int CCmdSetOrthoLCDlg::OnInitDialog()
{
    autoGrouping.ShowWindow(false);
    return CSetDialog::OnInitDialog();
}

void CCmdSetOrthoLCDlg::Initial_LCaseComboBox()
{
    const auto isEarthquake = [](const T_STLD_D& loadCase) { return loadCase.type == zel::load_type::earthquake; };
    loadCase1.fill(isEarthquake);
    loadCase2.fill(isEarthquake);
}

void CCmdSetOrthoLCDlg::SetListCtrlHeader()
{
    list.AddColumn(zel::loadText("IDS_ZEL_CMD_Orthgonal_Effect_Group_No"), 70);
    list.AddColumn(zel::loadText("IDS_ZEL_CMD_Orthgonal_Effect_Load_Case_1"), 60);
    list.AddColumn(zel::loadText("IDS_ZEL_CMD_Orthgonal_Effect_Load_Case_2"), 60);
}

CString CCmdSetOrthoLCDlg::DataToStr(int column, const T_LCOE_BASE& pair) const
{
    return zel::staticCaseText(CDataStld().GetNameByKey(column == 1 ? pair.case1 : pair.case2));
}

bool CCmdSetOrthoLCDlg::Dlg2Item(T_LCOE_BASE& pair)
{
    if (loadCase1.GetCurSel() < 0 && loadCase2.GetCurSel() < 0) {
        zel::showMessage("IDS_ZEL_CMD__ADDD__Loadcase_was_not_selected_");
        return false;
    }
    if (GetLoadCaseType(loadCase1) != GetLoadCaseType(loadCase2)) {
        zel::showMessage("IDS_ZEL_CMD__ADDD__Types_of_two_loadcases_are_different_");
        return false;
    }
    if (loadCase1.GetCurSel() == loadCase2.GetCurSel()) {
        zel::showMessage("IDS_ZEL_CMD__ADDD__Two_loadcases_are_identical_");
        return false;
    }
    m_name1 = loadCase1.selectedName();
    m_name2 = loadCase2.selectedName();
    pair.case1 = GetStldKey(m_name1);
    pair.case2 = GetStldKey(m_name2);
    return true;
}

bool CCmdSetOrthoLCDlg::ValidItem(const T_LCOE_BASE& pair)
{
    if (pair.case1 == 0 || pair.case2 == 0) {
        zel::showMessage("IDS_ZEL_CMD__ADDD__Invalid_loadcase_key_");
        return false;
    }
    const CString forbidden = forbiddenCases(m_name1, m_name2);
    if (forbidden.empty())
        return true;
    zel::showMessage("IDS_ZEL_CMD__ADDD__Invalid_loadcase_key_EQ", {forbidden});
    return false;
}

bool CCmdSetOrthoLCDlg::ValidItem(const T_LCOE_BASE& pair, CString& message)
{
    if (pair.case1 == 0 || pair.case2 == 0) {
        message = zel::loadText("IDS_ZEL_CMD__ADDD__Invalid_loadcase_key_");
        return false;
    }
    const CString forbidden = forbiddenCases(m_name1, m_name2);
    if (forbidden.empty())
        return true;
    const CString where = zel::formatText("%s of case (%s,%s)", {forbidden, m_name1, m_name2});
    message = zel::formatText(zel::loadText("IDS_ZEL_CMD__ADDD__Invalid_loadcase_key_EQ"), {where});
    return false;
}

bool CCmdSetOrthoLCDlg::HasPair(const T_LCOE_BASE& pair, int skipRow)
{
    for (std::size_t row = 0; row < items().size(); ++row) {
        const T_LCOE_BASE& other = items()[row];
        const bool same = other == pair || (other.case1 == pair.case2 && other.case2 == pair.case1);
        if (same && static_cast<int>(row) != skipRow)
            return true;
    }
    return false;
}

bool CCmdSetOrthoLCDlg::IsOnlyOne(const T_LCOE_BASE& pair, int skipRow)
{
    if (!HasPair(pair, skipRow))
        return true;
    zel::showMessage(skipRow < 0 ? "IDS_ZEL_CMD__ADDD__An_identical_load_case_is_already_assigned_"
                                 : "IDS_ZEL_CMD__ADDD__An_identical_load_group_already_exists_");
    return false;
}

void CCmdSetOrthoLCDlg::SetLoadCaseCombo(zel::LoadCaseCombo& combo, zel::Key key)
{
    zel::selectText(combo, zel::staticCaseText(CDataStld().GetNameByKey(key)));
}

void CCmdSetOrthoLCDlg::Item2Dlg(const T_LCOE_BASE& pair)
{
    SetLoadCaseCombo(loadCase1, pair.case1);
    SetLoadCaseCombo(loadCase2, pair.case2);
}

void CCmdSetOrthoLCDlg::OnChangedCurrentItem()
{
    int row = 0;
    Item2Dlg(GetSelectedItem(row) != 0 ? items()[static_cast<std::size_t>(row)] : T_LCOE_BASE());
}

void CCmdSetOrthoLCDlg::OnCmdOLGAuto()
{
    for (int i = 0; i + 1 < loadCase1.GetCount(); ++i) {
        for (int j = i + 1; j < loadCase2.GetCount(); ++j) {
            if (loadCase1.GetLoadCaseType(i) != loadCase2.GetLoadCaseType(j))
                continue;
            const T_LCOE_BASE pair{GetStldKey(zel::staticCaseName(loadCase1.GetItemText(i))), GetStldKey(zel::staticCaseName(loadCase2.GetItemText(j)))};
            if (pair.case1 == 0 || pair.case2 == 0 || HasPair(pair, -1))
                continue;
            AppendItem(pair);
        }
    }
}

bool CCmdSetOrthoLCDlg::Dlg2Data()
{
    CString failures;
    for (int row = 0; row < list.GetItemCount(); ++row) {
        m_name1 = zel::staticCaseName(list.GetItemText(row, 1));
        m_name2 = zel::staticCaseName(list.GetItemText(row, 2));
        CString message;
        if (!ValidItem(items()[static_cast<std::size_t>(row)], message))
            failures += message + "\n";
    }
    if (failures.empty())
        return true;
    AfxMessageBox(failures, MB_OK, 0);
    return false;
}

/// Only a deletion takes rows away, found by what the table answers for the deleted name: pairs are keys, and a case that is
/// changed keeps its own.
void CCmdSetOrthoLCDlg::FollowLoadCases(const CViewBuff& buffer)
{
    zel::readChanges(buffer, zel::TableWatch<CDataStld>{.deleted = [this](const CDataStld& before) {
                         const zel::Key key = GetStldKey(before.currentRecord.name);
                         for (int row = list.GetItemCount() - 1; key != 0 && row >= 0; --row) {
                             const T_LCOE_BASE& pair = items()[static_cast<std::size_t>(row)];
                             if (pair.case1 == key || pair.case2 == key)
                                 RemoveRow(row);
                         }
                     }});
}
