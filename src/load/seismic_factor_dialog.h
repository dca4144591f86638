#pragma once

#include "command/set_dialog.h"
#include "contract/load_types.h"

#include "contract/tables/static_load_case_table.h"

namespace zel {

/// What the two dialogs of factors for seismic design have in common: the over-strength factors of the load cases of type "E".
template <class Handle, class Entry> class SeismicFactorDialog : public CSetDialog<Handle, Entry> {
    using Base = CSetDialog<Handle, Entry>;

protected:
    using Base::Base;

    /// The form of an entry and the list of them, in reading order.
    struct EntryForm {
        explicit EntryForm(SeismicFactorDialog& owner) : dialog(owner) {}

        SeismicFactorDialog& dialog;
        CGroup group{dialog, "System Over-Strength Factor"};
        CRow loadCaseRow{group};
        LoadCaseCombo loadCase{loadCaseRow, "loadCase", "Load Case :", &Entry::loadCaseKey};
        CButton loadCaseButton{loadCaseRow, "loadCaseButton", "...", &SeismicFactorDialog::OnClickLoadCaseBtn};
        CEdit factor{group, "factor", "Over-Strength Factor :", &Entry::factor};
        CListCtrl list{group, "list", &SeismicFactorDialog::OnChangedCurrentItem};
        CButtonRow buttons{group};
        CButton add{buttons, "add", "Add", &SeismicFactorDialog::OnDgnGenSeisAdd};
        CButton modify{buttons, "modify", "Modify", &SeismicFactorDialog::OnDgnGenSeisModify};
        CButton del{buttons, "del", "Delete", &SeismicFactorDialog::OnDgnGenSeisDelete};
    };

    virtual EntryForm& Form() = 0;

    CListCtrl& List() override { return Form().list; }

    void Initial_LCaseComboBox() override
    {
        Form().loadCase.fill([](const T_STLD_D& loadCase) { return loadCase.type == load_type::earthquake; });
    }

    int GetLoadCaseType(int line) { return Form().loadCase.GetLoadCaseType(line); }

    /// Without a selected load case the entry keeps its defaults, so that ValidItem refuses it.
    bool Dlg2Item(Entry& item) override { return Form().loadCase.GetCurSel() < 0 || Base::Dlg2Item(item); }

    bool ValidItem(const Entry& item) override
    {
        if (item.loadCaseKey != 0 && !(item.factor <= 0.0))
            return true;
        showMessage("IDS_ZEL_CMD__ADDD__Invalid_loadcase_key_");  // for the factor too: it has no message of its own
        return false;
    }

    bool IsOnlyOne(const Entry& item, int skipRow) override
    {
        if (!this->HasAnotherRow(skipRow, [&item](const Entry& other) { return other.loadCaseKey == item.loadCaseKey; }))
            return true;
        showMessage("IDS_ZEL_CMD__Loadcase__s_already_exist_", {Form().loadCase.GetWindowText()});
        return false;
    }

    /// An entry whose case is not listed, and none, leave the factor as it was.
    void OnChangedCurrentItem() override
    {
        int row = 0;
        const Entry item = this->GetSelectedItem(row) != 0 ? this->items()[static_cast<std::size_t>(row)] : Entry();
        if (selectText(Form().loadCase, Form().loadCase.fieldText(&item)))
            this->Item2Dlg(item);
    }

    void OnDgnGenSeisAdd() { this->AddItem(); }
    void OnDgnGenSeisModify() { this->ModifyItem(); }
    void OnDgnGenSeisDelete() { this->DeleteItem(); }
};

}  // namespace zel
