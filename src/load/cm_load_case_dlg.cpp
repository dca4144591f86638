#include "load/cm_load_case_dlg.h"

#include "command/dialog_class.h"
#include "command/messages.h"
#include "contract/document.h"
#include "contract/load_db.h"
#include "contract/tables/static_load_case_table.h"

#include <algorithm>

namespace {

/// Numbers beyond it can be typed, but are not listed one by one.
constexpr int mostListedCases = 100000;

}  // namespace

ZEL_DIALOG(CCMLoadCaseDlg)

CCMLoadCaseDlg::CCMLoadCaseDlg(CWnd* parent) : CDBDlgBase(14047, "Static Load Cases", parent)
{
    combinationType.enabledWhen([this] { return SubLoadCaseCount() >= 1; });
    majorCase.enabledWhen([this] { return HasMajorCase(); });
}

CCMLoadCaseDlg::~CCMLoadCaseDlg() = default;

int CCMLoadCaseDlg::OnInitDialog()
{
    CDBDlgBase::OnInitDialog();
    grid.Initialize();
    InitTypes();
    subLoadCaseCount.SetWindowText("0");
    combinationType.SetCurSel(combinationType.FindData(srssWithMaximum));
    RefreshMajorCases();
    subLoadCaseSpin.SetRange(0, 100);
    return 1;
}

void CCMLoadCaseDlg::InitTypes()
{
    const CLoadDB& catalogue = *m_pDoc->GetLoadDB();
    CArray<CString, CString&> codes;
    catalogue.GetLoadTypeList(&codes);
    type.ResetContent();
    for (const CString& code : codes)
        type.AddCode(code, catalogue.GetLoadTypeName(code));
}

int CCMLoadCaseDlg::SubLoadCaseCount() const
{
    int count = 0;
    return CEditUnit::GetEditValue(&subLoadCaseCount, count) != 0 ? count : 0;
}

bool CCMLoadCaseDlg::HasMajorCase() const
{
    return SubLoadCaseCount() >= 1 && combinationType.selectedData() == srssWithMajorCase;
}

/// Lists the numbers of the sub-load cases, where one can be the major one. What was selected stays, also when the list has just
/// become too short for it by one.
void CCMLoadCaseDlg::RefreshMajorCases()
{
    const int count = SubLoadCaseCount();
    const int selected = majorCase.GetCurSel();
    majorCase.ResetContent();
    if (!HasMajorCase())
        return;
    for (int number = 1; number <= std::min(count, mostListedCases); ++number)
        majorCase.AddString(std::to_string(number));
    majorCase.SetCurSel(selected >= 0 && selected <= count ? selected : 0);
}

bool CCMLoadCaseDlg::Dlg2Data()
{
    m_record.Initialize();
    if (!zel::readFields(*this, m_record))
        return false;
    m_record.majorCase = majorCase.GetCurSel() + 1;
    return true;
}

/// A record of a type that the catalogue does not have is not shown.
void CCMLoadCaseDlg::Data2Dlg()
{
    if (type.FindCode(m_record.type) < 0)
        return;
    zel::showFields(*this, m_record);
    RefreshMajorCases();
    if (m_record.majorCase > 0)
        majorCase.SetCurSel(m_record.majorCase - 1);
}

/// Shows the load case of a row of the grid in the form.
void CCMLoadCaseDlg::OnLoadCase(zel::Row row)
{
    if (CDataStld().Get(grid.KeyOf(row), m_record) != 0)
        Data2Dlg();
}

void CCMLoadCaseDlg::OnAdd()
{
    if (!Dlg2Data()) {
        zel::showMessage("IDS_ZEL_CMD__Error___Input_data_error_");
        return;
    }
    CDataStld data;
    const CString added = m_record.name;
    if (data.Add(m_record) != 0 && data.Get(added) != 0)
        grid.ShowLoadCase(data.currentKey, data.currentRecord);
    name.SetFocus();
    name.SetSel(0, -1);
}

void CCMLoadCaseDlg::OnModify()
{
    CDataStld data;
    if (data.Get(grid.GetCurrentKey()) == 0) {
        zel::showMessage("IDS_ZEL_CMD__Error___No_selected_static_load_case_");
        return;
    }
    const CString oldName = data.currentRecord.name;
    if (!Dlg2Data())
        return;
    m_record.no = data.currentRecord.no;
    data.currentRecord = m_record;
    data.Modify(oldName);
}

void CCMLoadCaseDlg::OnDelete()
{
    const CArray<zel::Row> selected = grid.GetSelectedRows();
    if (!selected.empty())
        grid.DeleteFromDB(selected);
    else if (grid.IsDataRow(grid.GetCurrentRow()))
        grid.DeleteFromDB(grid.GetCurrentRow());
    else
        zel::showMessage("IDS_ZEL_CMD__Error___No_selected_static_load_case_");
}

int CCMLoadCaseDlg::DestroyWindow()
{
    grid.OnTerminate(2);
    return CDBDlgBase::DestroyWindow();
}
