#pragma once

#include "contract/forms/control.h"
#include "contract/forms/grid_browser.h"
#include "platform/modeldb/json_text.h"

#include <nlohmann/json.hpp>
#include <utility>

namespace zel {

/// The journal commands of a user's steps. They name dialogs, controls, columns and entries as those stand when they are made.

/// A command with no field yet.
[[nodiscard]] Json commandNamed(const char* name);
/// A command to a dialog, which is named where it is not the one that commands address by themselves; and to a control of it.
[[nodiscard]] Json commandTo(const char* name, const CDialog& dialog);
[[nodiscard]] Json commandTo(const char* name, const Control& control);
/// A command to a cell. Row and column count from 0, or the row is CTBGrid::append.
[[nodiscard]] Json commandAt(const char* name, const CTBGrid& grid, int row, int column);
/// A key in a control; in the dialog for null.
[[nodiscard]] Json keyCommand(const CDialog& dialog, const Control* control, UserKey key);
/// Choosing an entry of a combo box, of a tab strip or of a list.
[[nodiscard]] Json chooseCommand(const Control& control, int index);
[[nodiscard]] Json toJson(const UserValue& value);

/// The command with one more field.
template <class Value> [[nodiscard]] Json with(Json command, const char* field, Value&& value)
{
    command[field] = std::forward<Value>(value);
    return command;
}

}  // namespace zel
