#pragma once

#include "contract/forms/control.h"
#include "contract/forms/grid.h"
#include "platform/modeldb/json_text.h"

namespace zel {

/// The plainest name by which a journal finds this very control in its form as it stands now: its label as names are compared, else with
/// its group or page before it, else its id, else either with a count. Empty if no name leads to it.
[[nodiscard]] CString controlName(const Control& control);

/// A column of a grid as a journal names it: its title where that leads to it, else its number from 0.
[[nodiscard]] Json columnName(const CTBGrid& grid, UserColumn column);
/// A row as a journal names it: its number from 0, or "append".
[[nodiscard]] Json rowName(UserRow row);
/// What is entered to choose the entry at `index`: its text where that leads to it, else its number.
[[nodiscard]] UserValue entryName(const std::vector<CString>& entries, int index);

}  // namespace zel
