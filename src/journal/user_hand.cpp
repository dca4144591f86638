#include "journal/user_hand.h"

#include "command/command.h"
#include "command/exported_dialogs.h"
#include "contract/forms/dialog.h"
#include "contract/units.h"
#include "journal/host_commands.h"

namespace zel {

UserHand::UserHand() = default;
UserHand::~UserHand() = default;

// Menus

CDialog* UserHand::modeless(unsigned id)
{
    return CMD_DoModeless(id, nullptr);
}

int UserHand::modal(unsigned number)
{
    return CMD_DoModal(number, nullptr, 0);
}

bool UserHand::open(std::string_view className)
{
    const ExportedDialog* found = findExportedDialog(className);
    if (found == nullptr)
        return false;
    found->make()->DoModal();
    return true;
}

int UserHand::undo(CDBDoc& document)
{
    return document.Undo();
}

int UserHand::redo(CDBDoc& document)
{
    return document.Redo();
}

int UserHand::units(CDBDoc& document, const T_UNIT_INDEX& index)
{
    return document.GetUnitCtrl()->SetUnitIndexCurrent(index, 1);
}

void UserHand::select(CDBDoc& document, const T_SELECTION& selection)
{
    document.GetViewCtrl()->select(selection, true);
}

void UserHand::mode(CDBDoc& document, HostCommands& commands, bool post)
{
    commands.leave(!post);
    document.notify(nullptr, post ? Hint::leaveModel : Hint::leavePost, nullptr);
}

// Dialogs

Taken UserHand::activate(CDialog& dialog)
{
    return dialog.userActivate();
}

Taken UserHand::close(CDialog& dialog)
{
    return dialog.userClose();
}

Taken UserHand::key(CDialog& dialog, UserKey key)
{
    return dialog.userKey(key);
}

// Controls

Taken UserHand::focus(Control& control)
{
    return control.focus();
}

Taken UserHand::leave(Control& control)
{
    return control.leave();
}

Taken UserHand::type(CEdit& field, const CString& text)
{
    return field.type(text);
}

Taken UserHand::set(Control& control, const UserValue& value)
{
    return control.set(value);
}

Taken UserHand::press(Control& control)
{
    return control.press();
}

Taken UserHand::choose(Control& control, int index)
{
    return control.choose(static_cast<double>(index));
}

Taken UserHand::select(Control& control, const std::vector<int>& rows)
{
    return control.select(rows);
}

Taken UserHand::doubleClick(Control& control, int row)
{
    return control.doubleClick(row);
}

Taken UserHand::tick(Control& control, int row, bool on)
{
    return control.tick(row, on);
}

Taken UserHand::spin(Control& control, int delta)
{
    return control.spin(delta);
}

Taken UserHand::pick(Control& control, const std::vector<Key>& keys, bool closed)
{
    return control.pick(keys, closed);
}

// Grids

Taken UserHand::clickCell(CTBBrowserWnd& grid, int row, int column)
{
    return grid.clickCell(row, column);
}

Taken UserHand::openCell(CTBBrowserWnd& grid, int row, int column)
{
    return grid.openCell(row, column);
}

Taken UserHand::typeText(CTBBrowserWnd& grid, const CString& text)
{
    return grid.typeText(text);
}

Taken UserHand::leaveCell(CTBBrowserWnd& grid)
{
    return grid.leaveCell();
}

Taken UserHand::typeCell(CTBBrowserWnd& grid, int row, int column, const CString& text)
{
    return grid.typeCell(row, column, text);
}

Taken UserHand::leaveRow(CTBBrowserWnd& grid)
{
    return grid.leaveRow();
}

Taken UserHand::escape(CTBBrowserWnd& grid)
{
    return grid.escape();
}

Taken UserHand::key(CTBBrowserWnd& grid, UserKey key)
{
    return static_cast<Control&>(grid).key(key);
}

Taken UserHand::deleteRows(CTBBrowserWnd& grid, const std::vector<int>& rows)
{
    return grid.deleteRows(rows);
}

Taken UserHand::paste(CTBBrowserWndEx& grid, int row, int column, const CString& text)
{
    return grid.paste(row, column, text);
}

Taken UserHand::dragRows(CTBBrowserWndEx& grid, const std::vector<int>& rows, int to)
{
    return grid.dragRows(rows, to);
}

Taken UserHand::dropText(CTBBrowserWnd& grid, int row, int column, const CString& text)
{
    return grid.dropText(row, column, text);
}

Taken UserHand::dragColumns(CTBBrowserWndEx& grid, int first, int last, int to)
{
    return grid.dragColumns(first, last, to);
}

Taken UserHand::resizeColumn(CTBBrowserWnd& grid, int column, int width)
{
    return grid.resizeColumn(column, width);
}

Taken UserHand::doubleClickCell(CTBBrowserWnd& grid, int row, int column)
{
    return grid.doubleClickCell(row, column);
}

Taken UserHand::rightDoubleClickCell(CTBBrowserWnd& grid, int row, int column)
{
    return grid.rightDoubleClickCell(row, column);
}

Taken UserHand::pressCell(CTBBrowserWnd& grid, int row, int column)
{
    return grid.pressCell(row, column);
}

}  // namespace zel
