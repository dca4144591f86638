#pragma once

#include "contract/forms/grid.h"

#include <memory>
#include <utility>

namespace zel {

class RowEdit;

}  // namespace zel

/// A grid in which each row is a record: the editing of cells and rows, and the points at which a grid of the program is
/// asked to test, write and delete records.
///
/// Life of a row. Typing into a cell puts its row under edit; what is typed lies beside the stored texts. Leaving the cell asks
/// ValidateField, and on false the cell stays open. Leaving the row asks ValidateRecord, then writes it: AddToDB(row) for the append
/// row, ModifyToDB(row) for any other; a row that is refused stays under edit. A write that the grid has not mirrored itself, by
/// InsertRecord, DeleteRecord or new texts, is mirrored by the browser.
class CTBBrowserWnd : public CTBGrid {
public:
    /// @param onCurrentRow  another row (0 for none) has become current by the user, or holds another record after an update. Also called
    ///                      with the append row
    CTBBrowserWnd(const zel::Place& place, std::string_view id, zel::Action<Row> onCurrentRow = {});
    ~CTBBrowserWnd() override;

    // What a grid of the program overrides. Rows are the grid's; `columns` and `column` are indices, `texts` stand in their order.

    /// Styles and column widths; then the base's, which fills the rows.
    virtual void Initialize();
    /// The keys of the selected records; returns their count.
    virtual int GetSelectedKeys(CArray<std::uint32_t>& keys);
    [[nodiscard]] virtual ColumnIndex GetKeyColID() const { return 0; }
    /// The user has selected other rows.
    virtual void OnChangedSelectionPublic(const CArray<Row>& /*rows*/, int /*count*/) {}

    /// Writes the new record of the append row.
    virtual bool AddToDB(Row row);
    virtual bool DeleteFromDB(Row row);
    virtual bool DeleteFromDB(const CArray<Row>& rows);
    /// Writes the changed record of a row; its old key or name is in GetValueRowColBeforeEdit.
    virtual bool ModifyToDB(Row row);

    /// Text of the key column of a new row.
    [[nodiscard]] virtual CString GetNewKey() { return {}; }
    /// Text with which a cell of a new row begins: of GetDefValueArray, "" beyond its end.
    [[nodiscard]] virtual CString GetDefValue(ColumnIndex column);
    [[nodiscard]] virtual const CArray<CString>& GetDefValueArray();

    /// Tests of a cell and of a row. On false the warning text has been set.
    virtual bool ValidateField(const CString& text, ColumnIndex column);
    virtual bool ValidateRecord(const CArray<CString>& texts, const CArray<ColumnIndex>& columns);

    /// Number of records.
    [[nodiscard]] virtual int GetCountData() { return GetDataRowCount(); }
    /// Fills only the given rows, with ShowRowsOnDemand.
    virtual void MakeItemFiltered(int count, const CArray<Row>& rows, const CArray<ColumnIndex>& columns);
    /// Fills rows 1 to `count` from the data, in order. With ShowRowsOnDemand it only sets the row keys.
    virtual void MakeItemNormal(int count, const CArray<ColumnIndex>& columns);
    /// Rewrites a row under edit after a change of units; SetTextAt then writes what is being typed.
    virtual void MakeItemEditingRecord(Row row, const CArray<CString>& texts);
    /// The units have changed: convert the data, or read it again, and the rows.
    virtual void UnitChanged() {}

    // Further points, all of them for doing more; the base's do nothing.

    virtual void OnCurrentCellChanged(Row /*row*/, ColumnPlace /*column*/) {}
    virtual void OnClickCell(Row /*row*/, ColumnPlace /*column*/) {}
    virtual void OnDoubleClickCell(Row /*row*/, ColumnPlace /*column*/) {}
    virtual void OnRightDoubleClickCell(Row /*row*/, ColumnPlace /*column*/) {}
    virtual void OnKeyCell(zel::UserKey /*key*/) {}
    virtual void OnButtonCell(Row /*row*/, ColumnIndex /*index*/) {}
    /// A cell was left with another text, or its edit was given up.
    virtual void OnEndEditing(Row /*row*/, ColumnIndex /*index*/) {}
    virtual void OnCancelEditing(Row /*row*/, ColumnIndex /*index*/) {}
    /// A text was dropped on a cell (row and column of the grid); false if the grid has no use for it.
    virtual bool OnDropText(Row /*row*/, ColumnPlace /*column*/, const CString& /*text*/) { return false; }

    // Operations.

    /// Rows anew from GetCountData and MakeItemNormal, in one repaint. What is being typed is kept where its row still is there.
    void RebuildRows();
    /// Rows are filled by MakeItemFiltered when they are first read, from their row keys, instead of all at once.
    void ShowRowsOnDemand(bool onDemand) { m_onDemand = onDemand; }
    /// Follows a change of units: UnitChanged, headers, and MakeItemEditingRecord for a row under edit. A dialog calls it on hint 4.
    void ChangeUnits();

