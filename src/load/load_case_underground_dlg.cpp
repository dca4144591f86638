#include "load/load_case_underground_dlg.h"

#include "command/load_cases.h"
#include "command/messages.h"
#include "contract/forms/dialog_names.h"
#include "contract/load_types.h"
#include "contract/messages.h"
#include "contract/tables/static_load_case_table.h"
#include "load/under_seis_factor.h"

ZEL_DIALOG_NAME(CLoadCaseUndergroundDlg)

namespace {

// The scale-up factor may be as small and as great as these.
constexpr double smallestFactor = 1.0;
constexpr double greatestFactor = 10.0;

constexpr int proposedCases = 2;

CString noRow()
{
    return zel::loadText("IDS_ZEL_CMD__None");
}

CArray<zel::Key> tickedKeys(const CCheckListBox& list, bool all)
{
    CArray<zel::Key> keys;
    for (int line = 0; line < list.GetCount(); ++line) {
        if (all || list.GetCheck(line))
            keys.push_back(static_cast<zel::Key>(list.GetItemData(line)));
    }
    return keys;
}

void tickKeys(CCheckListBox& list, const CArray<zel::Key>& keys)
{
    for (const zel::Key key : keys)
        list.SetCheck(list.FindData(key));
}

}  // namespace

CLoadCaseUndergroundDlg::CLoadCaseUndergroundDlg(CWnd* parent) : CDlgMove(14111, "Set Load Cases for Underground Load", parent)
{
    esLoadCase.enabledWhen([this] { return eccentricity.GetCheck(); });
}

CLoadCaseUndergroundDlg::~CLoadCaseUndergroundDlg() = default;

int CLoadCaseUndergroundDlg::OnInitDialog()
{
    CDlgMove::OnInitDialog();
    ReadRecord();
    InitCtrl();
    OnCmdConsEccentricity();
    Data2Dlg();
    if (grid.IsDataRow(1) && grid.MakeRowCurrent(1) != 0)
        grid.ShowCurrentRow();
    return 1;
}

/// Without a stored record the first two earthquake cases are proposed, each in both directions.
void CLoadCaseUndergroundDlg::ReadRecord()
{
    if (CDataLcug().Get(m_record) != 0)
        return;
    m_record.Initialize();
    std::vector<zel::Key> keys;
    std::vector<T_STLD_D> records;
    CDataStld().GetList(keys, records);
    int proposed = 0;
    for (std::size_t i = 0; i < keys.size() && proposed < proposedCases; ++i) {
        if (records[i].type != zel::load_type::earthquake)
            continue;
        for (const int direction : {0, 1})
            m_record.groups.push_back({keys[i], direction, {}, {}});
        ++proposed;
    }
}

void CLoadCaseUndergroundDlg::InitCtrl()
{
    m_rowName = noRow();
    InitListCtrl_RS("IDS_ZEL_CMD__Load_Case");
    SetComboBox_RS();
    SetListCtrl_Seis();
    grid.Initialize();
}

void CLoadCaseUndergroundDlg::Data2Dlg()
{
    scaleUpFactor.SetEditUnit(T_LCUG_SF().factor);
    for (const T_LCUG_SF& entry : m_record.scaleUps)
        AddDataToScList(entry.factor, entry.loadCaseKey, entry.eccentricKey);
    grid.SetData(m_record.groups);
    grid.RebuildRows();
}

/// The stored order is that of the load cases.
void CLoadCaseUndergroundDlg::Dlg2Data()
{
    m_record.groups = grid.GetData();
    m_record.scaleUps.clear();
    std::vector<zel::Key> keys;
    CDataStld().GetKeyList(keys);
    for (const zel::Key key : keys) {
        if (const auto found = m_factors.find(key); found != m_factors.end()) {
            const auto eccentric = m_eccentricKeys.find(key);
            m_record.scaleUps.push_back({found->second, key, eccentric != m_eccentricKeys.end() ? eccentric->second : 0});
        }
    }
}

// Scale-up of seismic load cases

