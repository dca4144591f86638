#include "load/scale_up_form.h"

#include "command/messages.h"
#include "contract/tables/static_load_case_table.h"

#include <algorithm>

namespace zel {

void ScaleUpForm::InitListCtrl_RS(const char* loadCaseTitle)
{
    ClearScaleUps();
    CListCtrl& list = ScaleUpList();
    list.DeleteAllColumns();
    list.AddColumn(loadText("IDS_ZEL_CMD__Factor"), 65);
    list.AddColumn(loadText(loadCaseTitle), 95);
    list.AddColumn(loadText("IDS_ZEL_CMD_ES_Load_Name"), 95);
}

void ScaleUpForm::ClearScaleUps()
{
    m_factors.clear();
    m_eccentricKeys.clear();
    m_shown.clear();
    ScaleUpList().DeleteAllItems();
}

bool ScaleUpForm::IsInPair(Key key, Key eccentricKey, Key except) const
{
    return std::ranges::any_of(m_eccentricKeys, [=](const auto& pair) {
        const auto has = [&pair](Key wanted) { return wanted != 0 && (pair.first == wanted || pair.second == wanted); };
        return !has(except) && (has(key) || has(eccentricKey));
    });
}

bool ScaleUpForm::CheckRSName(const CString& name, int& row)
{
    const CListCtrl& list = ScaleUpList();
    for (int each = 0; each < list.GetItemCount(); ++each) {
        if (list.GetItemText(each, loadCaseColumn) == name) {
            row = each;
            return true;
        }
    }
    return false;
}

void ScaleUpForm::StoreScaleUp(const T_LCUG_SF& entry)
{
    m_factors[entry.loadCaseKey] = entry.factor;
    m_eccentricKeys[entry.loadCaseKey] = entry.eccentricKey;

    const CString name = ScaleUpName(entry.loadCaseKey);
    const CString eccentricName = ScaleUpName(entry.eccentricKey);
    int row = 0;
    if (!CheckRSName(name, row)) {
        row = ScaleUpList().InsertItem(ScaleUpList().GetItemCount());
        m_shown.push_back(entry);
        Write_RSListCtrlBox(row, entry.factor, name, eccentricName);
    } else if (askYesNo("IDS_ZEL_CMD__Existed_Earthquake_Load_Case_____nModi")) {
        m_shown[static_cast<std::size_t>(row)] = entry;
        OverWrite_RSListCtrlBox(row, entry.factor, name, eccentricName);
    }
}

void ScaleUpForm::ReplaceScaleUp(int row, const T_LCUG_SF& entry)
{
    T_LCUG_SF& shown = m_shown[static_cast<std::size_t>(row)];
    m_factors.erase(shown.loadCaseKey);
    m_eccentricKeys.erase(shown.loadCaseKey);
    m_factors[entry.loadCaseKey] = entry.factor;
    m_eccentricKeys[entry.loadCaseKey] = entry.eccentricKey;
    shown = entry;
    OverWrite_RSListCtrlBox(row, entry.factor, ScaleUpName(entry.loadCaseKey), ScaleUpName(entry.eccentricKey));
}

void ScaleUpForm::RemoveScaleUp(int row)
{
    const T_LCUG_SF shown = m_shown[static_cast<std::size_t>(row)];
    m_factors.erase(shown.loadCaseKey);
    m_eccentricKeys.erase(shown.loadCaseKey);
    m_shown.erase(m_shown.begin() + row);
    CListCtrl& list = ScaleUpList();
    list.DeleteItem(row);
    if (list.GetItemCount() <= row)
        --row;
    if (row >= 0)
        list.SelectOnly(row);
}

const T_LCUG_SF* ScaleUpForm::ScaleUpAt(int row) const
{
    return row >= 0 && static_cast<std::size_t>(row) < m_shown.size() ? &m_shown[static_cast<std::size_t>(row)] : nullptr;
}

void ScaleUpForm::Write_RSListCtrlBox(int row, double factor, const CString& name, const CString& eccentricName)
{
    CListCtrl& list = ScaleUpList();
    list.SetItemText(row, factorColumn, numberText("%10.3f", factor));
    list.SetItemText(row, loadCaseColumn, name);
    list.SetItemText(row, eccentricColumn, eccentricName);
    list.SelectOnly(row);
}

void ScaleUpForm::OverWrite_RSListCtrlBox(int row, double factor, const CString& name, const CString& eccentricName)
{
    Write_RSListCtrlBox(row, factor, name, eccentricName);
}

CString ScaleUpForm::ScaleUpName(Key key)
{
    return key == 0 ? loadText("IDS_ZEL_CMD__NONE") : CDataStld().GetNameByKey(key);
}

}  // namespace zel
