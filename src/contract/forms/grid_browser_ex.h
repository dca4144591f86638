#pragma once

#include "contract/forms/grid_block.h"
#include "contract/forms/grid_browser.h"

namespace zel {

/// The records of the rows of a pasted block, of the type that the grid's rows have; see CTBRecordGrid.
class PastedRecords {
public:
    enum class Part {
        former,   ///< records of rows that change, as they were
        changed,  ///< the same as they are to be
        added,    ///< records of new rows
    };

    PastedRecords() = default;
    PastedRecords(const PastedRecords&) = delete;
    PastedRecords& operator=(const PastedRecords&) = delete;
    virtual ~PastedRecords() = default;

    /// Makes the record of one row of its texts. False, with a warning, for bad texts.
    virtual bool make(Part part, const CArray<CString>& texts) = 0;
    /// Write records, all or none: the changed in place of the former ones, the former again in place of the changed ones, the new ones.
    virtual bool modify() = 0;
    virtual bool restore() = 0;
    virtual bool add() = 0;
};

}  // namespace zel

/// A browser whose rows stand in an order of their own or are moved by dragging, and which takes and gives blocks of cells.
class CTBBrowserWndEx : public CTBBrowserWnd {
public:
    using CTBBrowserWnd::CTBBrowserWnd;

    // Order of rows.

    /// The indices by which rows are sorted ascending, the first one first: numbers by value, texts by their characters. An
    /// empty list leaves rows where they are put.
    void SetSortColumns(const CArray<ColumnIndex>& indices) { m_sort = indices; }
    [[nodiscard]] const CArray<ColumnIndex>& GetSortColumns() const { return m_sort; }
    /// Finds a row by the texts of its sort columns; what is being typed does not count. Returns 0 if there is none, and leaves in
    /// `row` the place at which such a row is to be inserted. The number of rows enters with its logarithm.
    int FindRecordByKey(const CArray<CString>& sortTexts, Row& row) const;
    /// The texts of the sort columns out of the texts of a whole row.
    [[nodiscard]] CArray<CString> SortTextsOf(const CArray<CString>& texts) const;

    // Points for grids of the program.

    /// Rows `firstRow` to `lastRow`, or all selected ones, were dropped before `targetRow`: 1 is before the first row, the row count
    /// behind the last data row, the row count plus 1 behind the append row. True lets the browser move the selected rows itself.
    virtual bool OnSelDragRowsDrop(Row firstRow, Row lastRow, Row targetRow);
    /// The same for columns on screen. False refuses it.
    virtual bool OnSelDragColsDrop(ColumnPlace /*firstColumn*/, ColumnPlace /*lastColumn*/, ColumnPlace /*targetColumn*/) { return true; }
    /// The warning for a paste that was refused as a whole; `warning` is what the bad cell or row has set.
    [[nodiscard]] virtual CString GetPasteRefusedText(const CString& warning) { return warning; }
    /// A block was pasted; its rows are written.
    virtual void OnPasted() {}

    // The user's channel.

    /// Puts a block in from a cell on: over the rows there, and behind them into new rows. Cells in columns that take no text are left
    /// out. All rows are tested before any is written; bad data undoes the whole.
    zel::Taken paste(UserRow row, UserColumn column, const CString& text);
    /// The selected rows, else the current cell, as tab-separated text with all digits.
    [[nodiscard]] CString copyText() const;
    /// Selects rows and drops them before row `to`; the row count, or `append`, means the end.
    zel::Taken dragRows(const std::vector<int>& rows, UserRow to);
    /// Moves the selected rows one place up (-1) or down (+1), as a drag would.
    zel::Taken moveRows(int step);
    /// Drops columns `first` to `last` before column `to`; the column count means the end.
    zel::Taken dragColumns(UserColumn first, UserColumn last, UserColumn to);

protected:
    /// Where a paste keeps the records of its rows.
    [[nodiscard]] virtual std::unique_ptr<zel::PastedRecords> newPastedRecords();
    void mirrorAdded(const CArray<CString>& texts) override;
    void mirrorChanged(Row row, const CArray<CString>& texts) override;

private:
    struct Pasted;

    [[nodiscard]] int compare(ColumnIndex index, const CString& a, const CString& b) const;
    zel::Taken pasteAt(Row row, ColumnPlace column, const zel::GridBlock& block);
    zel::Taken layOut(const zel::GridBlock& block, Row row, ColumnPlace column, Pasted& pasted);
    bool makeRecords(const Pasted& pasted, zel::PastedRecords& records);
    bool writeRecords(const Pasted& pasted, zel::PastedRecords& records);
    bool dropRows(Row firstRow, Row lastRow, Row targetRow);

    CArray<ColumnIndex> m_sort;
};
