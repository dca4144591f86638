#include "load/scale_up_form.h"

#include "command/load_cases.h"
#include "command/messages.h"
#include "contract/tables/static_load_case_table.h"

#include <algorithm>

namespace zel {

namespace {

// Factors outside this range are unusual.
constexpr double smallestFactor = 1.0;
constexpr double greatestFactor = 10.0;

enum Column { factorColumn, loadCaseColumn, eccentricColumn };

/// Name of a load case as the list shows it: no case is "NONE".
CString nameOf(Key key)
{
    return key == 0 ? loadText("IDS_ZEL_CMD__NONE") : CDataStld().GetNameByKey(key);
}

}  // namespace

ScaleUpForm::ScaleUpForm(CDialog& dialog, const Words& words, const Manner& manner)
    : group(dialog, words.group), loadCase(group, words.caseId, words.caseLabel), m_words(words), m_manner(manner)
{
    esLoadCase.enabledWhen([this] { return eccentricity.GetCheck(); });
}

void ScaleUpForm::InitListCtrl_RS()
{
    ClearScaleUps();
    list.DeleteAllColumns();
    list.AddColumn(loadText("IDS_ZEL_CMD__Factor"), 65);
    list.AddColumn(loadText(m_words.caseTitle), 95);
    list.AddColumn(loadText("IDS_ZEL_CMD_ES_Load_Name"), 95);
}

void ScaleUpForm::SetComboBox_RS(const std::function<bool(const T_STLD_D&)>& offers)
{
    for (CComboBox* combo : {&loadCase, &esLoadCase}) {
        combo->ResetContent();
        addLoadCases(*combo, offers);
        combo->SetCurSel(combo->GetCount() > 0 ? 0 : -1);
    }
}

void ScaleUpForm::Show_EditComboBox(bool enable)
{
    for (Control* field :
         {static_cast<Control*>(&scaleUpFactor), static_cast<Control*>(&loadCase), static_cast<Control*>(&eccentricity), static_cast<Control*>(&esLoadCase)})
        field->EnableWindow(enable);
}

void ScaleUpForm::ClearScaleUps()
{
    m_factors.clear();
    m_eccentricKeys.clear();
    m_shown.clear();
    list.DeleteAllItems();
}

std::vector<T_LCUG_SF> ScaleUpForm::ScaleUps() const
{
    std::vector<T_LCUG_SF> entries;
    std::vector<Key> keys;
    CDataStld().GetKeyList(keys);
    for (const Key key : keys) {
        const auto factor = m_factors.find(key);
        if (factor == m_factors.end())
            continue;
        const auto eccentric = m_eccentricKeys.find(key);
        entries.push_back({factor->second, key, eccentric != m_eccentricKeys.end() ? eccentric->second : 0});
    }
    return entries;
}

// What the fields hold

bool ScaleUpForm::CheckRSSameLC() const
{
    if (!eccentricity.GetCheck() || loadCase.GetCurSel() < 0 || loadCase.GetCurSel() != esLoadCase.GetCurSel())
        return true;
    showMessage("IDS_ZEL_CMD__Error_SAME_LC_SELECTED");
    return false;
}

bool ScaleUpForm::CheckRSScaleFactor() const
{
    double factor = 0.0;
    const bool isNumber = scaleUpFactor.GetEditValue(factor) != 0;
    if (isNumber && factor >= smallestFactor && factor <= greatestFactor)
        return true;
    showMessage("IDS_ZEL_CMD__Warning___Check_Scale_Up_Factor_____n_");
    return isNumber && !m_manner.refusesOddFactors;
}

Key ScaleUpForm::GetKey() const
{
    return CDataStld().GetKeyByName(loadCase.GetWindowText());
}

Key ScaleUpForm::GetEccentricKey() const
{
    return eccentricity.GetCheck() ? CDataStld().GetKeyByName(esLoadCase.GetWindowText()) : 0;
}

bool ScaleUpForm::IsInPair(Key key, Key eccentricKey, Key except) const
{
    return std::ranges::any_of(m_eccentricKeys, [=](const auto& pair) {
        const auto has = [&pair](Key wanted) { return wanted != 0 && (pair.first == wanted || pair.second == wanted); };
        return !has(except) && (has(key) || has(eccentricKey));
    });
}

bool ScaleUpForm::CheckRSName(const CString& name, int& row) const
{
    for (int each = 0; each < list.GetItemCount(); ++each) {
        if (list.GetItemText(each, loadCaseColumn) == name) {
            row = each;
            return true;
        }
    }
    return false;
}

const T_LCUG_SF* ScaleUpForm::ScaleUpAt(int row) const
{
    return row >= 0 && static_cast<std::size_t>(row) < m_shown.size() ? &m_shown[static_cast<std::size_t>(row)] : nullptr;
}

// Add, Modify, Delete

void ScaleUpForm::Add()
{
    if (!CheckRSSameLC() || !CheckRSScaleFactor())
        return;
    if (loadCase.GetCurSel() < 0)
        showMessage("IDS_ZEL_CMD__Error___Not_Selected_Earthquake_Load_C");
    else
        AddDataToScList(scaleUpFactor.GetEditValue(), GetKey(), GetEccentricKey());
}

void ScaleUpForm::AddDataToScList(double factor, Key key, Key eccentricKey)
{
    if (key == 0)
        return;
    const bool isPair = m_manner.testsPairsByTheBox ? eccentricity.GetCheck() : eccentricKey != 0;
    if (!isPair || !IsInPair(key, eccentricKey, 0)) {
        Store({factor, key, eccentricKey});
        return;
    }
    if (m_manner.keepsRefusedFactors)
        m_factors[key] = factor;
    showMessage("IDS_ZEL_CMD__ADDD__Error___Exist_Eccentric_Data____");
}

void ScaleUpForm::Modify()
{
    if (!CheckRSSameLC())
        return;
    const int row = list.GetFirstSelected();
    const T_LCUG_SF* selected = ScaleUpAt(row);
    if (selected == nullptr) {
        showMessage("IDS_ZEL_CMD__Error___Not_Selected_Data____");
        return;
    }
    if (!CheckRSScaleFactor())
        return;
    if (loadCase.GetCurSel() < 0) {
        showMessage("IDS_ZEL_CMD__Error___Check_Load_Case____");
        return;
    }
    const T_LCUG_SF entry{scaleUpFactor.GetEditValue(), GetKey(), GetEccentricKey()};
    if (IsInPair(entry.loadCaseKey, entry.eccentricKey, selected->loadCaseKey)) {
        showMessage("IDS_ZEL_CMD__ADDD__Error___Exist_Eccentric_Data____");
        return;
    }
    Forget(selected->loadCaseKey);
    m_factors[entry.loadCaseKey] = entry.factor;
    m_eccentricKeys[entry.loadCaseKey] = entry.eccentricKey;
    Write_RSListCtrlBox(row, entry);
}

void ScaleUpForm::Delete()
{
    int row = list.GetFirstSelected();
    if (row < 0) {
        showMessage("IDS_ZEL_CMD__Error___Not_Selected_Data____");
        return;
    }
    Forget(ScaleUpAt(row)->loadCaseKey);
    m_shown.erase(m_shown.begin() + row);
    list.DeleteItem(row);
    if (list.GetItemCount() <= row)
        --row;
    if (row >= 0)
        list.SelectOnly(row);
    if (m_manner.deletionShowsNext)
        ShowSelected();
}

void ScaleUpForm::ShowSelected()
{
    const T_LCUG_SF* selected = ScaleUpAt(list.GetFirstSelected());
    if (selected == nullptr)
        return;
    scaleUpFactor.SetEditUnit(selected->factor);
    loadCase.SetCurSel(loadCase.FindData(selected->loadCaseKey));
    esLoadCase.SetCurSel(selected->eccentricKey != 0 ? esLoadCase.FindData(selected->eccentricKey) : -1);
    if (selected->eccentricKey != 0 && m_manner.rowsTickTheBox)
        eccentricity.SetCheck(true);
}

// Maps and rows

void ScaleUpForm::Store(const T_LCUG_SF& entry)
{
    m_factors[entry.loadCaseKey] = entry.factor;
    m_eccentricKeys[entry.loadCaseKey] = entry.eccentricKey;
    int row = 0;
    if (!CheckRSName(nameOf(entry.loadCaseKey), row)) {
        row = list.InsertItem(list.GetItemCount());
        m_shown.push_back(entry);
        Write_RSListCtrlBox(row, entry);
    } else if (askYesNo("IDS_ZEL_CMD__Existed_Earthquake_Load_Case_____nModi")) {
        Write_RSListCtrlBox(row, entry);
    }
}

void ScaleUpForm::Forget(Key key)
{
    m_factors.erase(key);
    m_eccentricKeys.erase(key);
}

void ScaleUpForm::Write_RSListCtrlBox(int row, const T_LCUG_SF& entry)
{
    m_shown[static_cast<std::size_t>(row)] = entry;
    list.SetItemText(row, factorColumn, numberText("%10.3f", entry.factor));
    list.SetItemText(row, loadCaseColumn, nameOf(entry.loadCaseKey));
    list.SetItemText(row, eccentricColumn, nameOf(entry.eccentricKey));
    list.SelectOnly(row);
}

}  // namespace zel
