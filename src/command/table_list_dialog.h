#pragma once

#include "command/model_listener.h"
#include "command/view_buffer.h"
#include "contract/forms/forms.h"

#include <algorithm>
#include <vector>

/// A dialog or page with a list of the records of a table, in which each row has its record's key. The list follows the table by
/// notices; handlers that write leave it alone.
///
/// @tparam Base    the dialog's first base: CDlgMove, CDBDlgBase or, for a page, CDlgChild
/// @tparam Handle  of the table
template <class Base, class Handle> class CTableListDialog : public Base, public zel::ModelListener {
public:
    using Record = decltype(Handle::currentRecord);

protected:
    using Base::Base;

    // What a dialog fills.

    virtual CExtListCtrl& List() = 0;
    virtual void SetHeaderTitle() = 0;
    virtual CString DataToStr(int column, zel::Key key, const Record& record) const = 0;
    /// The rows have changed, or another one is selected by it.
    virtual void OnRowsChanged() {}

    // The cycle.

    int OnInitDialog() override
    {
        Base::OnInitDialog();
        List().DeleteAllColumns();
        SetHeaderTitle();
        MakeItemEx();
        return 1;
    }

    /// Rebuilds the list from the table.
    void MakeItemEx()
    {
        List().DeleteAllItems();
        Handle table;
        if constexpr (requires(std::vector<zel::Key> keys, std::vector<Record> records) { table.GetList(keys, records); }) {
            std::vector<zel::Key> keys;
            std::vector<Record> records;
            table.GetList(keys, records);
            for (std::size_t i = 0; i < keys.size(); ++i)
                InsertItem(keys[i], records[i]);
        } else {
            TablePosition position = table.GetStart();
            while (position != 0 && table.GetNext(position) != 0)
                InsertItem(table.currentKey, table.currentRecord);
        }
        OnRowsChanged();
    }

    void InsertItem(zel::Key key, const Record& record) { List().InsertData(key, TextsOf(key, record)); }

    void ModifyItem(zel::Key oldKey, zel::Key key, const Record& record) { List().ModifyData(oldKey, key, TextsOf(key, record)); }

    /// Takes a row out. If it was the selected one, the row that takes its place is selected, or the new last one.
    void DeleteItem(zel::Key key)
    {
        const int row = List().FindKey(key);
        const bool wasSelected = List().IsSelected(row);
        List().DeleteData(key);
        if (wasSelected && List().GetFirstSelected() < 0)
            List().SelectOnly(std::min(row, List().GetItemCount() - 1));
    }

    /// Key of the first selected row; 0 if none is selected.
    [[nodiscard]] zel::Key GetSelectedKey()
    {
        const int row = List().GetFirstSelected();
        return row >= 0 ? List().GetKey(row) : 0;
    }

    void UpdateBuffer(const CViewBuff& buffer) override
    {
        bool changed = false;
        zel::readChanges(buffer,
                         zel::TableWatch<Handle>{
                             .added =
                                 [&](const Handle& now) {
                                     InsertItem(now.currentKey, now.currentRecord);
                                     changed = true;
                                 },
                             .deleted =
                                 [&](const Handle& before) {
                                     DeleteItem(before.currentKey);
                                     changed = true;
                                 },
                             .modified =
                                 [&](const Handle& now, const Handle& before) {
                                     ModifyItem(before.currentKey, now.currentKey, now.currentRecord);
                                     changed = true;
                                 },
                         });
        if (changed)
            OnRowsChanged();
    }

    [[nodiscard]] bool canUpdate() const override { return this->IsWindow(); }

private:
    std::vector<CString> TextsOf(zel::Key key, const Record& record)
    {
        std::vector<CString> texts;
        const int columns = static_cast<int>(List().columns().size());
        for (int column = 0; column < columns; ++column)
            texts.push_back(DataToStr(column, key, record));
        return texts;
    }
};
