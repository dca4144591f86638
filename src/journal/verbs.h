#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace zel {

class Control;
struct StepArgument;
struct UserStep;
struct Taken;

/// The commands of journals. Their names and fields stand in the table of verbs alone.
enum class Verb {
    modal,
    modeless,
    open,
    set,
    press,
    select,
    doubleClick,
    tick,
    spin,
    tab,
    cell,
    current,
    leaveRow,
    escape,
    deleteRows,
    paste,
    dragRows,
    drop,
    key,
    pick,
    answer,
    file,
    close,
    activate,
    form,
    dialogs,
    db,
    units,
    settings,
    view,
    undo,
    redo,
};

/// Which controls a verb has a meaning for. What a kind of control can't do besides is refused by the control.
enum class Fits { everything, tabs, grids, sortableGrids };

/// One row of the table of verbs.
struct VerbRow {
    /// A command to the program, the model or a dialog.
    VerbRow(Verb itsVerb, std::string_view itsName, std::vector<std::string_view> itsFields);
    /// A step at a control: player, recorder, the user's hand and the views of a host read it here.
    VerbRow(Verb itsVerb, std::string_view itsName, Fits whom, std::vector<const StepArgument*> itsArguments, Taken (*itsRun)(Control&, const UserStep&));

    /// Whether the verb has a meaning for the control, and if not what is wrong: "has no tabs".
    [[nodiscard]] bool isFor(const Control& control) const;
    [[nodiscard]] std::string misfit() const;

    Verb verb;
    std::string_view name;                 ///< in journals: never rename it
    std::vector<std::string_view> fields;  ///< beyond `do` and `dialog`
    Fits fits = Fits::everything;
    std::vector<const StepArgument*> arguments{};       ///< the fields that a step at a control has beside `control`, in the order in which they are written
    Taken (*run)(Control&, const UserStep&) = nullptr;  ///< null for a verb that is no step at a control
};

/// All verbs, in the order of docs/journals.md.
const std::vector<VerbRow>& verbTable();

const VerbRow& rowOf(Verb verb);
/// Null for a name that is no verb.
const VerbRow* findVerb(std::string_view name);

/// Takes a step at a control by the user's channel.
Taken perform(Control& control, const UserStep& step);

}  // namespace zel
