#pragma once

#include "contract/forms/grid_records.h"
#include "contract/tables/load_combination_table.h"

#include <unordered_set>
#include <vector>

namespace zel {

/// Whether a combination may hold so many items in the editor, which takes 50; a message if not.
bool itemsFit(const std::vector<T_LCOM_ITEM>& items);

/// Whether there is a static load case of that key. One may have gone while a factor of it was being typed.
bool isLoadCase(Key key);

/// The first "LCB%d" that no combination of the kind bears; %d starts behind their count.
CString newCombinationName(int kind);

/// A grid whose rows are the load combinations of one design kind, in their sequence. Rows are read from the model when they are
/// looked at, so that thousands of them open at once.
class CombinationGrid : public CTBRecordGrid<T_LCOM_D> {
public:
    /// @param kind  the design kind, which is the editor's
    CombinationGrid(const Place& place, std::string_view id, const int& kind, Action<Row> onCurrentRow = {})
        : CTBRecordGrid(place, id, std::move(onCurrentRow)), m_kind(kind)
    {
    }

    void Initialize() override;
    /// Shows the combinations of the design kind anew, which is another one now.
    void ShowKind();
    /// Follows a change of the model. The time goes with the number of rows, for a long change as for a single one.
    /// @param changed  keys of the combinations that were added or modified; those that are gone show by themselves
    void Follow(const std::unordered_set<Key>& changed);
    /// Key of the combination in a row; 0 for the append row and outside of the rows.
    [[nodiscard]] Key KeyOf(Row row) const { return IsDataRow(row) ? GetRowKey(row) : 0; }
    /// Makes the row of a combination current, if it can.
    void ShowCombination(Key key);

    bool AddToDB(Row row) override;
    bool AddToDB(const Keys& keys, const Records& records) override;
    bool DeleteFromDB(Row row) override { return DeleteFromDB(CArray<Row>{row}); }
    bool DeleteFromDB(const CArray<Row>& rows) override;
    bool ModifyToDB(Row row) override;
    bool ModifyToDB(const Keys& oldKeys, const Keys& keys, const Records& records) override;
    [[nodiscard]] CString GetNewKey() override;
    [[nodiscard]] CString GetDefValue(ColumnIndex column) override;
    int GetSelectedKeys(CArray<std::uint32_t>& keys) override;
    bool MakeKeyAndDataArray(const CArray<CString>& texts, const CArray<ColumnIndex>& columns, Keys& keys, Records& records) override;
    bool ValidateRecord(const CArray<CString>& texts, const CArray<ColumnIndex>& columns) override;
    [[nodiscard]] int GetCountData() override { return CDataLcom().GetCount(m_kind); }
    void MakeItemFiltered(int count, const CArray<Row>& rows, const CArray<ColumnIndex>& columns) override;
    void MakeItemNormal(int count, const CArray<ColumnIndex>& columns) override;
    bool OnSelDragRowsDrop(Row firstRow, Row lastRow, Row targetRow) override;
    bool OnSelDragColsDrop(ColumnPlace firstColumn, ColumnPlace lastColumn, ColumnPlace targetColumn) override;
    [[nodiscard]] CString GetPasteRefusedText(const CString& warning) override;

protected:
    /// Index of the column of the place in the sequence, which can't be edited and stays in front.
    static constexpr ColumnIndex noColumn = 0;

    /// Indices of the other columns that every grid of combinations has.
    struct Columns {
        ColumnIndex name;
        ColumnIndex active;
        ColumnIndex description;
    };
    [[nodiscard]] virtual Columns columns() const = 0;
    virtual void AddColumns() = 0;
    /// Adds one of the columns above, under its usual title and width.
    void AddNo();
    void AddName();
    void AddActive();
    void AddDescription();

    /// Items of a combination into the texts of its row, and back; texts by index. For grids that show them.
    virtual void ShowItems(const T_LCOM_D& /*record*/, CArray<CString>& /*texts*/) const {}
    /// @param record  the combination as it is stored; an empty one in a new row
    /// @return  false, after a message, if they can't be taken
    virtual bool ReadItems(const CArray<CString>& /*texts*/, T_LCOM_D& /*record*/) { return true; }

private:
    [[nodiscard]] CArray<CString> TextsOf(const T_LCOM_D& record) const;
    bool ReadTexts(const CArray<CString>& texts, T_LCOM_D& record);
    /// The row of the combination that a handle holds; 0 if none of the rows has it.
    [[nodiscard]] Row RowOf(const CDataLcom& combination) const;
    void TakeOrder(const std::vector<Key>& keys);
    void Refresh(const std::unordered_set<Key>& changed);

    const int& m_kind;
    std::vector<Key> m_keys;  ///< of the rows, in order
};

}  // namespace zel
