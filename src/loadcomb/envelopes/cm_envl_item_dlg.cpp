#include "loadcomb/envelopes/cm_envl_item_dlg.h"

#include "command/messages.h"
#include "contract/forms/dialog_names.h"
#include "contract/tables/envelope_table.h"
#include "loadcomb/envelopes/envelope_item.h"

#include <algorithm>

ZEL_DIALOG_NAME(CCMEnvlItemDlg)

CCMEnvlItemDlg::CCMEnvlItemDlg(CWnd* parent) : CItemDialog(31004, "Define Envelope", parent)
{
    SetDefButton(ok);
}

CCMEnvlItemDlg::~CCMEnvlItemDlg() = default;

int CCMEnvlItemDlg::OnInitDialog()
{
    CItemDialog::OnInitDialog();
    for (CListCtrl* list : {&candidates, &selected}) {
        list->DeleteAllColumns();
        list->AddColumn(zel::loadText("IDS_ZEL_CMD__Load_Case"), 110);
        list->AddColumn(zel::loadText("IDS_ZEL_CMD__Type"), 50);
    }
    m_candidates.clear();
    for (const T_ENVL_BASE& item : zel::loadcomb::envelopeCandidates())
        m_candidates.push_back({item, false});
    for (const T_ENVL_BASE& item : m_record.edited.items) {
        const auto found = std::ranges::find(m_candidates, item, &Candidate::item);
        if (found != m_candidates.end())
            found->selected = true;
        else  // gone from the model: it stays in the envelope until the user takes it out
            m_candidates.push_back({item, true});
    }
    MakeItemEx();
    return 1;
}

/// Fills both tables from the candidates. The value of a row is the candidate's place.
void CCMEnvlItemDlg::MakeItemEx()
{
    candidates.DeleteAllItems();
    selected.DeleteAllItems();
    for (std::size_t i = 0; i < m_candidates.size(); ++i) {
        const T_ENVL_BASE& item = m_candidates[i].item;
        CListCtrl& list = m_candidates[i].selected ? selected : candidates;
        const int row = list.InsertItem(list.GetItemCount(), zel::loadcomb::envelopeItemName(item), i);
        list.SetItemText(row, 1, zel::loadcomb::envelopeTypeLabel(item.type));
    }
}

void CCMEnvlItemDlg::Move(CListCtrl& from, bool select)
{
    for (const int row : from.GetSelectedItems())
        m_candidates[from.GetItemData(row)].selected = select;
    MakeItemEx();
}

bool CCMEnvlItemDlg::Dlg2Data()
{
    if (!CItemDialog::Dlg2Data())
        return false;
    m_record.edited.items.clear();
    for (const Candidate& candidate : m_candidates) {
        if (candidate.selected)
            m_record.edited.items.push_back(candidate.item);
    }
    return true;
}

bool CCMEnvlItemDlg::ValidItem(const T_ENVL_D& envelope)
{
    if (!envelope.items.empty())
        return true;
    zel::showMessage("IDS_ZEL_CMD__Error___No_selected_loadcase_");
    return false;
}
