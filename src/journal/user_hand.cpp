#include "journal/user_hand.h"

#include "command/command.h"
#include "command/dialog_table.h"
#include "contract/forms/dialog.h"
#include "contract/forms/open_dialogs.h"
#include "contract/units.h"
#include "journal/control_name.h"
#include "journal/host_commands.h"
#include "journal/journal_events.h"
#include "journal/journal_recorder.h"
#include "journal/model_commands.h"
#include "journal/open_commands.h"
#include "journal/step_commands.h"

#include <algorithm>

namespace zel {

namespace {

/// Describes a step that is no command.
Json nothing()
{
    return {};
}

/// Place of the current cell in the user's numbers.
struct Cell {
    UserRow row = 0;
    UserColumn column = -1;  ///< -1: no cell is current
    bool operator==(const Cell&) const = default;
};

Cell currentCell(const CTBBrowserWnd& grid)
{
    Row row;
    ColumnPlace column;
    return grid.GetCurrentCell(row, column) != 0 ? Cell{grid.toUserRow(row), CTBGrid::toUserColumn(column)} : Cell{};
}

/// Place of the open cell.
Cell openCellOf(const CTBBrowserWnd& grid)
{
    ColumnPlace column;
    const bool open = grid.GetOpenCell() >= 0 && grid.GetColumnNoFor(grid.GetOpenCell(), column) != 0;
    return open ? Cell{grid.toUserRow(grid.GetEditRow()), CTBGrid::toUserColumn(column)} : Cell{};
}

bool isFrozen(const CTBBrowserWnd& grid, UserColumn column)
{
    const ColumnIndex index = grid.GetColIndex(CTBGrid::toColumn(column));
    return index >= 0 && grid.GetColInfo(index).frozen;
}

}  // namespace

UserHand::UserHand() = default;
UserHand::~UserHand() = default;

void UserHand::setRecorder(JournalRecorder* recorder)
{
    finish();
    m_recorder = recorder;
}

void UserHand::setLocked(bool locked)
{
    finish();
    m_locked = locked;
}

// Steps

Taken UserHand::locked() const
{
    return {m_locked ? "a journal is being played" : CString()};
}

template <class Describe> JournalRecorder::Ticket UserHand::begin(Describe describe)
{
    return m_recorder != nullptr ? m_recorder->begin(describe()) : 0;
}

template <class Describe> bool UserHand::replace(JournalRecorder::Ticket ticket, Describe describe)
{
    return m_recorder != nullptr && m_recorder->isHeld(ticket) && m_recorder->replace(ticket, describe());
}

void UserHand::takeBack(JournalRecorder::Ticket ticket)
{
    if (m_recorder != nullptr)
        m_recorder->takeBack(ticket);
}

template <class Describe, class Act> Taken UserHand::step(Describe describe, Act act)
{
    if (Taken free = locked(); !free)
        return free;
    const UserAction action;  // what is left may close the form
    finish();
    const JournalRecorder::Ticket ticket = begin(describe);
    Taken taken = act(ticket);
    if (!taken)
        takeBack(ticket);
    return taken;
}

template <class Act> Taken UserHand::unrecorded(const std::string& what, Act act)
{
    if (Taken free = locked(); !free)
        return free;
    const UserAction action;
    finish();
    const JournalRecorder::Ticket ticket = begin(nothing);
    Taken taken = act();
    const JournalRecorder::Ticket last = m_recorder != nullptr ? m_recorder->beginBeside(nothing()) : 0;
    takeBack(ticket);  // without a trace, with the answers that it took: it does not happen when the journal is played
    takeBack(last);
    if (taken && m_recorder != nullptr)
        m_recorder->note(what);
    return taken;
}

template <class Describe, class Act> Taken UserHand::stepThatMayClose(const CDialog& form, Describe describe, Act act)
{
    if (!isTypedInto(form))
        return step(describe, act);
    const UserAction action;
    Typing typing = std::exchange(m_typing, {});
    auto* field = dynamic_cast<CEdit*>(typing.control);
    if (field == nullptr)
        forgetCell(typing);
    const JournalRecorder::Ticket ticket = m_recorder != nullptr ? m_recorder->beginBeside(describe()) : 0;
    Taken taken = act(ticket);
    if (!taken)
        takeBack(ticket);
    if (!isOpen(typing) || form.root().hasEnded())
        takeBack(typing.ticket);
    else if (field != nullptr)
        (void)field->leave();
    else if (openCellOf(static_cast<CTBBrowserWnd&>(*typing.control)).column >= 0)
        m_typing = typing;
    return taken;
}

template <class Act> Taken UserHand::moveFocus(const CDialog& form, Act act)
{
    if (Taken free = locked(); !free)
        return free;
    const UserAction action;
    finish();
    auto* grid = dynamic_cast<CTBBrowserWnd*>(form.GetFocus());
    const bool edited = grid != nullptr && grid->IsEdit();
    const Json leaving = edited && m_recorder != nullptr ? commandOf({Verb::leaveRow}, *grid) : Json();
    const JournalRecorder::Ticket ticket = begin(nothing);
    Taken taken = act();
    if (edited && grid->IsWindow() && !grid->IsEdit()) {
        (void)grid->leaveRow();  // tells the grid which row is current now, as the command does
        if (replace(ticket, [&leaving] { return leaving; }))
            return taken;
    }
    takeBack(ticket);
    return taken;
}

template <class Describe, class Act> Taken UserHand::giveUp(Describe describe, Act act)
{
    const UserAction action;
    Typing typing = std::exchange(m_typing, {});
    forgetCell(typing);
    return typing.opened ? act(0) : step(describe, act);
}

bool UserHand::isOpen(const Typing& typing) const
{
    const std::vector<CDialog*>& open = openDialogs();
    if (typing.control == nullptr || std::ranges::find(open, typing.form) == open.end())
        return false;
    const std::vector<Control*> controls = typing.form->controls();
    return std::ranges::find(controls, typing.control) != controls.end();
}

bool UserHand::isTypedInto(const CDialog& dialog) const
{
    return m_typing.form == &dialog.root() && isOpen(m_typing);
}

void UserHand::finish()
{
    const Typing typing = std::exchange(m_typing, {});
    if (!isOpen(typing))
        return;
    const UserAction action;
    if (auto* field = dynamic_cast<CEdit*>(typing.control))
        (void)field->leave();
    else
        (void)leaveCellOf(typing);
}

Taken UserHand::leaveCellOf(const Typing& typing)
{
    auto& grid = static_cast<CTBBrowserWnd&>(*typing.control);
    if (!typing.typed && (!typing.moved || isFrozen(grid, typing.column)))
        takeBack(typing.ticket);
    return grid.leaveCell();
}

void UserHand::forgetCell(Typing& typing)
{
    const auto& grid = static_cast<const CTBBrowserWnd&>(*typing.control);
    const bool clicked = typing.opened && typing.moved && !isFrozen(grid, typing.column);
    if (!clicked || !replace(typing.ticket, [&] { return commandOf({.verb = Verb::current, .row = typing.row, .column = typing.column}, grid); }))
        takeBack(typing.ticket);
    typing.ticket = 0;
    typing.typed = false;
    typing.moved = false;
}

// Menus

CDialog* UserHand::modeless(unsigned id)
{
    const auto* row = std::ranges::find_if(modelessDialogs, [id](const ModelessDialog& each) { return *each.id == id; });
    CDialog* opened = nullptr;
    if (row == modelessDialogs.end())
        return opened;
    (void)step([&] { return with(commandNamed(Verb::modeless), "id", std::string(row->name)); },
               [&](JournalRecorder::Ticket ticket) {
                   opened = CMD_DoModeless(id, nullptr);
                   if (m_recorder != nullptr)
                       m_recorder->setResult(ticket, opened != nullptr ? Json(opened->ClassName()) : Json());
                   return Taken{};
               });
    return opened;
}

int UserHand::modal(unsigned number)
{
    int code = 0;
    (void)step([&] { return with(commandNamed(Verb::modal), "number", number); },
               [&](JournalRecorder::Ticket) {
                   code = CMD_DoModal(number, nullptr, 0);
                   if (m_recorder != nullptr)
                       m_recorder->event(returnedEvent(code));
                   return Taken{};
               });
    return code;
}

bool UserHand::open(std::string_view className)
{
    const std::string name(className);
    return step([&] { return with(commandNamed(Verb::open), "class", name); },
                [&](JournalRecorder::Ticket) -> Taken {
                    try {
                        openDialogOfClass(name, {});
                    } catch (const JsonFault& fault) {
                        return {fault.what()};
                    }
                    return {};
                })
        .ok();
}

template <class Describe, class Change> int UserHand::change(Describe describe, Change change)
{
    int done = 0;
    (void)step(describe, [&](JournalRecorder::Ticket ticket) {
        done = change();
        if (m_recorder != nullptr)
            m_recorder->setResult(ticket, done);
        return Taken{};
    });
    return done;
}

int UserHand::undo(CDBDoc& document)
{
    return change([] { return commandNamed(Verb::undo); }, [&] { return document.Undo(); });
}

int UserHand::redo(CDBDoc& document)
{
    return change([] { return commandNamed(Verb::redo); }, [&] { return document.Redo(); });
}

int UserHand::units(CDBDoc& document, const T_UNIT_INDEX& index)
{
    return change([&] { return with(with(commandNamed(Verb::units), "length", lengthUnitName(index.length)), "force", forceUnitName(index.force)); },
                  [&] { return document.GetUnitCtrl()->SetUnitIndexCurrent(index, 1); });
}

void UserHand::select(CDBDoc& document, const T_SELECTION& selection)
{
    (void)step([&] { return with(commandNamed(Verb::view), "select", selectionToJson(selection)); },
               [&](JournalRecorder::Ticket) {
                   document.GetViewCtrl()->select(selection, true);
                   return Taken{};
               });
}

void UserHand::mode(CDBDoc& document, HostCommands& commands, bool post)
{
    (void)step([&] { return with(commandNamed(Verb::view), "mode", post ? "model" : "post"); },  // the mode that is left
               [&](JournalRecorder::Ticket) {
                   commands.leave(!post);
                   document.notify(nullptr, post ? Hint::leaveModel : Hint::leavePost, nullptr);
                   return Taken{};
               });
}

// Dialogs

Taken UserHand::activate(CDialog& dialog)
{
    if (activeDialog() == &dialog.root())
        return dialog.reach();
    return step([&] { return commandTo(Verb::activate, dialog); }, [&](JournalRecorder::Ticket) { return dialog.userActivate(); });
}

Taken UserHand::close(CDialog& dialog)
{
    if (Taken free = locked(); !free)
        return free;
    return stepThatMayClose(
        dialog, [&] { return commandTo(Verb::close, dialog); }, [&](JournalRecorder::Ticket) { return dialog.userClose(); });
}

Taken UserHand::key(CDialog& dialog, UserKey key)
{
    if (Taken free = locked(); !free)
        return free;
    const bool typed = isTypedInto(dialog);
    if (auto* grid = typed ? dynamic_cast<CTBBrowserWnd*>(m_typing.control) : nullptr)
        return this->act(*grid, {.verb = Verb::key, .key = key});
    Control* focused = typed ? m_typing.control : dialog.GetFocus();
    if (focused != nullptr && !(focused->IsWindowVisible() && focused->IsWindowEnabled()))
        focused = nullptr;
    const UserStep pressed{.verb = Verb::key, .key = key};
    const auto describe = [&] { return focused != nullptr ? commandOf(pressed, *focused) : keyCommand(dialog, key); };
    const auto act = [&](JournalRecorder::Ticket) { return focused != nullptr ? perform(*focused, pressed) : dialog.userKey(key); };
    return key == UserKey::escape ? stepThatMayClose(dialog, describe, act) : step(describe, act);
}

// Controls

Taken UserHand::focus(Control& control)
{
    if (control.HasFocus() && (m_typing.control == &control || m_typing.control == nullptr))
        return locked();
    return moveFocus(control.dialog(), [&] { return control.focus(); });
}

Taken UserHand::leave(Control& control)
{
    return moveFocus(control.dialog(), [&] { return control.leave(); });
}

Taken UserHand::type(CEdit& field, const CString& text)
{
    if (Taken free = locked(); !free)
        return free;
    const UserAction action;
    if (m_typing.control != &field)
        finish();
    if (!field.HasFocus()) {
        if (Taken focused = focus(field); !focused)
            return focused;
    }
    const auto setTo = [&field](const CString& value) { return [&field, value] { return commandOf({.verb = Verb::set, .value = value}, field); }; };
    const Typing former = std::exchange(m_typing, {});  // commands may come while it is being typed
    const bool goesOn = former.control == &field && replace(former.ticket, setTo(text));
    Typing typing{&field, &field.dialog().root(), goesOn ? former.ticket : begin(setTo(text)), text};
    Taken taken = field.type(text);
    if (!taken) {
        if (!goesOn)
            takeBack(typing.ticket);
        else
            replace(former.ticket, setTo(former.text));
        m_typing = former;
    } else if (m_recorder != nullptr && !m_recorder->isHeld(typing.ticket)) {
        (void)field.leave();  // as the command did that is written already
    } else {
        m_typing = typing;
    }
    return taken;
}

Taken UserHand::act(Control& control, const UserStep& what)
{
    if (Taken free = locked(); !free)
        return free;
    if (!rowOf(what.verb).isFor(control))
        return perform(control, what);  // refuses it
    const auto describe = [&] { return commandOf(what, control); };
    const auto act = [&](JournalRecorder::Ticket) { return perform(control, what); };
    const bool escapes = what.verb == Verb::escape || (what.verb == Verb::key && what.key == UserKey::escape);
    const bool givesCellUp = escapes && m_typing.control == &control && dynamic_cast<CTBBrowserWnd*>(&control) != nullptr;
    return givesCellUp ? giveUp(describe, act) : step(describe, act);
}

Taken UserHand::choose(Control& control, int index)
{
    return step([&] { return commandOf(choosing(control, index), control); },
                [&](JournalRecorder::Ticket) { return control.choose(static_cast<double>(index)); });
}

// Grids

Taken UserHand::openCell(CTBBrowserWnd& grid, UserRow row, UserColumn column)
{
    const Cell wanted{row, column};
    if (m_typing.control == &grid && openCellOf(grid) == wanted)
        return locked();
    const UserAction action;
    finish();
    const Cell refused = openCellOf(grid);  // what is open still
    const bool moved = currentCell(grid) != wanted || !grid.GetSelectedRows().empty();
    JournalRecorder::Ticket ticket = 0;
    Taken taken = step([&] { return commandOf({.verb = Verb::current, .row = row, .column = column}, grid); },
                       [&](JournalRecorder::Ticket given) {
                           ticket = given;
                           return grid.openCell(row, column);
                       });
    const Cell open = openCellOf(grid);
    if (taken && open.column == column && (open.row == row || refused.column < 0))
        m_typing = {&grid, &grid.dialog().root(), ticket, {}, row, column, false, refused != wanted, moved};
    return taken;
}

Taken UserHand::typeText(CTBBrowserWnd& grid, const CString& text)
{
    if (Taken free = locked(); !free)
        return free;
    const UserAction action;
    if (m_typing.control != &grid)
        finish();
    if (Taken taken = grid.typeText(text); !taken)
        return taken;
    if (m_typing.control == nullptr) {
        const Cell open = openCellOf(grid);
        m_typing = {&grid, &grid.dialog().root(), 0, {}, open.row, open.column, true, false, false};
    }
    m_typing.text = text;
    m_typing.typed = true;
    const auto describe = [&] { return commandOf({.verb = Verb::cell, .row = m_typing.row, .column = m_typing.column, .text = text}, grid); };
    if (!replace(m_typing.ticket, describe))
        m_typing.ticket = begin(describe);
    return {};
}

Taken UserHand::leaveCell(CTBBrowserWnd& grid)
{
    if (Taken free = locked(); !free)
        return free;
    const UserAction action;
    if (m_typing.control == &grid)
        return leaveCellOf(std::exchange(m_typing, {}));
    const Cell open = openCellOf(grid);
    if (open.column < 0)
        return grid.leaveCell();
    const CString text = grid.TextAt(grid.GetEditRow(), grid.GetOpenCell());
    return step([&] { return commandOf({.verb = Verb::cell, .row = open.row, .column = open.column, .text = text}, grid); },
                [&](JournalRecorder::Ticket) { return grid.leaveCell(); });
}

Taken UserHand::dragColumns(CTBBrowserWndEx& grid, UserColumn first, UserColumn last, UserColumn to)
{
    return unrecorded("Columns were moved. No command does that.", [&] { return grid.dragColumns(first, last, to); });
}

Taken UserHand::resizeColumn(CTBBrowserWnd& grid, UserColumn column, int width)
{
    return unrecorded("A column was made wider or narrower. No command does that.", [&] { return grid.resizeColumn(column, width); });
}

Taken UserHand::goToCell(CTBBrowserWnd& grid, UserRow row, UserColumn column)
{
    return currentCell(grid) == Cell{row, column} ? locked() : act(grid, {.verb = Verb::current, .row = row, .column = column});
}

Taken UserHand::doubleClickCell(CTBBrowserWnd& grid, UserRow row, UserColumn column)
{
    if (Taken there = goToCell(grid, row, column); !there)
        return there;
    const auto act = [&](JournalRecorder::Ticket) { return grid.doubleClickCell(row, column); };
    if (currentCell(grid) == Cell{row, column})  // the command double-clicks the row at the current cell
        return step([&] { return commandOf({.verb = Verb::doubleClick, .row = row}, grid); }, act);
    return unrecorded("A cell was double-clicked. No command does that.", [&] { return act(0); });
}

Taken UserHand::rightDoubleClickCell(CTBBrowserWnd& grid, UserRow row, UserColumn column)
{
    if (Taken there = goToCell(grid, row, column); !there)
        return there;
    return unrecorded("A cell was double-clicked with the right button. No command does that.", [&] { return grid.rightDoubleClickCell(row, column); });
}

Taken UserHand::pressCell(CTBBrowserWnd& grid, UserRow row, UserColumn column)
{
    if (Taken there = goToCell(grid, row, column); !there)
        return there;
    return unrecorded("A button in a cell was pressed. No command does that.", [&] { return grid.pressCell(row, column); });
}

}  // namespace zel
