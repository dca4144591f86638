#pragma once

#include "contract/text.h"

#include <cstddef>
#include <cstdint>
#include <deque>
#include <string_view>
#include <vector>

namespace zel {

/// The cell texts of a grid's data rows, from 0. A row is one block of memory: the ends of its texts, then the texts, so that
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
    void insert(int row);
    void erase(int row);
    /// Moves rows, given ascending, so that they stand together before row `target` (the row count means the end).
    /// Gives for every old row its new place.
    std::vector<int> move(const std::vector<int>& rows, int target);

    [[nodiscard]] std::string_view text(int row, int column) const;
    void setText(int row, int column, std::string_view text);
    [[nodiscard]] CArray<CString> texts(int row) const;
    /// All texts of a row at once; missing ones are empty.
    void setTexts(int row, const CArray<CString>& texts);

    [[nodiscard]] bool filled(int row) const { return at(row).filled; }
    void setFilled(int row, bool filled) { at(row).filled = filled; }
    [[nodiscard]] bool hidden(int row) const { return at(row).hidden; }
    void setHidden(int row, bool hidden) { at(row).hidden = hidden; }
    [[nodiscard]] std::uint32_t key(int row) const { return at(row).key; }
    void setKey(int row, std::uint32_t key) { at(row).key = key; }

    /// Selects rows in this order, and no others.
    void select(const std::vector<int>& rows);
    /// The selected rows in the order in which they were selected, at their present places.
    [[nodiscard]] std::vector<int> selected() const;

private:
    struct Row {
        std::string block;  ///< as many 32-bit ends as there are columns, then the texts; empty for a row of empty texts
        std::uint32_t key = 0;
        std::uint32_t selected = 0;  ///< number in the order of selection, from 1; 0 if it is not selected
        bool filled = true;
        bool hidden = false;
    };

    [[nodiscard]] Row& at(int row) { return *m_rows[static_cast<std::size_t>(row)]; }
    [[nodiscard]] const Row& at(int row) const { return *m_rows[static_cast<std::size_t>(row)]; }
    [[nodiscard]] std::size_t head() const;
    [[nodiscard]] static std::uint32_t end(const Row& row, int column);
    static void setEnd(Row& row, int column, std::uint32_t end);

    [[nodiscard]] Row* newRow();

    int m_columns = 0;
    std::deque<Row> m_pool;      ///< all rows that were ever made since the last reset; they stay where they are
    std::vector<Row*> m_unused;  ///< those of them that were taken out
    std::vector<Row*> m_rows;    ///< plain pointers, so that a row is put in by moving a block of bytes
};

}  // namespace zel
