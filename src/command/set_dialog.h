#pragma once

#include "command/load_cases.h"
#include "command/messages.h"
#include "command/model_listener.h"
#include "command/view_buffer.h"
#include "contract/forms/forms.h"
#include "contract/number_text.h"
#include "contract/tables/static_load_case_table.h"
#include "contract/user_interface.h"

#include <concepts>
#include <vector>

namespace zel {

/// A number of a record and the plain edit field that shows it.
template <class Record> struct NumberField {
    CEdit& field;
    double Record::*value;
};

}  // namespace zel

/// A dialog over a table of one record that holds a list of entries.
///
/// It works on a copy of the record. The user edits one entry in a form and moves it to and from the list by Add, Modify and
/// Delete; OK writes the whole record, Cancel leaves it. Row r of the list control stands for entry r of the working list. A
/// dialog declares its controls and fills the members that differ; everything else is here, once.
///
/// The selection that the dialog makes in its list runs no handler: the form follows what the user selects.
template <class Handle, class Item> class CSetDialog : public CDlgMove, public zel::ModelListener {
public:
    using Record = decltype(Handle::currentRecord);

    /// Whether the list is free of that text in a load case column. Returns 0, with the row noted, if it stands there.
    int CheckLoadCaseName(const CString& name, int& row)
    {
        const CListCtrl& list = List();
        for (int each = 0; each < list.GetItemCount(); ++each) {
            for (const int column : LoadCaseColumns()) {
                if (list.GetItemText(each, column) == name) {
                    row = each;
                    return 0;
                }
            }
        }
        return 1;
    }

protected:
    /// @param items  the list of entries in the record
    CSetDialog(unsigned templateId, const char* title, std::vector<Item> Record::*items, CWnd* parent) : CDlgMove(templateId, title, parent), m_items(items) {}

    // What a dialog fills.

    virtual CListCtrl& List() = 0;
    virtual void SetListCtrlHeader() = 0;
    /// Fills the load case lists.
    virtual void Initial_LCaseComboBox() = 0;
    /// The numbers of the record itself, in the order of the form.
    virtual std::vector<zel::NumberField<Record>> NumberFields() { return {}; }
    virtual CString DataToStr(int column, const Item& item) const = 0;
    /// Entry of the form; false, reported where it is to be, if it can't be read.
    virtual bool Dlg2Item(Item& item) = 0;
    /// Whether an entry can be taken; reported if not.
    virtual bool ValidItem(const Item& item) = 0;
    /// Whether no other row stands for the same; reported if one does.
    /// @param skipRow  row that is being modified; -1 when one is added
    virtual bool IsOnlyOne(const Item& item, int skipRow) = 0;
    /// Shows the selected entry, or what stands for none, in the form.
    virtual void OnChangedCurrentItem() = 0;

    // Where dialogs differ.

    /// The fields of the record itself into the form, and out of it. False keeps the dialog open, in silence where a number
    /// can't be read.
    virtual void Data2Dlg()
    {
        for (const zel::NumberField<Record>& number : NumberFields())
            number.field.SetWindowText(zel::numberText("%g", m_record.*number.value));
    }
    virtual bool Dlg2Data()
    {
        for (const zel::NumberField<Record>& number : NumberFields()) {
            if (CStrParser::GetFloatNumber(number.field.GetWindowText(), m_record.*number.value) == 0)
                return false;
        }
        return true;
    }

    virtual const char* NoRowToDelete() const { return "IDS_ZEL_CMD__ADDD__No_selected_item_in_the_list__nCh"; }
    /// Whether the first column holds the row's number.
    virtual bool HasNumberedRows() const { return false; }
    /// Whether the row before is selected when the last one was deleted.
    virtual bool StepsBackAfterDelete() const { return true; }
    virtual std::vector<int> LoadCaseColumns() const { return {0}; }

    // The cycle.

    std::vector<Item>& items() { return m_record.*m_items; }

    int OnInitDialog() override
    {
        m_pDoc = CDBDoc::GetDocPoint();
        CDlgMove::OnInitDialog();
        ReadRecord();
        Data2Dlg();
        Initial_LCaseComboBox();
        List().DeleteAllColumns();
        SetListCtrlHeader();
        MakeItemEx();
        return 1;
    }

    /// Rebuilds the list from the working list.
    virtual void MakeItemEx()
    {
        List().DeleteAllItems();
        for (std::size_t i = 0; i < items().size(); ++i) {
            const int row = List().InsertItem(static_cast<int>(i));
            SetItem(row, items()[i]);
        }
        if (!items().empty())
            List().SelectOnly(0);
    }

    /// Writes the cells of one row.
    void SetItem(int row, const Item& item)
    {
        const int columns = static_cast<int>(List().columns().size());
        for (int column = 0; column < columns; ++column)
            List().SetItemText(row, column, HasNumberedRows() && column == 0 ? std::to_string(row + 1) : DataToStr(column, item));
    }

    /// The first selected row; returns 0 if there is none.
    int GetSelectedItem(int& index)
    {
        const int selected = List().GetFirstSelected();
        if (selected < 0)
            return 0;
        index = selected;
        return 1;
    }

    zel::Key GetStldKey(const CString& name) const { return zel::loadCaseKey(name); }

    void OnClickLoadCaseBtn() { zel::postHostCommand(zel::openStaticLoadCases); }

    void AddItem()
    {
        Item item;
        if (!Dlg2Item(item) || !ValidItem(item) || !IsOnlyOne(item, -1))
            return;
        AppendItem(item);
    }

    /// Puts an entry at the end of both lists and selects its row.
    void AppendItem(const Item& item)
    {
        items().push_back(item);
        ShowRow(List().InsertItem(List().GetItemCount()));
    }

    void ModifyItem()
    {
        int row = 0;
        if (GetSelectedItem(row) == 0) {
            zel::showMessage("IDS_ZEL_CMD__ADDD__No_selected_item_in_the_list__nCh");
            return;
        }
        Item item;
        if (!Dlg2Item(item) || !ValidItem(item) || !IsOnlyOne(item, row))
            return;
        items()[static_cast<std::size_t>(row)] = item;
        ShowRow(row);
    }

    void DeleteItem()
    {
        int row = 0;
        if (GetSelectedItem(row) == 0) {
            zel::showMessage(NoRowToDelete());
            return;
        }
        RemoveRow(row);
        if (HasNumberedRows())
            RewriteRows();
        if (StepsBackAfterDelete() && row >= List().GetItemCount())
            --row;
        if (row >= 0 && row < List().GetItemCount())
            List().SelectOnly(row);
    }

    /// Takes a row out of the list and of the working list.
    void RemoveRow(int row)
    {
        List().DeleteItem(row);
        items().erase(items().begin() + row);
    }

    void RewriteRows()
    {
        for (int row = 0; row < List().GetItemCount(); ++row)
            SetItem(row, items()[static_cast<std::size_t>(row)]);
    }

    void OnOK() override
    {
        if (Dlg2Data() && Handle().Add(m_record) != 0)
            EndDialog(IDOK);
    }

    // Notices.

    /// In two passes: the load cases that the entries refer to, then the dialog's own table.
    void UpdateBuffer(const CViewBuff& buffer) override
    {
        FollowLoadCases(buffer);
        bool written = false;
        zel::readChanges(buffer, zel::TableWatch<Handle>{.added = [&](const Handle& /*now*/) { written = true; }});
        if (!written)
            return;
        ReadRecord();
        Data2Dlg();
        MakeItemEx();
    }

    /// An entry of a deleted load case goes; one whose case has a new name or key is rewritten. The load case lists stay.
    virtual void FollowLoadCases(const CViewBuff& buffer)
    {
        // clang-format off
        if constexpr (requires(Item item) { { item.loadCaseKey } -> std::convertible_to<zel::Key>; }) {
            zel::readChanges(buffer, zel::TableWatch<CDataStld>{
                .deleted = [this](const CDataStld& before) {
                    for (int row = List().GetItemCount() - 1; row >= 0; --row) {
                        if (items()[static_cast<std::size_t>(row)].loadCaseKey == before.currentKey)
                            RemoveRow(row);
                    }
                },
                .modified = [this](const CDataStld& now, const CDataStld& before) {
                    for (int row = 0; row < List().GetItemCount(); ++row) {
                        Item& item = items()[static_cast<std::size_t>(row)];
                        if (item.loadCaseKey != before.currentKey)
                            continue;
                        item.loadCaseKey = now.currentKey;
                        SetItem(row, item);
                    }
                },
            });
        }
        // clang-format on
    }

    [[nodiscard]] bool canUpdate() const override { return IsWindow(); }

    Record m_record{};  ///< working copy
    CDBDoc* m_pDoc = nullptr;

private:
    void ReadRecord()
    {
        if (Handle().Get(m_record) == 0)
            m_record.Initialize();
    }

    void ShowRow(int row)
    {
        SetItem(row, items()[static_cast<std::size_t>(row)]);
        List().SelectOnly(row);
    }

    std::vector<Item> Record::*m_items;
};
