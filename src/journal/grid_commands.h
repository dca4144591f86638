#pragma once

#include "contract/forms/control.h"
#include "journal/journal_command.h"

#include <span>
#include <string_view>

namespace zel {

/// A command that acts on one control.
struct ControlCommand {
    std::string_view name;
    Taken (*run)(Control&, const JournalCommand&);
};

/// The commands that act on grids. They throw a JsonFault for a control that is no grid, and for a row or a column that
/// is none.
std::span<const ControlCommand> gridCommands();

/// The text without the message key in front of it, so that a script plays with and without shown keys.
std::string_view withoutKey(std::string_view text);

}  // namespace zel
