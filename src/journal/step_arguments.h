#pragma once

#include "journal/journal_command.h"
#include "journal/user_step.h"

namespace zel {

/// One argument of a step: how a journal names it, and how its text becomes a member of the step and the member becomes text.
struct StepArgument {
    std::string_view name;  ///< of its field in journals: never rename it
    /// Throws a JsonFault that names the field.
    void (*read)(const JournalCommand&, const Control&, UserStep&);
    /// Null where the field is left out.
    Json (*write)(const UserStep&, const Control&);
};

namespace step_argument {

extern const StepArgument value;
extern const StepArgument rows;
extern const StepArgument row;
extern const StepArgument on;  ///< "value", true or false
extern const StepArgument delta;
extern const StepArgument gridRow;  ///< a number, or "append"
extern const StepArgument column;   ///< by title where that leads to it, else by number
extern const StepArgument text;
extern const StepArgument to;
extern const StepArgument key;      ///< "value", the name of a key
extern const StepArgument keys;     ///< may be left out
extern const StepArgument objects;  ///< stands instead of the keys; may be left out
extern const StepArgument closed;   ///< may be left out

}  // namespace step_argument

/// The key that a command names under "value".
/// @throws JsonFault
UserKey keyOf(const JournalCommand& command);
const char* keyName(UserKey key);

/// The text without the message key in front of it, so that a script plays with and without shown keys.
std::string_view withoutKey(std::string_view text);

}  // namespace zel
