#pragma once

#include "contract/forms/control.h"
#include "contract/text.h"

#include <vector>

namespace zel {

/// Why these rows can't be selected in a list of `count` rows; empty if they can.
[[nodiscard]] CString faultOfRows(const std::vector<int>& rows, int count, bool multiple);

/// Index of the entry that a user names by its text (as it stands, else as names of controls are compared) or its place; -1 if none.
[[nodiscard]] int entryNamed(const std::vector<CString>& entries, const UserValue& value);

/// "has no entry "X"; did you mean ...", with what it has.
[[nodiscard]] CString noSuchEntry(const std::vector<CString>& entries, const UserValue& value);

}  // namespace zel
