#include "command/row_move.h"

#include "command/messages.h"

#include <algorithm>

namespace zel {

std::optional<RowMove> droppedRows(const CTBBrowserWndEx& grid, Row targetRow, const RowMoveRefusals& refusals)
{
    const auto refuse = [](const char* message) -> std::optional<RowMove> {
        showMessage(message);
        return std::nullopt;
    };
    if (grid.IsEdit())
        return refuse(refusals.editing);
    const CArray<Row>& selected = grid.GetSelectedRows();
    if (selected.empty())
        return refuse(refusals.nothingSelected);
    const Row behindAppendRow = Row::of(grid.GetRowCount() + 1);
    const Row afterRow = targetRow == behindAppendRow ? targetRow - 2 : targetRow - 1;
    if (std::ranges::find(selected, afterRow) != selected.end())
        return refuse(refusals.noTarget);
    RowMove move;
    for (const Row row : selected)
        move.keys.push_back(grid.GetRowKey(row));
    move.afterKey = grid.GetRowKey(afterRow);
    return move;
}

}  // namespace zel
