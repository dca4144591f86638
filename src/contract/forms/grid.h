#pragma once

#include "contract/forms/control.h"
#include "contract/forms/grid_column.h"
#include "contract/forms/grid_places.h"

#include <cstdint>
#include <map>
#include <memory>
#include <string_view>
#include <utility>

namespace zel {

class GridRowStore;

}  // namespace zel

/// A table of cell texts with headers: the columns, the rows, what is current and selected, and what is shown of them.
///
/// The data rows are 1 to GetDataRowCount(); behind them stands the append row, the empty row for a new entry, if the grid has one. A "column"
/// is a place on screen, an "index" a column's fixed index. The functions in lower case are the user's channel, which has its own numbers.
class CTBGrid : public zel::Control {
public:
    using Row = zel::Row;
    using ColumnIndex = zel::ColumnIndex;
    using ColumnPlace = zel::ColumnPlace;
    using UserRow = zel::UserRow;
    using UserColumn = zel::UserColumn;

    static constexpr UserRow append = -1;  ///< the append row in the user's channel

    CTBGrid(const zel::Place& place, std::string_view id, CString label = {});
    ~CTBGrid() override;

    [[nodiscard]] zel::Kind kind() const override { return zel::Kind::grid; }
    void describe(zel::IFieldWriter& writer) const override;

    // Columns.

    /// Adds a column and returns its index. Empty cells in all rows.
    /// @param kind      1 integer, 2 real, 3 text, 4 check
    /// @param unitType  of the values; 0 for none
    ColumnIndex AddColInfo(const CString& title, int kind, int unitType);
    /// Takes all columns and rows away.
    void RemoveColumns();
    [[nodiscard]] int GetColCount() const { return static_cast<int>(m_columns.size()); }
    /// The column's number on screen. Return 0, and leave `column` alone, if there is no such index or title.
    int GetColumnNoFor(ColumnIndex index, ColumnPlace& column) const;
    int GetColumnNoFor(const CString& title, ColumnPlace& column) const;
    /// The fixed index of a column on screen; -1 for the row header and outside of the grid.
    [[nodiscard]] ColumnIndex GetColIndex(ColumnPlace column) const;
    [[nodiscard]] const zel::GridColumn& GetColInfo(ColumnIndex index) const { return m_columns[index.place()]; }
    [[nodiscard]] const CString& GetColTitle(ColumnIndex index) const { return GetColInfo(index).title; }
    [[nodiscard]] CArray<ColumnIndex> GetAllColumns() const;  ///< all indices, ascending

    void SetColKind(ColumnIndex index, zel::GridKind kind);
    void SetColWidth(ColumnIndex index, int width);
    void SetColHidden(ColumnIndex index, bool hidden = true);
    void SetColAlign(ColumnIndex index, zel::GridAlign align);
    void SetColPlaces(ColumnIndex index, int places) { SetColNumber(index, {zel::GridNumberStyle::Form::fixed, places}); }
    void SetColNumber(ColumnIndex index, const zel::GridNumberStyle& number);
    void SetColDisabled(ColumnIndex index, bool disabled = true);
    void SetColReadOnly(ColumnIndex index, bool readOnly = true);
    void SetColFrozen(ColumnIndex index, bool frozen = true);
    void SetColResizable(ColumnIndex index, bool resizable);
    /// The list that the column's cells offer. @param only  false lets other texts be typed as well
    void SetColChoices(ColumnIndex index, const std::vector<CString>& choices, bool only = true);

    /// A header of the title, `before`, the current unit of the column and `after`; a column whose type has no unit gets the
    /// title and `without`. UpdateHeaders makes it again.
    void ComposeHeader(ColumnIndex index, const CString& before, const CString& after, const CString& without = {});
    /// A header that stays as it is given.
    void SetColHeader(ColumnIndex index, const CString& header);
    /// Another unit type for a column, such as one that depends on the kind of data. Composed headers follow.
    void SetColUnitType(ColumnIndex index, int unitType);
    void UpdateHeaders();

    /// Headers of rows: whether they bear the row's number, and how wide they are [pixels]; 0 hides them.
    void SetRowHeader(bool numbered, int width);
    [[nodiscard]] int GetRowHeaderWidth() const { return m_rowHeaderWidth; }
    /// Text of a row's header: its number, or "" when rows are not numbered; "Append Row" or, while it is being edited, "New Row".
    [[nodiscard]] virtual CString GetRowHeaderText(Row row) const;
    /// Whether the headers of columns are shown.
    void SetColHeaderShown(bool shown);
    [[nodiscard]] bool IsColHeaderShown() const { return m_colHeaderShown; }

