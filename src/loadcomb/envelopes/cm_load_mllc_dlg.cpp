#include "loadcomb/envelopes/cm_load_mllc_dlg.h"

#include "command/dialog_class.h"
#include "command/load_cases.h"
#include "command/messages.h"
#include "command/record_fields.h"
#include "command/view_buffer.h"
#include "contract/tables/static_load_case_table.h"

#include <algorithm>
#include <array>

namespace {

/// What stands before the names of the combinations of each design kind, from kind 1 on.
constexpr std::array<const char*, 5> prefixes{"CB: ", "DS: ", "DC: ", "DF: ", "DR: "};

}  // namespace

ZEL_DIALOG(CCMLoadMLLCDlg)

CCMLoadMLLCDlg::CCMLoadMLLCDlg(CWnd* parent) : CDlgMove(9210, "Create Load Cases Using Load Combinations", parent)
{
    SetDefButton(apply);
}

CCMLoadMLLCDlg::~CCMLoadMLLCDlg() = default;

int CCMLoadMLLCDlg::OnInitDialog()
{
    CDlgMove::OnInitDialog();
    FillLoadCases();
    FillCombinations();
    CheckAll(true);
    if (loadCase.GetCount() == 0)
        zel::showMessage("IDS_ZEL_CMD__Load_Case_was_not_defined");
    return 1;
}

/// Fills the list anew. The selected load case stays selected while it exists.
void CCMLoadMLLCDlg::FillLoadCases()
{
    const auto selected = static_cast<zel::Key>(loadCase.selectedData());
    loadCase.ResetContent();
    zel::addLoadCases(loadCase, [](const T_STLD_D& /*each*/) { return true; });
    loadCase.SetCurSel(selected != 0 ? loadCase.FindData(selected) : -1);
}

/// Fills the list anew. The selected combination stays selected while it exists.
void CCMLoadMLLCDlg::FillCombinations()
{
    const int line = loadCombination.GetCurSel();
    const Combination selected = line >= 0 ? m_combinations[static_cast<std::size_t>(line)] : Combination{};
    loadCombination.ResetContent();
    m_combinations.clear();
    const CDataLcom combinations;
    for (int kind = 1; kind <= static_cast<int>(prefixes.size()); ++kind) {
        std::vector<zel::Key> keys;
        std::vector<CString> names;
        combinations.GetKeyList(kind, keys);
        combinations.GetNameList(kind, names);
        for (std::size_t i = 0; i < keys.size(); ++i) {
            loadCombination.AddString(prefixes[static_cast<std::size_t>(kind) - 1] + names[i]);
            m_combinations.push_back({kind, keys[i]});
        }
    }
    const auto found = std::ranges::find(m_combinations, selected);
    loadCombination.SetCurSel(found != m_combinations.end() ? static_cast<int>(found - m_combinations.begin()) : -1);
}

void CCMLoadMLLCDlg::OnApply()
{
    const int line = loadCombination.GetCurSel();
    if (line < 0) {
        zel::showMessage("IDS_ZEL_CMD__Error___No_specified_load_combination_");
        return;
    }
    const Combination& chosen = m_combinations[static_cast<std::size_t>(line)];
    T_LCOM_D combination;
    CDataLcom combinations;
    combinations.Get(chosen.kind, chosen.key, combination);
    if (loadCase.GetCurSel() < 0) {
        zel::showMessage("IDS_ZEL_CMD__Error___No_specified_load_case_");
        return;
    }
    T_LOAD_ATTR attributes;
    zel::readFields(*this, attributes);

    m_suspended = true;
    const auto target = static_cast<zel::Key>(loadCase.selectedData());
    if (combinations.MakeLoadsByCombination(combination, target, attributes, deleteCurrentLoads.GetCheck() ? 1 : 0) != 0) {
        loadCombination.SetCurSel(-1);
        loadCase.SetCurSel(-1);
    }
    m_suspended = false;
}

void CCMLoadMLLCDlg::CheckAll(bool check)
{
    const int each = check ? 1 : 0;
    zel::showFields(*this, T_LOAD_ATTR{each, each, each, each, each});
}

void CCMLoadMLLCDlg::UpdateBuffer(const CViewBuff& buffer)
{
    if (!zel::concerns<CDataStld>(buffer) && !zel::concerns<CDataLcom>(buffer))
        return;
    FillLoadCases();
    FillCombinations();
}
