#include "load/load_case_underground_dlg.h"

#include "command/dialog_class.h"
#include "command/load_cases.h"
#include "command/messages.h"
#include "contract/load_types.h"
#include "contract/messages.h"
#include "contract/tables/static_load_case_table.h"
#include "load/under_seis_factor.h"

namespace {

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

ZEL_DIALOG(CLoadCaseUndergroundDlg)

CLoadCaseUndergroundDlg::CLoadCaseUndergroundDlg(CWnd* parent) : CDlgMove(14111, "Set Load Cases for Underground Load", parent) {}

CLoadCaseUndergroundDlg::~CLoadCaseUndergroundDlg() = default;

int CLoadCaseUndergroundDlg::OnInitDialog()
{
    CDlgMove::OnInitDialog();
    ReadRecord();
    InitCtrl();
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
        for (const int direction : {zel::plusDirection, zel::minusDirection})
            m_record.groups.push_back({keys[i], direction, {}, {}});
        ++proposed;
    }
}

void CLoadCaseUndergroundDlg::InitCtrl()
{
    m_rowName = noRow();
    scaleUps.InitListCtrl_RS();
    scaleUps.SetComboBox_RS([](const T_STLD_D& record) { return record.type.starts_with('E'); });
    scaleUps.Show_EditComboBox(scaleUps.loadCase.GetCount() > 0);
    SetListCtrl_Seis();
    grid.Initialize();
}

void CLoadCaseUndergroundDlg::Data2Dlg()
{
    scaleUps.scaleUpFactor.SetEditUnit(T_LCUG_SF().factor);
    for (const T_LCUG_SF& entry : m_record.scaleUps)
        scaleUps.AddDataToScList(entry.factor, entry.loadCaseKey, entry.eccentricKey);
    grid.SetData(m_record.groups);
    grid.RebuildRows();
}

void CLoadCaseUndergroundDlg::Dlg2Data()
{
    m_record.groups = grid.GetData();
    m_record.scaleUps = scaleUps.ScaleUps();
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

void CLoadCaseUndergroundDlg::OnChangedGridRow(zel::Row row)
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
