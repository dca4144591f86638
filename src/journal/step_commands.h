#pragma once

#include "contract/forms/control.h"
#include "journal/user_step.h"
#include "platform/modeldb/json_text.h"

#include <nlohmann/json.hpp>
#include <utility>

namespace zel {

/// The journal commands of a user's steps. They name dialogs, controls, columns and entries as those stand when they are made.

/// A command with no field yet.
[[nodiscard]] Json commandNamed(Verb verb);
/// A command to a dialog, which is named where it is not the one that commands address by themselves.
[[nodiscard]] Json commandTo(Verb verb, const CDialog& dialog);
/// A step at a control.
[[nodiscard]] Json commandOf(const UserStep& step, const Control& control);
/// A key in a dialog.
[[nodiscard]] Json keyCommand(const CDialog& dialog, UserKey key);
/// Choosing an entry of a combo box, of a tab strip or of a list: by its text where that leads to it.
[[nodiscard]] UserStep choosing(const Control& control, int index);

/// The command with one more field.
template <class Value> [[nodiscard]] Json with(Json command, const char* field, Value&& value)
{
    command[field] = std::forward<Value>(value);
    return command;
}

}  // namespace zel
