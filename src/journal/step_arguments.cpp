#include "journal/step_arguments.h"

#include "contract/forms/find_control.h"
#include "contract/forms/grid.h"
#include "journal/control_name.h"
#include "journal/model_commands.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <string>

namespace zel {

namespace {

// Rows and columns

UserRow readRow(const JournalCommand& command, std::string_view field)
{
    if (command.at(field) == Json("append"))
        return CTBGrid::append;
    const int row = command.integer(field);
    if (row < 0)
        throw JsonFault(std::string(field), "must be a row number from 0, or \"append\"");
    return row;
}

UserColumn columnBehindKey(const CTBGrid& grid, const std::string& title)
{
    const CString wanted = normalisedLabel(title);
    for (UserColumn column = 0; column < grid.GetColCount(); ++column) {
        const std::string_view shown = grid.GetColTitle(grid.GetColIndex(CTBGrid::toColumn(column)));
        if (withoutKey(shown) != shown && normalisedLabel(withoutKey(shown)) == wanted)
            return column;
    }
    return -1;
}

UserColumn readColumn(const JournalCommand& command, const CTBGrid& grid)
{
    const Json& json = command.at("column");
    if (!json.is_string()) {
        const int column = command.integer("column");
        if (column < 0 || column >= grid.GetColCount())
            throw JsonFault("column", "must be a number from 0 to " + std::to_string(grid.GetColCount() - 1) + ", or a title");
        return column;
    }
    const std::string& title = command.text("column");
    UserColumn column = grid.columnByTitle(title);
    if (column < 0)
        column = columnBehindKey(grid, title);
    if (column < 0)
        throw JsonFault("column", "there is no column \"" + title + "\"");
    return column;
}

// Values

/// The place of an entry is written as a whole number.
Json toJson(const UserValue& value)
{
    constexpr double mostPlaces = 1e9;
    if (const auto* number = std::get_if<double>(&value); number != nullptr && std::abs(*number) < mostPlaces && *number == std::trunc(*number))
        return static_cast<int>(*number);
    return std::visit([](const auto& each) { return Json(each); }, value);
}

int readDelta(const JournalCommand& command)
{
    const int delta = command.integer("delta");
    if (delta != 1 && delta != -1)
        throw JsonFault("delta", "must be 1 for a click up or -1 for a click down");
    return delta;
}

/// The kinds of objects that a field may take.
PickedObjects readObjects(const JournalCommand& command)
{
    if (command.has("keys"))
        throw JsonFault("objects", "one of keys and objects is taken, not both");
    const T_SELECTION picked = selectionFromJson(command.at("objects"), "objects");
    if (!picked.nodes.empty() || !picked.elements.empty())
        throw JsonFault("objects", "must be points, lines and areas");
    return {picked.points, picked.lines, picked.areas};
}

Json writeObjects(const PickedObjects& objects)
{
    return selectionToJson({objects.points, objects.lines, objects.areas, {}, {}});
}

struct KeyName {
    const char* name;
    UserKey key;
};

constexpr std::array<KeyName, 3> keyNames{{{"Enter", UserKey::enter}, {"Escape", UserKey::escape}, {"Tab", UserKey::tab}}};

}  // namespace

UserKey keyOf(const JournalCommand& command)
{
    const std::string& name = command.text("value");
    const auto found = std::ranges::find(keyNames, name, &KeyName::name);
    if (found == keyNames.end())
        throw JsonFault("value", "there is no key \"" + name + "\"; there are Enter, Escape and Tab");
    return found->key;
}

const char* keyName(UserKey key)
{
    return std::ranges::find(keyNames, key, &KeyName::key)->name;
}

namespace step_argument {

const StepArgument value{"value", [](const JournalCommand& command, const Control&, UserStep& step) { step.value = command.value("value"); },
                         [](const UserStep& step, const Control&) { return toJson(step.value); }};

const StepArgument rows{"rows", [](const JournalCommand& command, const Control&, UserStep& step) { step.rows = command.rows("rows"); },
                        [](const UserStep& step, const Control&) { return Json(step.rows); }};

const StepArgument row{"row", [](const JournalCommand& command, const Control&, UserStep& step) { step.row = command.integer("row"); },
                       [](const UserStep& step, const Control&) { return Json(step.row.number()); }};

const StepArgument on{"value", [](const JournalCommand& command, const Control&, UserStep& step) { step.on = command.flag("value"); },
                      [](const UserStep& step, const Control&) { return Json(step.on); }};

const StepArgument delta{"delta", [](const JournalCommand& command, const Control&, UserStep& step) { step.delta = readDelta(command); },
                         [](const UserStep& step, const Control&) { return Json(step.delta); }};

const StepArgument gridRow{"row", [](const JournalCommand& command, const Control&, UserStep& step) { step.row = readRow(command, "row"); },
                           [](const UserStep& step, const Control&) { return rowName(step.row); }};

const StepArgument column{
    "column",
    [](const JournalCommand& command, const Control& control, UserStep& step) { step.column = readColumn(command, dynamic_cast<const CTBGrid&>(control)); },
    [](const UserStep& step, const Control& control) { return columnName(dynamic_cast<const CTBGrid&>(control), step.column); }};

const StepArgument text{"text", [](const JournalCommand& command, const Control&, UserStep& step) { step.text = command.text("text"); },
                        [](const UserStep& step, const Control&) { return Json(step.text); }};

const StepArgument to{"to", [](const JournalCommand& command, const Control&, UserStep& step) { step.to = readRow(command, "to"); },
                      [](const UserStep& step, const Control&) { return rowName(step.to); }};

const StepArgument key{"value", [](const JournalCommand& command, const Control&, UserStep& step) { step.key = keyOf(command); },
                       [](const UserStep& step, const Control&) { return Json(keyName(step.key)); }};

const StepArgument keys{"keys",
                        [](const JournalCommand& command, const Control&, UserStep& step) {
                            if (command.has("keys"))
                                step.keys = command.keys("keys");
                        },
                        [](const UserStep& step, const Control&) { return step.objects ? Json() : Json(step.keys); }};

const StepArgument objects{"objects",
                           [](const JournalCommand& command, const Control&, UserStep& step) {
                               if (command.has("objects"))
                                   step.objects = readObjects(command);
                           },
                           [](const UserStep& step, const Control&) { return step.objects ? writeObjects(*step.objects) : Json(); }};

const StepArgument closed{"closed",
                          [](const JournalCommand& command, const Control&, UserStep& step) { step.closed = command.has("closed") && command.flag("closed"); },
                          [](const UserStep& step, const Control&) { return Json(step.closed); }};

}  // namespace step_argument

std::string_view withoutKey(std::string_view text)
{
    const std::size_t end = text.starts_with("[IDS_") ? text.find(']') : std::string_view::npos;
    return end == std::string_view::npos ? text : text.substr(end + 1);
}

}  // namespace zel
