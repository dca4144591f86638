#pragma once

#include "contract/document.h"
#include "contract/forms/edit.h"
#include "contract/forms/grid_browser_ex.h"
#include "contract/records/unit_index.h"
#include "contract/view_ctrl.h"
#include "journal/recorder_ticket.h"
#include "journal/user_step.h"

#include <string>
#include <string_view>
#include <vector>

namespace zel {

class HostCommands;
class JournalRecorder;

/// What a person does in a window, step by step: at the forms, in the menus and in the model view. A window hands all input on
/// through it; while a recorder listens, each step that is taken is written as the journal command that does the same.
///
/// The steps on controls are those of the user's channel and return what it returns. Rows and columns count from 0.
///
/// A field or cell that is being typed into is left before the next step, as a journal's `set` and `cell` leave it. Escape and the closing
/// of its dialog give it up instead.
class UserHand {
public:
    UserHand();
    UserHand(const UserHand&) = delete;
    UserHand& operator=(const UserHand&) = delete;
    ~UserHand();

    /// Writes from now on to `recorder`, which outlives that; null stops.
    void setRecorder(JournalRecorder* recorder);
    [[nodiscard]] JournalRecorder* recorder() const { return m_recorder; }

    /// While it is locked every step is refused: a journal is being played, and no input must come between.
    void setLocked(bool locked);
    [[nodiscard]] bool isLocked() const { return m_locked; }

    /// Leaves the field or cell that is being typed into.
    void finish();

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
    /// Takes a step that a journal has a verb for.
    Taken act(Control& control, const UserStep& what);
    /// Chooses an entry of a combo box, a tab or a row of a list, which keeps the focus.
    Taken choose(Control& control, int index);

    // Grids.

    Taken openCell(CTBBrowserWnd& grid, UserRow row, UserColumn column);
    /// Types into the open cell; written, as an edit of the whole cell, when it is left.
    Taken typeText(CTBBrowserWnd& grid, const CString& text);
    Taken leaveCell(CTBBrowserWnd& grid);
    /// Without a journal command: they change nothing of the model.
    Taken dragColumns(CTBBrowserWndEx& grid, UserColumn first, UserColumn last, UserColumn to);
    Taken resizeColumn(CTBBrowserWnd& grid, UserColumn column, int width);
    Taken doubleClickCell(CTBBrowserWnd& grid, UserRow row, UserColumn column);
    Taken rightDoubleClickCell(CTBBrowserWnd& grid, UserRow row, UserColumn column);
    Taken pressCell(CTBBrowserWnd& grid, UserRow row, UserColumn column);

private:
    /// What is being typed into.
    struct Typing {
        Control* control = nullptr;  ///< an edit field or a grid; null for nothing
        const CDialog* form = nullptr;
        RecorderTicket ticket = 0;
        CString text{};
        UserRow row = 0;  ///< of a grid's cell
        UserColumn column = 0;
        bool typed = false;   ///< something was typed into the cell
        bool opened = false;  ///< the cell was opened for it; else it had stayed open when it was refused
        bool moved = false;   ///< opening it made it the current cell
    };

    /// One step: leaves what is typed into, records the command that `describe` makes, and takes it back if `act` is refused.
    template <class Describe, class Act> Taken step(Describe describe, Act act);
    /// A step that journals have no command for: a comment says so.
    template <class Act> Taken unrecorded(const std::string& what, Act act);
    /// A step that may close the form with what is being typed into it, which then goes unwritten.
    template <class Describe, class Act> Taken stepThatMayClose(const CDialog& form, Describe describe, Act act);
    /// Moves the focus, which is no command; but a row of a grid that is written by it is.
    template <class Act> Taken moveFocus(const CDialog& form, Act act);
    /// Gives the open cell up.
    template <class Describe, class Act> Taken giveUp(Describe describe, Act act);

    /// A step whose result is that of `change`.
    template <class Describe, class Change> int change(Describe describe, Change change);

    template <class Describe> RecorderTicket begin(Describe describe);
    template <class Describe> bool replace(RecorderTicket ticket, Describe describe);
    void takeBack(RecorderTicket ticket);

    [[nodiscard]] Taken locked() const;
    [[nodiscard]] bool isOpen(const Typing& typing) const;
    [[nodiscard]] bool isTypedInto(const CDialog& dialog) const;
    Taken leaveCellOf(const Typing& typing);
    /// Clicks into a cell unless it is the current one.
    Taken goToCell(CTBBrowserWnd& grid, UserRow row, UserColumn column);
    /// What is held for a cell that is given up becomes a mere click, or nothing.
    void forgetCell(Typing& typing);

    JournalRecorder* m_recorder = nullptr;
    Typing m_typing;
    bool m_locked = false;
};

}  // namespace zel
