#pragma once

#include "contract/forms/grid_places.h"
#include "contract/text.h"

#include <cstddef>
#include <cstdint>
#include <deque>
#include <string_view>
#include <vector>

namespace zel {

/// The cell texts of a grid's data rows. A row is one block of memory: the ends of its texts, then the texts, so that
/// a hundred thousand rows of mostly empty cells stay small, and the rows themselves are a vector of handles.
class GridRowStore {
public:
    explicit GridRowStore(int columns = 0) : m_columns(columns) {}
    GridRowStore(const GridRowStore&) = delete;
    GridRowStore& operator=(const GridRowStore&) = delete;

    [[nodiscard]] int count() const { return static_cast<int>(m_rows.size()); }
    [[nodiscard]] int columns() const { return m_columns; }

    /// Adds an empty column behind the last one to every row.
    void addColumn();

    /// `count` empty rows in place of all rows; `filled` false marks them as still to be asked for.
    void reset(int count, bool filled);
    void insert(Row row);
    void erase(Row row);
    /// Moves rows, each given once, so that they stand together before row `target` (one behind the last means the end).
    /// Gives for every old row its new one.
    CArray<Row> move(const CArray<Row>& rows, Row target);

    [[nodiscard]] std::string_view text(Row row, ColumnIndex column) const;
    void setText(Row row, ColumnIndex column, std::string_view text);
    [[nodiscard]] CArray<CString> texts(Row row) const;
    /// All texts of a row at once; missing ones are empty.
    void setTexts(Row row, const CArray<CString>& texts);

    [[nodiscard]] bool filled(Row row) const { return at(row).filled; }
    void setFilled(Row row, bool filled) { at(row).filled = filled; }
    [[nodiscard]] bool hidden(Row row) const { return at(row).hidden; }
    void setHidden(Row row, bool hidden) { at(row).hidden = hidden; }
    [[nodiscard]] std::uint32_t key(Row row) const { return at(row).key; }
    void setKey(Row row, std::uint32_t key) { at(row).key = key; }

    /// Selects rows in this order, and no others.
    void select(const CArray<Row>& rows);
    /// The selected rows in the order in which they were selected, at their present places.
    [[nodiscard]] CArray<Row> selected() const;

private:
    struct Stored {
        std::string block;  ///< as many 32-bit ends as there are columns, then the texts; empty for a row of empty texts
        std::uint32_t key = 0;
        std::uint32_t selected = 0;  ///< number in the order of selection, from 1; 0 if it is not selected
        bool filled = true;
        bool hidden = false;
    };

    [[nodiscard]] Stored& at(Row row) { return *m_rows[row.place()]; }
    [[nodiscard]] const Stored& at(Row row) const { return *m_rows[row.place()]; }
    [[nodiscard]] std::size_t head() const;
    [[nodiscard]] static std::uint32_t end(const Stored& row, int column);
    /// Where the text of a column begins: where the one before ends.
    [[nodiscard]] static std::uint32_t begin(const Stored& row, int column);
    static void setEnd(Stored& row, int column, std::uint32_t end);

    [[nodiscard]] Stored* newRow();

    int m_columns = 0;
    std::deque<Stored> m_pool;      ///< all rows that were ever made since the last reset; they stay where they are
    std::vector<Stored*> m_unused;  ///< those of them that were taken out
    std::vector<Stored*> m_rows;    ///< plain pointers, so that a row is put in by moving a block of bytes
};

}  // namespace zel