void CLoadCaseUndergroundDlg::SetComboBox_RS()
{
    const auto isSeismic = [](const T_STLD_D& record) { return record.type.starts_with('E'); };
    for (CComboBox* combo : {&loadCase, &esLoadCase}) {
        combo->ResetContent();
        zel::addLoadCases(*combo, isSeismic);
        combo->SetCurSel(combo->GetCount() > 0 ? 0 : -1);
    }
    Show_EditComboBox(loadCase.GetCount() > 0);
}

void CLoadCaseUndergroundDlg::Show_EditComboBox(bool enable)
{
    scaleUpFactor.EnableWindow(enable);
    loadCase.EnableWindow(enable);
    eccentricity.EnableWindow(enable);
    esLoadCase.EnableWindow(enable);
}

void CLoadCaseUndergroundDlg::AddDataToScList(double factor, zel::Key key, zel::Key eccentricKey)
{
    if (key == 0)
        return;
    m_factors[key] = factor;
    if (eccentricKey != 0 && IsInPair(key, eccentricKey, 0)) {
        zel::showMessage("IDS_ZEL_CMD__ADDD__Error___Exist_Eccentric_Data____");
        return;  // the factor stays
    }
    StoreScaleUp({factor, key, eccentricKey});
}

bool CLoadCaseUndergroundDlg::CheckRSSameLC()
{
    if (loadCase.GetCurSel() != esLoadCase.GetCurSel())
        return true;
    zel::showMessage("IDS_ZEL_CMD__Error_SAME_LC_SELECTED");
    return false;
}

bool CLoadCaseUndergroundDlg::CheckRSScaleFactor()
{
    const double factor = scaleUpFactor.GetEditValue();
    if (factor >= smallestFactor && factor <= greatestFactor)
        return true;
    zel::showMessage("IDS_ZEL_CMD__Warning___Check_Scale_Up_Factor_____n_");
    return false;
}

zel::Key CLoadCaseUndergroundDlg::GetKey() const
{
    return CDataStld().GetKeyByName(loadCase.GetWindowText());
}

zel::Key CLoadCaseUndergroundDlg::GetEccentricKey() const
{
    return eccentricity.GetCheck() ? CDataStld().GetKeyByName(esLoadCase.GetWindowText()) : 0;
}

void CLoadCaseUndergroundDlg::OnCmdLoadcombScAddBtn()
{
    if (eccentricity.GetCheck() && !CheckRSSameLC())
        return;
    if (!CheckRSScaleFactor())
        return;
    if (loadCase.GetCurSel() < 0) {
        zel::showMessage("IDS_ZEL_CMD__Error___Not_Selected_Earthquake_Load_C");
        return;
    }
    AddDataToScList(scaleUpFactor.GetEditValue(), GetKey(), GetEccentricKey());
}

void CLoadCaseUndergroundDlg::OnCmdLoadcombScModBtn()
{
    if (eccentricity.GetCheck() && !CheckRSSameLC())
        return;
    const int row = list.GetFirstSelected();
    const T_LCUG_SF* selected = ScaleUpAt(row);
    if (selected == nullptr) {
        zel::showMessage("IDS_ZEL_CMD__Error___Not_Selected_Data____");
        return;
    }
    if (!CheckRSScaleFactor())
        return;
    if (loadCase.GetCurSel() < 0) {
        zel::showMessage("IDS_ZEL_CMD__Error___Check_Load_Case____");
        return;
    }
    if (IsInPair(GetKey(), GetEccentricKey(), selected->loadCaseKey)) {
        zel::showMessage("IDS_ZEL_CMD__ADDD__Error___Exist_Eccentric_Data____");
        return;
    }
    ReplaceScaleUp(row, {scaleUpFactor.GetEditValue(), GetKey(), GetEccentricKey()});
}

void CLoadCaseUndergroundDlg::OnCmdLoadcombScDelBtn()
{
    const int row = list.GetFirstSelected();
    if (row < 0)
        zel::showMessage("IDS_ZEL_CMD__Error___Not_Selected_Data____");
    else
        RemoveScaleUp(row);
}

