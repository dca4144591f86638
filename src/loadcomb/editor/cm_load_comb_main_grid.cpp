#include "loadcomb/editor/cm_load_comb_main_grid.h"

#include "command/messages.h"

void CCMLoadCombMainGrid::AddColumns()
{
    AddNo();
    AddName();
    AddActive();
    AddDescription();
}

bool CCMLoadCombMainGrid::ValidateField(const CString& /*text*/, ColumnIndex column)
{
    if (column < GetColCount())
        return true;
    SetWarningText(zel::loadText("IDS_ZEL_CMD___CCMLoadCombMainGrid__ValidateField__E"));
    return false;
}
