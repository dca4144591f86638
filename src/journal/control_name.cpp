#include "journal/control_name.h"

#include "contract/forms/dialog.h"
#include "contract/forms/find_control.h"
#include "contract/forms/row_numbers.h"

#include <nlohmann/json.hpp>

namespace zel {

namespace {

bool leadsTo(const Control& control, const CString& name)
{
    return !name.empty() && findControl(control.dialog().root(), name).control == &control;
}

/// The name with the count that leads to the control; empty if none does.
CString counted(const Control& control, const CString& name)
{
    for (std::size_t count = 1; !name.empty() && count <= control.dialog().root().controls().size(); ++count) {
        const CString candidate = name + "#" + std::to_string(count);
        if (leadsTo(control, candidate))
            return candidate;
    }
    return {};
}

}  // namespace

CString controlName(const Control& control)
{
    const CString label = normalisedLabel(control.label());
    const CString group = control.group() != nullptr ? normalisedLabel(control.group()->GetWindowText()) : CString();
    const CString page = normalisedLabel(control.page());
    std::vector<CString> candidates;
    if (!label.empty()) {
        candidates.push_back(label);
        if (!group.empty())
            candidates.push_back(group + "/" + label);
        if (!page.empty())
            candidates.push_back(page + "/" + label);
    }
    candidates.push_back(control.id());
    candidates.push_back(counted(control, label));
    candidates.push_back(counted(control, control.id()));
    for (const CString& candidate : candidates) {
        if (leadsTo(control, candidate))
            return candidate;
    }
    return {};
}

Json columnName(const CTBGrid& grid, UserColumn column)
{
    const ColumnIndex index = grid.GetColIndex(CTBGrid::toColumn(column));
    if (index >= 0 && !grid.GetColTitle(index).empty() && grid.columnByTitle(grid.GetColTitle(index)) == column)
        return grid.GetColTitle(index);
    return column.number();
}

Json rowName(UserRow row)
{
    return row == CTBGrid::append ? Json("append") : Json(row.number());
}

UserValue entryName(const std::vector<CString>& entries, int index)
{
    const bool there = index >= 0 && index < static_cast<int>(entries.size());
    if (there && entryNamed(entries, entries[static_cast<std::size_t>(index)]) == index)
        return entries[static_cast<std::size_t>(index)];
    return static_cast<double>(index);
}

}  // namespace zel