void CLoadCaseUndergroundDlg::OnCmdConsEccentricity()
{
    formChanged();  // the second case list follows by its rule
}

void CLoadCaseUndergroundDlg::OnItemchangedCmdLoadcombScList()
{
    const int row = list.GetFirstSelected();
    if (row < 0)
        return;
    scaleUpFactor.SetEditUnit(ScaleUpAt(row)->factor);
    zel::selectText(loadCase, list.GetItemText(row, loadCaseColumn));
    zel::selectText(esLoadCase, list.GetItemText(row, eccentricColumn));
}

// Load groups

void CLoadCaseUndergroundDlg::SetListCtrl_Seis()
{
    seismicList.ResetContent();
    zel::addLoadCases(seismicList, [](const T_STLD_D& record) { return record.type == zel::load_type::seismicEarth; });
    staticList.ResetContent();
    zel::addLoadCases(staticList, [](const T_STLD_D& record) { return record.type == zel::load_type::horizontalEarth; });
}

void CLoadCaseUndergroundDlg::SetAllCheck_CheckBoxList(bool check)
{
    for (CCheckListBox* each : {&seismicList, &staticList}) {
        for (int line = 0; line < each->GetCount(); ++line)
            each->SetCheck(line, check);
    }
}

void CLoadCaseUndergroundDlg::SetData_CheckBoxList(const CString& rowName, const CArray<zel::Key>& seismicKeys, const CArray<zel::Key>& staticKeys)
{
    m_rowName = rowName;
    SetAllCheck_CheckBoxList(false);
    if (rowName == CMsgDll::RemoveQuote("\"Append Row\"") || rowName == CMsgDll::RemoveQuote("\"New Row\""))
        return;
    tickKeys(seismicList, seismicKeys);
    tickKeys(staticList, staticKeys);
}

void CLoadCaseUndergroundDlg::GetData_CheckBoxList(CArray<zel::Key>& seismicKeys, CArray<zel::Key>& staticKeys, bool all) const
{
    seismicKeys = tickedKeys(seismicList, all);
    staticKeys = tickedKeys(staticList, all);
}

T_LCUG_SEIS* CLoadCaseUndergroundDlg::TickedGroup()
{
    return m_rowName == noRow() ? nullptr : grid.GroupOf(m_rowName);
}

void CLoadCaseUndergroundDlg::OnChangedGridRow(int row)
{
    if (T_LCUG_SEIS* left = TickedGroup())
        GetData_CheckBoxList(left->seismicKeys, left->staticKeys, false);
    const T_LCUG_SEIS* group = grid.GroupOf(row);
    if (group != nullptr)
        SetData_CheckBoxList(grid.GetRowHeaderText(row), group->seismicKeys, group->staticKeys);
    else
        SetData_CheckBoxList(row > 0 ? grid.GetRowHeaderText(row) : noRow(), {}, {});
}

void CLoadCaseUndergroundDlg::ForgetGridRow()
{
    SetData_CheckBoxList(noRow(), {}, {});
}

void CLoadCaseUndergroundDlg::OnClickCmdSeismicList()
{
    if (T_LCUG_SEIS* group = TickedGroup())
        group->seismicKeys = tickedKeys(seismicList, false);
}

void CLoadCaseUndergroundDlg::OnClickCmdStaticList()
{
    if (T_LCUG_SEIS* group = TickedGroup())
        group->staticKeys = tickedKeys(staticList, false);
}

void CLoadCaseUndergroundDlg::OnCmdLoadcombLcomTypeFactorBtn()
{
    CUnderSeisFactor(this).DoModal();
}

void CLoadCaseUndergroundDlg::OnOK()
{
    if (grid.OnTerminate(1) == 0)
        return;  // the grid has said what is wrong with the row under edit
    Dlg2Data();
    if (CDataLcug().Add(m_record) != 0)
        EndDialog(IDOK);
}
