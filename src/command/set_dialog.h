#pragma once

#include "command/load_cases.h"
#include "command/messages.h"
#include "command/record_dialog.h"
#include "contract/tables/static_load_case_table.h"
#include "contract/user_interface.h"

#include <algorithm>
#include <concepts>
#include <vector>

namespace zel {

/// A column of a list of entries: the field of the control that it names, or, without one, the number of the row from 1.
struct FieldColumn {
    CString title;
    int width = 0;  ///< [pixels]
    const Control* shows = nullptr;
};

}  // namespace zel

/// A dialog over a table of one record that holds a list of entries.
///
/// It works on a copy of the record. The user edits one entry in a form and moves it to and from the list by Add, Modify and
/// Delete; OK writes the whole record, Cancel leaves it. Row r of the list control stands for entry r of the working list. A
/// dialog declares its controls, each with the field that it shows, of the record or of an entry, and fills the members that differ;
/// everything else is here, once.
///
/// The selection that the dialog makes in its list runs no handler: the form follows what the user selects.
template <class Handle, class Item> class CSetDialog : public CRecordDialog<Handle> {
public:
    using typename CRecordDialog<Handle>::Record;

    /// Whether the list is free of that text in a load case column. Returns 0, with the row noted, if it stands there.
    int CheckLoadCaseName(const CString& name, int& row)
    {
        const CListCtrl& list = List();
        for (int each = 0; each < list.GetItemCount(); ++each) {
            for (std::size_t column = 0; column < m_columns.size(); ++column) {
                const bool holdsCases = dynamic_cast<const zel::LoadCaseCombo*>(m_columns[column].shows) != nullptr;
                if (holdsCases && list.GetItemText(each, static_cast<int>(column)) == name) {
                    row = each;
                    return 0;
                }
            }
        }
        return 1;
    }

protected:
    /// @param items  the list of entries in the record
    CSetDialog(unsigned templateId, const char* title, std::vector<Item> Record::*items, CWnd* parent)
        : CRecordDialog<Handle>(templateId, title, parent), m_items(items)
    {
    }

    // What a dialog fills.

    virtual CListCtrl& List() = 0;
    virtual std::vector<zel::FieldColumn> Columns() const = 0;
    /// Fills the load case lists.
    virtual void Initial_LCaseComboBox() = 0;
    /// Whether an entry can be taken; reported if not.
    virtual bool ValidItem(const Item& item) = 0;
    /// Whether no other row stands for the same; reported if one does.
    /// @param skipRow  row that is being modified; -1 when one is added
    virtual bool IsOnlyOne(const Item& item, int skipRow) = 0;

    // Where dialogs differ.

    /// Entry of the form; false, reported where it is to be, if it can't be read.
    virtual bool Dlg2Item(Item& item) { return zel::readFields(*this, item); }
    virtual void Item2Dlg(const Item& item) { zel::showFields(*this, item); }
    /// The text of a cell, but for the number of the row.
    virtual CString DataToStr(int column, const Item& item) const { return m_columns[static_cast<std::size_t>(column)].shows->fieldText(&item); }
    /// Shows the selected entry in the form; without one the form stays.
    virtual void OnChangedCurrentItem()
    {
        int row = 0;
        if (GetSelectedItem(row) != 0)
            Item2Dlg(items()[static_cast<std::size_t>(row)]);
    }

    virtual const char* NoRowToDelete() const { return "IDS_ZEL_CMD__ADDD__No_selected_item_in_the_list__nCh"; }
    /// Whether the row before is selected when the last one was deleted.
    virtual bool StepsBackAfterDelete() const { return true; }

    // The cycle.

    std::vector<Item>& items() { return this->m_record.edited.*m_items; }

    int OnInitDialog() override
    {
        CRecordDialog<Handle>::OnInitDialog();
        Initial_LCaseComboBox();
        SetListCtrlHeader();
        MakeItemEx();
        return 1;
    }

    void SetListCtrlHeader()
    {
        m_columns = Columns();
        List().DeleteAllColumns();
        for (const zel::FieldColumn& column : m_columns)
            List().AddColumn(column.title, column.width);
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
        for (std::size_t column = 0; column < m_columns.size(); ++column) {
            const int place = static_cast<int>(column);
            List().SetItemText(row, place, m_columns[column].shows == nullptr ? std::to_string(row + 1) : DataToStr(place, item));
        }
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
        RewriteRows();  // the numbers follow
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

    /// Whether `same` holds of an entry in a row other than that one.
    template <class Same> bool HasAnotherRow(int skipRow, const Same& same)
    {
        for (std::size_t row = 0; row < items().size(); ++row) {
            if (static_cast<int>(row) != skipRow && same(items()[row]))
                return true;
        }
        return false;
    }

    void RewriteRows()
    {
        for (int row = 0; row < List().GetItemCount(); ++row)
            SetItem(row, items()[static_cast<std::size_t>(row)]);
    }

    // Notices.

    /// In two passes: the load cases that the entries refer to, then the dialog's own table.
    void UpdateBuffer(const CViewBuff& buffer) override
    {
        FollowLoadCases(buffer);
        CRecordDialog<Handle>::UpdateBuffer(buffer);
    }

    /// The record has been read afresh.
    void RecordRead() override { MakeItemEx(); }

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

    void UnitChanged() override
    {
        CRecordDialog<Handle>::UnitChanged();
        RewriteRows();
    }

private:
    void ShowRow(int row)
    {
        SetItem(row, items()[static_cast<std::size_t>(row)]);
        List().SelectOnly(row);
    }

    std::vector<Item> Record::*m_items;
    std::vector<zel::FieldColumn> m_columns;
};
