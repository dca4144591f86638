#pragma once

#include "contract/forms/control.h"

#include <cstdint>
#include <functional>
#include <vector>

/// A report list: columns with titles, rows of texts, and a value for each row. Whole rows are selected.
class CListCtrl : public zel::Control {
public:
    enum class Selection { single, multiple };
    enum class Align { left, right, centre };

    struct Column {
        CString title;
        int width = 0;  ///< [pixels]
        Align align = Align::left;
        bool visible = true;
    };

    /// @param onSelect  the user has changed the selection
    CListCtrl(const zel::Place& place, std::string_view id, zel::Action<> onSelect = {}, Selection selection = Selection::single);
    /// With its columns: `CListCtrl list{*this, "list", {{"Load Case", 85}, {"Factor", 60}}, &CDgnGenSeisFactor::OnChangedCurrentItem};`
    CListCtrl(const zel::Place& place, std::string_view id, std::vector<Column> columns, zel::Action<> onSelect = {}, Selection selection = Selection::single);

    [[nodiscard]] zel::Kind kind() const override { return zel::Kind::report; }
    [[nodiscard]] bool isMultiple() const { return m_multiple; }
    void onSelect(zel::Action<> action) { m_onSelect = std::move(action); }
    void onDoubleClick(zel::Action<> action) { m_onDoubleClick = std::move(action); }

    /// Adds a column at a place (or the end) and returns its index.
    int InsertColumn(int index, const CString& title, int width = 0, Align align = Align::left);
    int AddColumn(const CString& title, int width = 0, Align align = Align::left);
    void SetColumnTitle(int column, const CString& title);
    void ShowColumn(int column, bool show);
    void DeleteAllColumns();
    [[nodiscard]] const std::vector<Column>& columns() const { return m_columns; }

    /// Adds a row at a place (or the end, for an index beyond it) with a text for its first column; returns its index.
    int InsertItem(int row, const CString& text = {}, std::uintptr_t data = 0);
    /// Returns 0 for a row that is not there.
    int DeleteItem(int row);
    void DeleteAllItems();
    [[nodiscard]] int GetItemCount() const { return static_cast<int>(m_rows.size()); }
    void SetItemText(int row, int column, const CString& text);
    void SetItemTexts(int row, const std::vector<CString>& texts);
    [[nodiscard]] const CString& GetItemText(int row, int column) const;
    void SetItemData(int row, std::uintptr_t data);
    [[nodiscard]] std::uintptr_t GetItemData(int row) const;
    /// First row with that value; -1 if there is none.
    [[nodiscard]] int FindData(std::uintptr_t data) const;

    /// Selects or unselects a row; in a list of single selection it takes the place of the selected one.
    void SelectItem(int row, bool selected = true);
    /// Selects this row and no other, and gives it the list's focus; -1 clears the selection.
    void SelectOnly(int row);
    void ClearSelection() { SelectOnly(-1); }
    [[nodiscard]] bool IsSelected(int row) const { return has(row) && m_rows[static_cast<std::size_t>(row)].selected; }
    /// The first selected row; -1 for none.
    [[nodiscard]] int GetFirstSelected() const;
    [[nodiscard]] std::vector<int> GetSelectedItems() const;
    /// The row with the list's focus; -1 for none.
    [[nodiscard]] int GetFocusedItem() const { return m_focused; }
    void EnsureVisible(int row);
    /// The row that a host is to keep in sight; -1 for none.
    [[nodiscard]] int visibleRow() const { return m_inSight; }

    zel::Taken select(const std::vector<int>& rows) override;
    zel::Taken doubleClick(int row) override;
    void describe(zel::IFieldWriter& writer) const override;

private:
    struct Row {
        std::vector<CString> texts;
        std::uintptr_t data = 0;
        bool selected = false;
    };

    [[nodiscard]] bool has(int row) const { return row >= 0 && row < GetItemCount(); }

    zel::Action<> m_onSelect;
    zel::Action<> m_onDoubleClick;
    std::vector<Column> m_columns;
    std::vector<Row> m_rows;
    int m_focused = -1;
    int m_inSight = -1;
    bool m_multiple;
};

/// A report list whose rows have keys and stand in an order: of a position function, else of a compare function, else as added.
class CExtListCtrl : public CListCtrl {
public:
    using Key = std::uint32_t;
    /// Below 0, 0 or above 0 as the first key belongs before, with or behind the second.
    using Compare = std::function<int(Key, Key)>;
    /// The row at which a key belongs.
    using Position = std::function<int(Key)>;

    using CListCtrl::CListCtrl;

    void Initialize(Compare compare) { m_compare = std::move(compare); }
    void SetItemPosFunc(Position position) { m_position = std::move(position); }
    int AddColInfo(const CString& title, int width = 0, Align align = Align::left) { return AddColumn(title, width, align); }

    /// Adds a row at its place. Returns 0 if the key is there already.
    int InsertData(Key key, const std::vector<CString>& texts);
    /// Gives the row of `oldKey` another key and texts, and puts it at its place; its selection stays. Returns 0 if `oldKey` has no row
    /// or `newKey` has another one.
    int ModifyData(Key oldKey, Key newKey, const std::vector<CString>& texts);
    /// Returns 0 if the key has no row.
    int DeleteData(Key key);

    /// Row of a key; -1 for none.
    [[nodiscard]] int FindKey(Key key) const { return FindData(key); }
    [[nodiscard]] Key GetKey(int row) const { return static_cast<Key>(GetItemData(row)); }
    [[nodiscard]] std::vector<Key> GetSelectedKeys() const;

private:
    [[nodiscard]] int placeOf(Key key) const;

    Compare m_compare;
    Position m_position;
};
