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
        LoadCaseCombo loadCase{loadCaseRow, "loadCase", "Load Case :"};
        CButton loadCaseButton{loadCaseRow, "loadCaseButton", "...", &SeismicFactorDialog::OnClickLoadCaseBtn};
        CEdit factor{group, "factor", "Over-Strength Factor :"};
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

    CString DataToStr(int column, const Entry& item) const override
    {
        return column == 0 ? staticCaseText(CDataStld().GetNameByKey(item.loadCaseKey)) : numberText("%g", item.factor);
    }

    /// Without a selected load case the entry keeps its defaults, so that ValidItem refuses it.
    bool Dlg2Item(Entry& item) override
    {
        if (Form().loadCase.GetCurSel() < 0)
            return true;
        item.loadCaseKey = this->GetStldKey(Form().loadCase.selectedName());
        return CStrParser::GetFloatNumber(Form().factor.GetWindowText(), item.factor) != 0;
    }

    bool ValidItem(const Entry& item) override
    {
        if (item.loadCaseKey != 0 && !(item.factor <= 0.0))
            return true;
        showMessage("IDS_ZEL_CMD__ADDD__Invalid_loadcase_key_");  // for the factor too: it has no message of its own
        return false;
    }

    bool IsOnlyOne(const Entry& item, int skipRow) override
    {
        const std::vector<Entry>& entries = this->items();
        for (std::size_t row = 0; row < entries.size(); ++row) {
            if (static_cast<int>(row) != skipRow && entries[row].loadCaseKey == item.loadCaseKey) {
                showMessage("IDS_ZEL_CMD__Loadcase__s_already_exist_", {Form().loadCase.GetWindowText()});
                return false;
            }
        }
        return true;
    }

    void Item2Dlg(int line, const Entry& item)
    {
        Form().loadCase.SetCurSel(line);
        Form().factor.SetWindowText(numberText("%g", item.factor));
    }

    void OnChangedCurrentItem() override
    {
        Entry item;
        int row = 0;
        if (this->GetSelectedItem(row) != 0)
            item = this->items()[static_cast<std::size_t>(row)];
        if (selectText(Form().loadCase, DataToStr(0, item)))
            Item2Dlg(Form().loadCase.GetCurSel(), item);
    }

    void OnDgnGenSeisAdd() { this->AddItem(); }
    void OnDgnGenSeisModify() { this->ModifyItem(); }
    void OnDgnGenSeisDelete() { this->DeleteItem(); }
};

}  // namespace zel
