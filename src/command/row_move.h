#pragma once

#include "contract/forms/grid_browser_ex.h"
#include "contract/table_store.h"

#include <optional>
#include <vector>

namespace zel {

/// A move of records in the sequence of their table, as `ChangeSequence` takes it.
struct RowMove {
    std::vector<Key> keys;  ///< in the order in which they shall stand
    Key afterKey = 0;       ///< they go right behind this one; 0: to the front
};

/// Message keys for a move that can't be: a row is under edit; no row is selected; the rows are dropped behind one of themselves.
struct RowMoveRefusals {
    const char* editing;
    const char* nothingSelected;
    const char* noTarget;
};

/// What a drop of the selected rows of a grid before `targetRow` means, where rows stand in the sequence of their table and bear its keys.
/// Nothing, after a message, for a move that can't be.
[[nodiscard]] std::optional<RowMove> droppedRows(const CTBBrowserWndEx& grid, Row targetRow, const RowMoveRefusals& refusals);

}  // namespace zel
