#include "load/cmd_set_ortho_lc_dlg.h"

#include "command/dialog_class.h"
#include "contract/load_types.h"
#include "contract/tables/static_load_case_table.h"

ZEL_DIALOG(CCmdSetOrthoLCDlg)

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

std::vector<zel::FieldColumn> CCmdSetOrthoLCDlg::Columns() const
{
    return {
        {zel::loadText("IDS_ZEL_CMD_Orthgonal_Effect_Group_No"), 70},
        {zel::loadText("IDS_ZEL_CMD_Orthgonal_Effect_Load_Case_1"), 60, &loadCase1},
        {zel::loadText("IDS_ZEL_CMD_Orthgonal_Effect_Load_Case_2"), 60, &loadCase2},
    };
}

bool CCmdSetOrthoLCDlg::Dlg2Item(T_LCOE_BASE& pair)
{
    if (loadCase1.GetCurSel() < 0 && loadCase2.GetCurSel() < 0) {
        zel::showMessage("IDS_ZEL_CMD__ADDD__Loadcase_was_not_selected_");
        return false;
    }
    if (loadCase1.GetLoadCaseType(loadCase1.GetCurSel()) != loadCase2.GetLoadCaseType(loadCase2.GetCurSel())) {
        zel::showMessage("IDS_ZEL_CMD__ADDD__Types_of_two_loadcases_are_different_");
        return false;
    }
    if (loadCase1.GetCurSel() == loadCase2.GetCurSel()) {
        zel::showMessage("IDS_ZEL_CMD__ADDD__Two_loadcases_are_identical_");
        return false;
    }
    return CSetDialog::Dlg2Item(pair);
}

bool CCmdSetOrthoLCDlg::ValidItem(const T_LCOE_BASE& pair)
{
    CString message;
    if (ValidItem(pair, message))
        return true;
    AfxMessageBox(message, MB_OK, 0);
    return false;
}

bool CCmdSetOrthoLCDlg::ValidItem(const T_LCOE_BASE& pair, CString& message)
{
    if (pair.case1 != 0 && pair.case2 != 0)
        return true;
    message = zel::loadText("IDS_ZEL_CMD__ADDD__Invalid_loadcase_key_");
    return false;
}

bool CCmdSetOrthoLCDlg::HasPair(const T_LCOE_BASE& pair, int skipRow)
{
    const T_LCOE_BASE reversed{pair.case2, pair.case1};
    return HasAnotherRow(skipRow, [&](const T_LCOE_BASE& other) { return other == pair || other == reversed; });
}

bool CCmdSetOrthoLCDlg::IsOnlyOne(const T_LCOE_BASE& pair, int skipRow)
{
    if (!HasPair(pair, skipRow))
        return true;
    zel::showMessage(skipRow < 0 ? "IDS_ZEL_CMD__ADDD__An_identical_load_case_is_already_assigned_"
                                 : "IDS_ZEL_CMD__ADDD__An_identical_load_group_already_exists_");
    return false;
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
            const T_LCOE_BASE pair{loadCase1.keyAt(i), loadCase2.keyAt(j)};
            if (pair.case1 == 0 || pair.case2 == 0 || HasPair(pair, -1))
                continue;
            AppendItem(pair);
        }
    }
}

bool CCmdSetOrthoLCDlg::Dlg2Data()
{
    CString failures;
    for (const T_LCOE_BASE& pair : items()) {
        CString message;
        if (!ValidItem(pair, message))
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