    /// Moves columns on screen before column `target` (one behind the last means the end).
    void MoveColumns(ColumnPlace firstColumn, ColumnPlace lastColumn, ColumnPlace targetColumn);
    void SetColDrag(bool allowed) { m_colDrag = allowed; }
    void SetRowDrag(bool allowed) { m_rowDrag = allowed; }
    [[nodiscard]] bool isColDrag() const { return m_colDrag; }
    [[nodiscard]] bool isRowDrag() const { return m_rowDrag; }

    // Rows.

    [[nodiscard]] int GetDataRowCount() const;
    /// Number of the last row: the data rows and the append row.
    [[nodiscard]] int GetRowCount() const { return GetDataRowCount() + (m_appendRow ? 1 : 0); }
    void SetAppendRow(bool there);
    /// Number of the append row; 0 if there is none.
    [[nodiscard]] Row GetAppendRow() const { return m_appendRow ? Row::of(GetDataRowCount() + 1) : Row(); }
    /// Whether the row is the empty row at the end for new entries.
    [[nodiscard]] bool IsAppendRow(Row row) const { return m_appendRow && row == GetDataRowCount() + 1; }
    [[nodiscard]] bool IsDataRow(Row row) const { return row >= 1 && row <= GetDataRowCount(); }

    /// Empty data rows in place of all. Selection goes; the current cell stays where it fits.
    void SetRowCount(int count);
    /// Puts an empty data row in at `row` (1 to one behind the last); takes a data row out.
    void InsertRecord(Row row);
    void DeleteRecord(Row row);
    /// Moves data rows so that they stand together, in the order given, before row `target` (one behind the last means the end).
    void MoveRecords(const CArray<Row>& rows, Row target);
    void SetRowHidden(Row row, bool hidden = true);
    [[nodiscard]] bool IsRowHidden(Row row) const;
    /// A number that stays with a data row, such as the key of its record.
    void SetRowKey(Row row, std::uint32_t key);
    [[nodiscard]] std::uint32_t GetRowKey(Row row) const;

    // Cells. Outside of the grid a text is "" and a write does nothing. Row 0 gives the headers.

    /// A cell's text: what is being typed, where the row is under edit.
    [[nodiscard]] CString GetValueRowCol(Row row, ColumnPlace column) const { return TextAt(row, GetColIndex(column)); }
    void SetValueRowCol(Row row, ColumnPlace column, const CString& text) { SetTextAt(row, GetColIndex(column), text); }
    /// The same by fixed index, which is what a record's columns are best addressed by.
    [[nodiscard]] virtual CString TextAt(Row row, ColumnIndex index) const;
    virtual void SetTextAt(Row row, ColumnIndex index, const CString& text);
    /// All texts of a row in the order of the indices.
    [[nodiscard]] CArray<CString> GetRowTexts(Row row) const;
    virtual void SetRowTexts(Row row, const CArray<CString>& texts);
    /// What is seen of a cell: reals with the places of their style.
    [[nodiscard]] virtual CString GetShownText(Row row, ColumnIndex index) const;

    /// What one cell has different from its column; the row keeps it when it moves.
    void SetCellStyle(Row row, ColumnIndex index, const zel::GridCellStyle& style);
    [[nodiscard]] zel::GridCellStyle GetCellStyle(Row row, ColumnIndex index) const;
    [[nodiscard]] zel::GridKind GetCellKind(Row row, ColumnIndex index) const;
    [[nodiscard]] std::vector<CString> GetCellChoices(Row row, ColumnIndex index) const;
    /// Whether the cell can be current: in sight and not disabled.
    [[nodiscard]] bool IsValidCell(Row row, ColumnPlace column) const;
    /// Whether a text can be typed into the cell.
    [[nodiscard]] bool IsCellEditable(Row row, ColumnIndex index) const;

    // Current cell and selection.

    /// Returns 0, with both left alone, if no cell is current.
    int GetCurrentCell(Row& row, ColumnPlace& column) const;
    [[nodiscard]] Row GetCurrentRow() const { return m_currentRow; }  ///< 0 if no cell is current
    /// Returns 0, with the current cell left alone, if the cell will not take it.
    virtual int SetCurrentCell(Row row, ColumnPlace column);
    void ResetCurrentCell();
    /// Make the next cell in that direction current that can take it. Return 0 if there is none.
    int SetRightValidCell(Row row, ColumnPlace column);
    int SetLeftValidCell(Row row, ColumnPlace column);
    int SetDownValidCell(Row row, ColumnPlace column);

    /// The rows that are selected as a whole, in the order in which they were selected.
    [[nodiscard]] const CArray<Row>& GetSelectedRows() const;
    void SelectRows(const CArray<Row>& rows);
    void ResetSelection();

