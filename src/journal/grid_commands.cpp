#include "journal/grid_commands.h"

#include "contract/forms/find_control.h"
#include "contract/forms/grid_browser_ex.h"

#include <array>

namespace zel {

namespace {

template <class Grid> Grid& gridOf(Control& control, const JournalCommand& command)
{
    auto* grid = dynamic_cast<Grid*>(&control);
    if (grid == nullptr)
        throw JsonFault("control", "\"" + command.text("control") + "\" is no grid that takes " + command.name());
    return *grid;
}

int rowOf(const JournalCommand& command, std::string_view field)
{
    if (command.at(field) == Json("append"))
        return CTBGrid::append;
    const int row = command.integer(field);
    if (row < 0)
        throw JsonFault(std::string(field), "must be a row number from 0, or \"append\"");
    return row;
}

int columnBehindKey(const CTBGrid& grid, const std::string& title)
{
    const CString wanted = normalisedLabel(title);
    for (int column = 0; column < grid.GetColCount(); ++column) {
        const std::string_view shown = grid.GetColTitle(grid.GetColIndex(column + 1));
        if (withoutKey(shown) != shown && normalisedLabel(withoutKey(shown)) == wanted)
            return column;
    }
    return -1;
}

int columnOf(const CTBGrid& grid, const JournalCommand& command)
{
    const Json& json = command.at("column");
    if (!json.is_string()) {
        const int column = command.integer("column");
        if (column < 0 || column >= grid.GetColCount())
            throw JsonFault("column", "must be a number from 0 to " + std::to_string(grid.GetColCount() - 1) + ", or a title");
        return column;
    }
    const std::string& title = command.text("column");
    int column = grid.columnByTitle(title);
    if (column < 0)
        column = columnBehindKey(grid, title);
    if (column < 0)
        throw JsonFault("column", "there is no column \"" + title + "\"");
    return column;
}

Taken typeCell(Control& control, const JournalCommand& command)
{
    auto& grid = gridOf<CTBBrowserWnd>(control, command);
    const int row = rowOf(command, "row");
    return grid.typeCell(row, columnOf(grid, command), command.text("text"));
}

Taken makeCurrent(Control& control, const JournalCommand& command)
{
    auto& grid = gridOf<CTBBrowserWnd>(control, command);
    const int row = rowOf(command, "row");
    return grid.clickCell(row, columnOf(grid, command));
}

Taken pasteBlock(Control& control, const JournalCommand& command)
{
    auto& grid = gridOf<CTBBrowserWndEx>(control, command);
    const int row = rowOf(command, "row");
    return grid.paste(row, columnOf(grid, command), command.text("text"));
}

Taken dropText(Control& control, const JournalCommand& command)
{
    auto& grid = gridOf<CTBBrowserWnd>(control, command);
    const int row = rowOf(command, "row");
    return grid.dropText(row, columnOf(grid, command), command.text("text"));
}

constexpr std::array<ControlCommand, 8> commands{{
    {"cell", typeCell},
    {"current", makeCurrent},
    {"leave_row", [](Control& control, const JournalCommand& command) { return gridOf<CTBBrowserWnd>(control, command).leaveRow(); }},
    {"escape", [](Control& control, const JournalCommand& command) { return gridOf<CTBBrowserWnd>(control, command).escape(); }},
    {"delete_rows", [](Control& control, const JournalCommand& command) { return gridOf<CTBBrowserWnd>(control, command).deleteRows(command.rows("rows")); }},
    {"paste", pasteBlock},
    {"drag_rows",
     [](Control& control, const JournalCommand& command) {
         return gridOf<CTBBrowserWndEx>(control, command).dragRows(command.rows("rows"), rowOf(command, "to"));
     }},
    {"drop", dropText},
}};

}  // namespace

std::span<const ControlCommand> gridCommands()
{
    return commands;
}

std::string_view withoutKey(std::string_view text)
{
    const std::size_t end = text.starts_with("[IDS_") ? text.find(']') : std::string_view::npos;
    return end == std::string_view::npos ? text : text.substr(end + 1);
}

}  // namespace zel
