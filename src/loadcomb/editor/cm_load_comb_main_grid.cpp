#include "loadcomb/editor/cm_load_comb_main_grid.h"

#include "command/messages.h"
#include "loadcomb/editor/cm_load_comb_dlg.h"

CCMLoadCombMainGrid::CCMLoadCombMainGrid(CCMLoadCombDlg& dialog, std::string_view id, int kind) : CombinationGrid(dialog, id, kind), m_dialog(dialog) {}

void CCMLoadCombMainGrid::AddColumns()
{
    AddNo();
    AddName();
    AddActive();
    AddDescription();
}

void CCMLoadCombMainGrid::OnCurrentRowChanged(int row)
{
    m_dialog.ShowItems(KeyOf(row));
}

bool CCMLoadCombMainGrid::ValidateField(const CString& /*text*/, int column)
{
    if (column < GetColCount())
        return true;
    SetWarningText(zel::loadText("IDS_ZEL_CMD___CCMLoadCombMainGrid__ValidateField__E"));
    return false;
}
