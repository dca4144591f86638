#pragma once

#include "contract/document.h"
#include "contract/forms/edit.h"
#include "contract/forms/grid_browser_ex.h"
#include "contract/records/unit_index.h"
#include "contract/view_ctrl.h"

#include <string_view>
#include <vector>

namespace zel {

class HostCommands;
class JournalRecorder;

/// What a person does in a window, step by step: at the forms, in the menus and in the model view. A window hands all input on
/// through it; while a recorder listens, each step that is taken is written as the journal command that does the same.
///
/// The steps on controls are those of the user's channel and return what it returns. Rows and columns count from 0.
class UserHand {
public:
    UserHand();
    UserHand(const UserHand&) = delete;
    UserHand& operator=(const UserHand&) = delete;
    ~UserHand();

    /// Writes from now on to `recorder`, which outlives that; null stops.
    void setRecorder(JournalRecorder* recorder) { m_recorder = recorder; }
    [[nodiscard]] JournalRecorder* recorder() const { return m_recorder; }

    // Menus.

    /// Opens a dialog that stays beside the views, by its exported id; null if the id opens nothing.
    CDialog* modeless(unsigned id);
    /// Runs a modal command without arguments and returns its end code.
    int modal(unsigned number);
    /// Builds an exported dialog class and runs it to its end. False for a class that is not there.
    bool open(std::string_view className);
    int undo(CDBDoc& document);
    int redo(CDBDoc& document);
    int units(CDBDoc& document, const T_UNIT_INDEX& index);
    /// Makes `selection` the selection of the model views.
    void select(CDBDoc& document, const T_SELECTION& selection);
    /// Leaves the modelling mode for the post-processing mode (`post`), or goes back.
    void mode(CDBDoc& document, HostCommands& commands, bool post);

    // Dialogs.

    Taken activate(CDialog& dialog);
    Taken close(CDialog& dialog);
    /// A key that no control has asked for by itself; it goes to the control with the focus first.
    Taken key(CDialog& dialog, UserKey key);

    // Controls.

    Taken focus(Control& control);
    Taken leave(Control& control);
    /// Replaces the text of a field as typing does; written when the field is left.
    Taken type(CEdit& field, const CString& text);
    Taken set(Control& control, const UserValue& value);
    Taken press(Control& control);
    Taken choose(Control& control, int index);
    Taken select(Control& control, const std::vector<int>& rows);
    Taken doubleClick(Control& control, int row);
    Taken tick(Control& control, int row, bool on);
    Taken spin(Control& control, int delta);
    Taken pick(Control& control, const std::vector<Key>& keys, bool closed);

    // Grids.

    Taken clickCell(CTBBrowserWnd& grid, int row, int column);
    Taken openCell(CTBBrowserWnd& grid, int row, int column);
    /// Types into the open cell; written, as an edit of the whole cell, when it is left.
    Taken typeText(CTBBrowserWnd& grid, const CString& text);
    Taken leaveCell(CTBBrowserWnd& grid);
    /// Opens, types and leaves.
    Taken typeCell(CTBBrowserWnd& grid, int row, int column, const CString& text);
    Taken leaveRow(CTBBrowserWnd& grid);
    Taken escape(CTBBrowserWnd& grid);
    Taken key(CTBBrowserWnd& grid, UserKey key);
    Taken deleteRows(CTBBrowserWnd& grid, const std::vector<int>& rows);
    Taken paste(CTBBrowserWndEx& grid, int row, int column, const CString& text);
    Taken dragRows(CTBBrowserWndEx& grid, const std::vector<int>& rows, int to);
    Taken dropText(CTBBrowserWnd& grid, int row, int column, const CString& text);
    /// Without a journal command: they change nothing of the model.
    Taken dragColumns(CTBBrowserWndEx& grid, int first, int last, int to);
    Taken resizeColumn(CTBBrowserWnd& grid, int column, int width);
    Taken doubleClickCell(CTBBrowserWnd& grid, int row, int column);
    Taken rightDoubleClickCell(CTBBrowserWnd& grid, int row, int column);
    Taken pressCell(CTBBrowserWnd& grid, int row, int column);

private:
    JournalRecorder* m_recorder = nullptr;
};

}  // namespace zel