    // Painting.

    /// Until the lock is taken off, as often as it was put on, observers are told of nothing. Then they are told once.
    void LockPainting() { ++m_paintLocks; }
    /// Returns whether this lock was the outermost.
    bool UnlockPainting();

    // For hosts: numbers of the user's channel.

    [[nodiscard]] Row toRow(UserRow userRow) const;  ///< the grid's row of a row in a journal; -1 outside
    [[nodiscard]] UserRow toUserRow(Row row) const;  ///< `append` for the append row
    [[nodiscard]] static ColumnPlace toColumn(UserColumn column) { return ColumnPlace::of(column.number() + 1); }
    [[nodiscard]] static UserColumn toUserColumn(ColumnPlace column) { return column.number() - 1; }
    [[nodiscard]] UserColumn columnByTitle(std::string_view title) const;       ///< by its header or its title
    [[nodiscard]] CString shownText(UserRow userRow, UserColumn column) const;  ///< what a host paints
    /// Has rows that are filled on demand filled now, those of a screenful at once.
    virtual void fillRows(Row /*firstRow*/, Row /*lastRow*/) {}

protected:
    [[nodiscard]] zel::GridRowStore& rows() const { return *m_rows; }
    [[nodiscard]] ColumnPlace columnOf(ColumnIndex index) const;  ///< number on screen; 0 if there is none
    [[nodiscard]] bool hasIndex(ColumnIndex index) const { return index >= 0 && index < GetColCount(); }
    /// Asks the observers to draw again, at once or when the lock goes.
    void repaint();
    void setCurrent(Row row, ColumnPlace column);
    /// Runs something that changes nothing for an observer: the filling of rows as they are read.
    template <class Work> void inSilence(Work work)
    {
        const bool pending = m_repaint;
        ++m_paintLocks;
        work();
        --m_paintLocks;
        m_repaint = pending;
    }
    void followCurrent(Row row)
    {
        m_currentRow = row;
        repaint();
    }

    /// The text that is kept for a cell, whatever is being typed.
    [[nodiscard]] CString storedText(Row row, ColumnIndex index) const;
    /// Fills a row that has not been read yet.
    virtual void fillRow(Row /*row*/) {}
    /// Data rows have come, gone or changed places (`place`: for every old row its new one).
    virtual void rowInserted(Row /*row*/) {}
    virtual void rowDeleted(Row /*row*/) {}
    virtual void rowsReset() {}
    virtual void rowsMoved(const CArray<Row>& /*place*/) {}
    /// Row under edit; 0 if there is none.
    [[nodiscard]] virtual Row editedRow() const { return 0; }

private:
    struct Header {
        bool composed = false;
        CString before;
        CString after;
        CString without;
    };

    [[nodiscard]] zel::GridColumn& columnAt(ColumnIndex index) { return m_columns[index.place()]; }
    [[nodiscard]] const zel::GridCellStyle* cellStyle(Row row, ColumnIndex index) const;
    template <class Value> void setColumn(ColumnIndex index, Value zel::GridColumn::*field, const Value& value);
    int setValidCell(Row row, ColumnPlace column, int rowStep, int columnStep);
    template <class Change> void shiftStyles(Change newRow);

    std::vector<zel::GridColumn> m_columns;
    std::vector<Header> m_headers;
    CArray<ColumnIndex> m_order;  ///< indices in their order on screen
    std::unique_ptr<zel::GridRowStore> m_rows;
    std::map<std::pair<Row, ColumnIndex>, zel::GridCellStyle> m_styles;
    mutable CArray<Row> m_selected;         ///< as the rows say ...
    mutable bool m_selectionStale = false;  ///< ... unless rows have come or gone since
    Row m_currentRow;
    ColumnIndex m_currentIndex = -1;
    int m_rowHeaderWidth = 35;
    bool m_rowNumbers = true;
    bool m_colHeaderShown = true;
    bool m_appendRow = true;
    bool m_colDrag = true;
    bool m_rowDrag = false;
    int m_paintLocks = 0;
    bool m_repaint = false;
};

namespace zel {

/// Keeps a grid's painting locked while it lives.
class GridPaintLock {
public:
    explicit GridPaintLock(CTBGrid& grid) : m_grid(grid) { m_grid.LockPainting(); }
    GridPaintLock(const GridPaintLock&) = delete;
    GridPaintLock& operator=(const GridPaintLock&) = delete;
    ~GridPaintLock() { m_grid.UnlockPainting(); }

private:
    CTBGrid& m_grid;
};

}  // namespace zel
