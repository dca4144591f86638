#include "loadcomb/envelopes/cm_envl_item_dlg.h"

#include "command/messages.h"
#include "contract/forms/dialog_names.h"
#include "contract/tables/envelope_table.h"
#include "loadcomb/envelopes/envelope_item.h"

#include <algorithm>

ZEL_DIALOG_NAME(CCMEnvlItemDlg)

CCMEnvlItemDlg::CCMEnvlItemDlg(CWnd* parent) : CDlgMove(31004, "Define Envelope", parent)
{
    SetDefButton(ok);
}

CCMEnvlItemDlg::~CCMEnvlItemDlg() = default;

void CCMEnvlItemDlg::SetModifyData(const T_ENVL_D& envelope)
{
    m_record = envelope;
    m_oldName = envelope.name;
    m_modify = true;
}

int CCMEnvlItemDlg::OnInitDialog()
{
    CDlgMove::OnInitDialog();
    for (CListCtrl* list : {&candidates, &selected}) {
        list->DeleteAllColumns();
        list->AddColumn(zel::loadText("IDS_ZEL_CMD__Load_Case"), 110);
        list->AddColumn(zel::loadText("IDS_ZEL_CMD__Type"), 50);
    }
    name.SetWindowText(m_record.name);
    description.SetWindowText(m_record.description);
    m_candidates.clear();
    for (const T_ENVL_BASE& item : zel::loadcomb::envelopeCandidates())
        m_candidates.push_back({item, false});
    for (const T_ENVL_BASE& item : m_record.items) {
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

bool CCMEnvlItemDlg::Save()
{
    m_record.name = name.GetWindowText();
    if (m_record.name.empty()) {  // a name of blanks is a name
        zel::showMessage("IDS_ZEL_CMD__Error___Name_has_not_been_input_");
        return false;
    }
    m_record.description = description.GetWindowText();
    m_record.items.clear();
    for (const Candidate& candidate : m_candidates) {
        if (candidate.selected)
            m_record.items.push_back(candidate.item);
    }
    if (m_record.items.empty()) {
        zel::showMessage("IDS_ZEL_CMD__Error___No_selected_loadcase_");
        return false;
    }
    CDataEnvl envelopes;
    envelopes.currentRecord = m_record;
    if (!m_modify)
        return envelopes.Add(m_record) != 0;
    if (envelopes.Modify(m_oldName) == 0)
        return false;
    m_oldName = m_record.name;  // a second Apply modifies it under its new name
    return true;
}

void CCMEnvlItemDlg::OnOK()
{
    if (Save())
        CDlgMove::OnOK();
}

void CCMEnvlItemDlg::OnApply()
{
    Save();
}
