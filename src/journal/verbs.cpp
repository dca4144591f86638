#include "journal/verbs.h"

#include "contract/forms/grid_browser_ex.h"
#include "journal/step_arguments.h"
#include "journal/user_step.h"

#include <algorithm>

namespace zel {

namespace {

// The control is of the kind that the verb fits.
CTBBrowserWnd& grid(Control& control)
{
    return dynamic_cast<CTBBrowserWnd&>(control);
}

CTBBrowserWndEx& sortableGrid(Control& control)
{
    return dynamic_cast<CTBBrowserWndEx&>(control);
}

std::vector<VerbRow> makeTable()
{
    namespace arg = step_argument;
    using enum Fits;
    return {
        {Verb::modal, "modal", {"number", "args", "flag"}},
        {Verb::modeless, "modeless", {"id"}},
        {Verb::open, "open", {"class", "args"}},

        {Verb::set, "set", everything, {&arg::value}, [](Control& control, const UserStep& step) { return control.set(step.value); }},
        {Verb::press, "press", everything, {}, [](Control& control, const UserStep&) { return control.press(); }},
        {Verb::select, "select", everything, {&arg::rows}, [](Control& control, const UserStep& step) { return control.select(step.rows); }},
        {Verb::doubleClick,
         "double_click",
         everything,
         {&arg::row},
         [](Control& control, const UserStep& step) { return control.doubleClick(step.row.number()); }},
        {Verb::tick,
         "tick",
         everything,
         {&arg::row, &arg::on},
         [](Control& control, const UserStep& step) { return control.tick(step.row.number(), step.on); }},
        {Verb::spin, "spin", everything, {&arg::delta}, [](Control& control, const UserStep& step) { return control.spin(step.delta); }},
        {Verb::tab, "tab", tabs, {&arg::value}, [](Control& control, const UserStep& step) { return control.choose(step.value); }},

        {Verb::cell,
         "cell",
         grids,
         {&arg::gridRow, &arg::column, &arg::text},
         [](Control& control, const UserStep& step) { return grid(control).typeCell(step.row, step.column, step.text); }},
        {Verb::current,
         "current",
         grids,
         {&arg::gridRow, &arg::column},
         [](Control& control, const UserStep& step) { return grid(control).clickCell(step.row, step.column); }},
        {Verb::leaveRow, "leave_row", grids, {}, [](Control& control, const UserStep&) { return grid(control).leaveRow(); }},
        {Verb::escape, "escape", grids, {}, [](Control& control, const UserStep&) { return grid(control).escape(); }},
        {Verb::deleteRows, "delete_rows", grids, {&arg::rows}, [](Control& control, const UserStep& step) { return grid(control).deleteRows(step.rows); }},
        {Verb::paste,
         "paste",
         sortableGrids,
         {&arg::gridRow, &arg::column, &arg::text},
         [](Control& control, const UserStep& step) { return sortableGrid(control).paste(step.row, step.column, step.text); }},
        {Verb::dragRows,
         "drag_rows",
         sortableGrids,
         {&arg::rows, &arg::to},
         [](Control& control, const UserStep& step) { return sortableGrid(control).dragRows(step.rows, step.to); }},
        {Verb::drop,
         "drop",
         grids,
         {&arg::gridRow, &arg::column, &arg::text},
         [](Control& control, const UserStep& step) { return grid(control).dropText(step.row, step.column, step.text); }},

        {Verb::key, "key", everything, {&arg::key}, [](Control& control, const UserStep& step) { return control.key(step.key); }},
        {Verb::pick,
         "pick",
         everything,
         {&arg::keys, &arg::objects, &arg::closed},
         [](Control& control, const UserStep& step) {
             return step.objects ? pickObjects(control, *step.objects, step.closed) : control.pick(step.keys, step.closed);
         }},

        {Verb::answer, "answer", {"with"}},
        {Verb::file, "file", {"path"}},
        {Verb::close, "close", {}},
        {Verb::activate, "activate", {}},
        {Verb::form, "form", {}},
        {Verb::dialogs, "dialogs", {}},
        {Verb::db, "db", {"op", "table", "kind", "key", "name", "keys", "names", "record", "newKey", "after"}},
        {Verb::units, "units", {"length", "force"}},
        {Verb::settings, "settings", {"put"}},
        {Verb::view, "view", {"select", "mode"}},
        {Verb::undo, "undo", {}},
        {Verb::redo, "redo", {}},
    };
}

}  // namespace

VerbRow::VerbRow(Verb itsVerb, std::string_view itsName, std::vector<std::string_view> itsFields) : verb(itsVerb), name(itsName), fields(std::move(itsFields))
{
}

VerbRow::VerbRow(Verb itsVerb, std::string_view itsName, Fits whom, std::vector<const StepArgument*> itsArguments, Taken (*itsRun)(Control&, const UserStep&))
    : verb(itsVerb), name(itsName), fields{"control"}, fits(whom), arguments(std::move(itsArguments)), run(itsRun)
{
    for (const StepArgument* argument : arguments)
        fields.push_back(argument->name);
}

bool VerbRow::isFor(const Control& control) const
{
    switch (fits) {
    case Fits::everything:
        return true;
    case Fits::tabs:
        return control.kind() == Kind::tabs;
    case Fits::grids:
        return dynamic_cast<const CTBBrowserWnd*>(&control) != nullptr;
    case Fits::sortableGrids:
        return dynamic_cast<const CTBBrowserWndEx*>(&control) != nullptr;
    }
    return false;
}

std::string VerbRow::misfit() const
{
    return fits == Fits::tabs ? "has no tabs" : "is no grid that takes " + std::string(name);
}

const std::vector<VerbRow>& verbTable()
{
    static const std::vector<VerbRow> table = makeTable();
    return table;
}

const VerbRow& rowOf(Verb verb)
{
    return *std::ranges::find(verbTable(), verb, &VerbRow::verb);
}

const VerbRow* findVerb(std::string_view name)
{
    const auto found = std::ranges::find(verbTable(), name, &VerbRow::name);
    return found != verbTable().end() ? &*found : nullptr;
}

Taken perform(Control& control, const UserStep& step)
{
    const VerbRow& verb = rowOf(step.verb);
    if (verb.run == nullptr)
        return {"\"" + std::string(verb.name) + "\" is no step at a control"};
    if (!verb.isFor(control))
        return {"\"" + control.name() + "\" " + verb.misfit()};
    return verb.run(control, step);
}

}  // namespace zel