    /// A cell's text before the open edit: the stored one.
    [[nodiscard]] CString GetValueRowColBeforeEdit(Row row, ColumnPlace column) const { return storedText(row, GetColIndex(column)); }
    [[nodiscard]] CString TextBeforeEdit(Row row, ColumnIndex index) const { return storedText(row, index); }
    /// Whether a row is under edit.
    [[nodiscard]] bool IsEdit() const;
    /// Whether the append row is under edit or being written.
    [[nodiscard]] bool IsAppend() const;
    /// Row under edit; 0 if there is none.
    [[nodiscard]] Row GetEditRow() const { return editedRow(); }
    /// Column index of the open cell; -1 if none is open.
    [[nodiscard]] ColumnIndex GetOpenCell() const;

    /// Ends what is open. @param mode  0 gives it up; 1 writes it, and keeps it open if it is refused; 2 writes it, or else gives it up
    /// @return 0 if something was refused or given up
    int OnTerminate(int mode);
    /// Non-zero: cells are shown, and rows selected and dragged, but nothing can be typed, pasted or deleted by the user.
    void SetModeDisplayOnly(int displayOnly);
    [[nodiscard]] bool IsModeDisplayOnly() const { return m_displayOnly; }
    /// A cell that is left writes its row at once. For forms of cells, whose rows are no records.
    void SetWriteEachCell(bool each) { m_writeEachCell = each; }

    /// The text that is shown when a cell or a row is refused; ValidateField and ValidateRecord set it.
    void SetWarningText(const CString& text) { m_warning = text; }
    [[nodiscard]] const CString& GetWarningText() const { return m_warning; }
    /// The warning shown last; "" once something was taken.
    [[nodiscard]] const CString& GetShownWarning() const { return m_shownWarning; }

    int SetCurrentCell(Row row, ColumnPlace column) override;
    /// Makes a row current, at the current column if that is possible, and fires the handler of the current row if it is another one.
    /// Returns 0 if it can't.
    int MakeRowCurrent(Row row);
    /// Fires the handler of the current row, whether it is another one or not.
    void ShowCurrentRow();

    /// The value of an expression of numbers, + - * / ^ and parentheses, with "%.15g"; any other text, plain numbers too, as it is.
    static CString ConvertFormulaToValue(const CString& text);
    /// Whether a text is a number or such an expression. An empty text passes.
    /// @param reason  0; 1 bad formula, 2 stray character, 3 too big: not finite, or above 1e30
    static bool IsValidDoubleNumber(const CString& text, int& reason);

    CString TextAt(Row row, ColumnIndex index) const override;
    void SetTextAt(Row row, ColumnIndex index, const CString& text) override;
    void SetRowTexts(Row row, const CArray<CString>& texts) override;
    CString GetShownText(Row row, ColumnIndex index) const override;
    void fillRows(Row firstRow, Row lastRow) override;

    // The user's channel. A cell or row that is refused with a warning
    // counts as carried out: the warning goes to the user interface, and the cell or row stays open.

    /// Opens a cell, types a text and leaves it.
    zel::Taken typeCell(UserRow row, UserColumn column, const CString& text);
    /// The same in steps, for an editor on a screen.
    zel::Taken openCell(UserRow row, UserColumn column);
    zel::Taken typeText(const CString& text);
    zel::Taken leaveCell();
    /// Clicks into a cell: makes it current. In a frozen column it selects the row.
    zel::Taken clickCell(UserRow row, UserColumn column);
    zel::Taken doubleClickCell(UserRow row, UserColumn column);
    zel::Taken rightDoubleClickCell(UserRow row, UserColumn column);
    zel::Taken doubleClick(int row) override;
    /// Presses the button in a cell.
    zel::Taken pressCell(UserRow row, UserColumn column);
    /// Selects whole rows.
    zel::Taken select(const std::vector<int>& rows) override;
    /// Leaves the row under edit: it is tested and written.
    zel::Taken leaveRow();
    /// Gives the open cell up; with none open, the row under edit.
    zel::Taken escape();
    zel::Taken deleteRows(const std::vector<int>& rows);
    zel::Taken dropText(UserRow row, UserColumn column, const CString& text);
    zel::Taken resizeColumn(UserColumn column, int width);

