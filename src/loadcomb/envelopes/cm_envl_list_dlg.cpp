#include "loadcomb/envelopes/cm_envl_list_dlg.h"

#include "command/dialog_class.h"
#include "command/messages.h"
#include "command/view_buffer.h"
#include "contract/tables/envelope_table.h"
#include "contract/tables/load_combination_table.h"
#include "contract/tables/static_load_case_table.h"
#include "loadcomb/envelopes/cm_envl_item_dlg.h"
#include "loadcomb/envelopes/envelope_item.h"

#include <algorithm>

ZEL_DIALOG(CCMEnvlListDlg)

CCMEnvlListDlg::CCMEnvlListDlg(CWnd* parent) : CDlgMove(14054, "Envelope", parent)
{
    envelopeList.onDoubleClick(&CCMEnvlListDlg::OnModify);
}

CCMEnvlListDlg::~CCMEnvlListDlg() = default;

int CCMEnvlListDlg::OnInitDialog()
{
    CDlgMove::OnInitDialog();
    items.DeleteAllColumns();
    items.AddColumn(zel::loadText("IDS_ZEL_CMD__Load_Case"), 110);
    items.AddColumn(zel::loadText("IDS_ZEL_CMD__Type"), 50);
    MakeItemEx();
    if (envelopeList.GetCount() > 0)
        envelopeList.SetCurSel(0);
    ShowItems();
    return 1;
}

/// Rebuilds the list of names. The selected envelope stays selected while it exists.
void CCMEnvlListDlg::MakeItemEx()
{
    const int line = envelopeList.GetCurSel();
    const std::uintptr_t selected = envelopeList.GetItemData(line);
    envelopeList.ResetContent();
    std::vector<zel::Key> keys;
    std::vector<T_ENVL_D> records;
    CDataEnvl().GetList(keys, records);
    for (std::size_t i = 0; i < keys.size(); ++i)
        envelopeList.AddString(records[i].name, keys[i]);
    envelopeList.SetCurSel(line >= 0 ? envelopeList.FindData(selected) : -1);
}

void CCMEnvlListDlg::ShowItems()
{
    items.DeleteAllItems();
    T_ENVL_D envelope;
    const int line = envelopeList.GetCurSel();
    if (line < 0 || CDataEnvl().Get(static_cast<zel::Key>(envelopeList.GetItemData(line)), envelope) == 0)
        return;
    for (const T_ENVL_BASE& item : envelope.items) {
        const int row = items.InsertItem(items.GetItemCount(), zel::loadcomb::envelopeItemName(item));
        items.SetItemText(row, 1, zel::loadcomb::envelopeTypeLabel(item.type));
    }
}

bool CCMEnvlListDlg::GetSelectedItem(T_ENVL_D& envelope)
{
    const int line = envelopeList.GetCurSel();
    if (line >= 0 && CDataEnvl().Get(static_cast<zel::Key>(envelopeList.GetItemData(line)), envelope) != 0)
        return true;
    zel::showMessage("IDS_ZEL_CMD__Error___No_selected_envelope_");
    return false;
}

void CCMEnvlListDlg::OnAdd()
{
    CCMEnvlItemDlg(this).DoModal();
}

void CCMEnvlListDlg::OnModify()
{
    T_ENVL_D envelope;
    if (!GetSelectedItem(envelope))
        return;
    CCMEnvlItemDlg dialog(this);
    dialog.openToModify(0, envelope);
    dialog.DoModal();
}

void CCMEnvlListDlg::OnDelete()
{
    T_ENVL_D envelope;
    if (!GetSelectedItem(envelope))
        return;
    const int line = envelopeList.GetCurSel();
    if (CDataEnvl().Del(envelope.name) == 0)
        return;
    envelopeList.SetCurSel(std::min(line, envelopeList.GetCount() - 1));
    ShowItems();
}

/// Load cases and combinations are watched too: the items table shows their names.
void CCMEnvlListDlg::UpdateBuffer(const CViewBuff& buffer)
{
    if (!zel::concerns<CDataEnvl>(buffer) && !zel::concerns<CDataStld>(buffer) && !zel::concerns<CDataLcom>(buffer))
        return;
    MakeItemEx();
    ShowItems();
}
