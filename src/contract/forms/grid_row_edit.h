#pragma once

#include "contract/forms/grid_places.h"
#include "contract/text.h"

namespace zel {

/// The row under edit of a grid and its open cell. What is typed lies here, beside the stored texts, until the row is written or given up.
///
///     none -- begin --> untouched -- settle(true) --> typed -- beginWriting --> writing -- end --> none
///                                                       ^                          |
///                                                       +----- refuseWriting ------+
///
/// In the states untouched and typed a cell may be open. Both end in none by `end`, typed also by `settle(false)`, untouched by dropping its
/// cell. Each transition asserts the state that it starts from.
class RowEdit {
public:
    [[nodiscard]] bool isNone() const { return m_state == State::none; }
    /// Under edit, and not being written.
    [[nodiscard]] bool isEditing() const { return m_state == State::untouched || m_state == State::typed; }
    /// Something differs from the stored texts, or was typed into the row for a new entry.
    [[nodiscard]] bool isTyped() const { return m_state == State::typed; }
    [[nodiscard]] bool isWriting() const { return m_state == State::writing; }
    /// Whether it is the row for a new entry.
    [[nodiscard]] bool isAdded() const { return !isNone() && m_isAdded; }
    /// Which data row it is; 0 for the row for a new entry, and for a row that has gone while it was written.
    [[nodiscard]] Row dataRow() const { return m_row; }

    /// The texts of all columns, with what has been typed into cells that are closed.
    [[nodiscard]] const CArray<CString>& texts() const { return m_texts; }
    /// A cell's text: of the open one what is being typed.
    [[nodiscard]] const CString& text(ColumnIndex index) const { return isOpen(index) ? m_cell : m_texts[index.place()]; }

    [[nodiscard]] bool hasOpenCell() const { return m_openCell >= 0; }
    [[nodiscard]] bool isOpen(ColumnIndex index) const { return hasOpenCell() && index == m_openCell; }
    [[nodiscard]] ColumnIndex openCell() const { return m_openCell; }  ///< -1 if none is open
    /// Whether something was typed into the open cell.
    [[nodiscard]] bool isCellTyped() const { return m_isCellTyped; }

    void begin(Row dataRow, CArray<CString> texts);
    void beginNew(CArray<CString> texts);
    void openCell(ColumnIndex index);
    void type(const CString& text);
    /// Closes the open cell: its text goes into the row, which `settle` is to be told of.
    void keepCell();
    /// Closes the open cell, with the text that it had; so ends the edit of a row into which nothing has been typed.
    void dropCell();
    /// Says whether the row differs from what is stored. If not, its edit ends.
    void settle(bool differs);
    void beginWriting();
    /// The row stays under edit, unless it has gone meanwhile.
    void refuseWriting();
    void end();

    /// Another text for a cell in the place of what was typed, such as its value in another unit.
    void replaceText(ColumnIndex index, const CString& text);

    // Rows of the grid have come, gone or changed places. A row that has gone ends its edit, unless it is being written.

    void rowInserted(Row row);
    void rowDeleted(Row row);
    /// @param place  for every old row its new one
    void rowsMoved(const CArray<Row>& place);
    /// All rows have gone, but for those up to `kept`, which are the same as before.
    void rowsReset(int kept);

private:
    enum class State { none, untouched, typed, writing };

    void start(Row row, bool isAdded, CArray<CString>&& texts);
    void loseRow();

    State m_state = State::none;
    bool m_isAdded = false;
    Row m_row;
    CArray<CString> m_texts;
    ColumnIndex m_openCell = -1;
    CString m_cell;  ///< text of the open cell
    bool m_isCellTyped = false;
};

}  // namespace zel