    void onDestroying() override;

protected:
    /// Leaves the cell and the row as needed to go elsewhere. False, with the warning shown, if they are refused.
    bool closeCell();
    bool closeRow();
    void cancelCell();
    void cancelRow();
    /// Makes a cell current for the user. False if what is open does not let go.
    bool goTo(Row row, ColumnPlace column);
    /// The same for a row as a whole; a row without any valid cell becomes current too.
    bool goToRow(Row row);
    void showWarning();
    /// Fires the handler of the current row if it is another one than before.
    void tellCurrentRow();
    void selectByUser(const CArray<Row>& rows);
    /// Gives the grid the focus for an action at a cell of the user's channel, and gives the cell in the grid's numbers; a refusal where there is
    /// no such cell.
    zel::Taken focusCell(UserRow row, UserColumn column, Row& gridRow, ColumnPlace& gridColumn);
    /// A user's action at a cell: `act` gets the cell in the grid's numbers, once the grid has the focus.
    template <class Act> zel::Taken atCell(UserRow row, UserColumn column, Act act)
    {
        const zel::UserAction action;
        Row gridRow;
        ColumnPlace gridColumn;
        if (zel::Taken there = focusCell(row, column, gridRow, gridColumn); !there)
            return there;
        return act(gridRow, gridColumn);
    }
    /// The same for one that changes what the cells hold.
    template <class Act> zel::Taken changeAtCell(UserRow row, UserColumn column, Act act)
    {
        return atCell(row, column, [&](Row gridRow, ColumnPlace gridColumn) {
            zel::Taken free = changeable();
            return free ? act(gridRow, gridColumn) : free;
        });
    }
    /// A user's action that needs no cell.
    template <class Act> zel::Taken inReach(Act act)
    {
        const zel::UserAction action;
        zel::Taken reached = reach();
        if (reached)
            act();
        return reached;
    }
    /// The rows of the user's channel in the grid's numbers: data rows, each once; a refusal where one is not there.
    zel::Taken toRows(const std::vector<int>& rows, CArray<Row>& gridRows) const;
    /// Refusal of a cell that takes no text; then of a text that the cell does not offer.
    zel::Taken editable(Row row, ColumnPlace column) const;
    zel::Taken offers(Row row, ColumnIndex index, const CString& text) const;
    /// Refusal of a change that the grid as a whole does not take.
    zel::Taken changeable() const;
    [[nodiscard]] CString userName(Row row, ColumnIndex index) const;
    [[nodiscard]] CArray<CString> newRowTexts();
    /// A row's texts as they are written: with values in place of formulas.
    [[nodiscard]] CArray<CString> writtenTexts(const CArray<CString>& texts) const;
    /// Whether rows were changed by `write`, as the record's notice does.
    template <class Write> bool touchesRows(Write write)
    {
        m_rowsTouched = false;
        write();
        return m_rowsTouched;
    }
    [[nodiscard]] bool isWriting() const;
    /// Does something that may make rows come and go, and lets the given rows follow their records. Meanwhile `followed` tells
    /// where the i-th of them stands.
    template <class Work> void following(CArray<Row>& followed, Work work)
    {
        const std::size_t first = m_tracked.size();
        m_tracked.insert(m_tracked.end(), followed.begin(), followed.end());
        work();
        followed.assign(m_tracked.begin() + static_cast<std::ptrdiff_t>(first), m_tracked.end());
        m_tracked.resize(first);
    }
    [[nodiscard]] Row followed(std::size_t i, std::size_t count) const { return m_tracked[m_tracked.size() - count + i]; }

    /// Puts a row that the browser has to mirror by itself where it belongs.
    virtual void mirrorAdded(const CArray<CString>& texts);
    virtual void mirrorChanged(Row row, const CArray<CString>& texts);

    bool onKey(zel::UserKey key) override;
    Row editedRow() const override;
    void fillRow(Row row) override;
    void rowInserted(Row row) override;
    void rowDeleted(Row row) override;
    void rowsReset() override;
    void rowsMoved(const CArray<Row>& place) override;

private:
    /// Goes to a cell and opens it. False if what is open elsewhere does not let go.
    bool openAt(Row row, ColumnPlace column);
    void openEdit(Row row);
    bool leaveFor(Row& row, ColumnIndex index);
    bool writeRow();
    /// The row under edit has another number now; the current row goes with it.
    void followEditedRow(Row former);
    void goOn();
    void goDown();

    zel::Action<Row> m_onCurrentRow;
    std::unique_ptr<zel::RowEdit> m_edit;
    CArray<Row> m_tracked;       ///< rows that are followed on their way while the row under edit is written
    bool m_rowsTouched = false;  ///< the grid of the program has changed rows since this was cleared
    Row m_toldRow;               ///< row that the handler was last told of
    bool m_displayOnly = false;
    bool m_writeEachCell = false;
    bool m_onDemand = false;
    bool m_convertingEdit = false;
    bool m_rebuilding = false;
    CString m_warning;
    CString m_shownWarning;
};

namespace zel {

/// An update of a grid's rows, such as a change notice asks for: painting is locked, and at the end the current cell is the same
/// row number and column as before, or the last row, or the next valid cell to the right or left; not so while the append row
/// is being written. If the current row then has another key, its handler is fired.
class GridUpdate {
public:
    explicit GridUpdate(CTBBrowserWnd& grid);
    GridUpdate(const GridUpdate&) = delete;
    GridUpdate& operator=(const GridUpdate&) = delete;
    ~GridUpdate();

private:
    [[nodiscard]] CString currentKey() const;

    CTBBrowserWnd& m_grid;
    CTBGrid::Row m_row;
    CTBGrid::ColumnPlace m_column;
    bool m_onAppendRow = false;
    CString m_key;
};

}  // namespace zel
