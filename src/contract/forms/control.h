#pragma once

#include "contract/forms/action.h"
#include "contract/forms/field.h"
#include "contract/forms/wnd.h"

#include <functional>
#include <string_view>
#include <variant>
#include <vector>

class CDialog;
class CGroup;
class CRow;

namespace zel {

class Control;
class IFieldWriter;

/// Where a control stands: in a dialog, and there perhaps in a group and in a row. A control is declared with its dialog,
/// its group or its row in the first place.
struct Place {
    Place(CDialog& owner) : dialog(&owner) {}  // NOLINT: implicit, so that `CEdit name{*this, ...}` reads well
    Place(CGroup& group);                      // NOLINT
    Place(CRow& row);                          // NOLINT

    CDialog* dialog = nullptr;
    CGroup* group = nullptr;
    CRow* row = nullptr;
};

/// Kind of a control, as journals name it.
enum class Kind { edit, number, pick, label, unit, check, radio, combo, list, checklist, report, grid, spin, tabs, button, graph, picture };

/// "edit", "number", ...
const char* kindName(Kind kind);

/// Whether a control took what the user did; if not, the sentence that says why. A refusal changes nothing.
struct [[nodiscard]] Taken {
    CString refusal;  ///< empty when it was taken

    [[nodiscard]] bool ok() const { return refusal.empty(); }
    explicit operator bool() const { return ok(); }
};

/// What a user enters: a text, a choice between on and off, or a number.
using UserValue = std::variant<CString, bool, double>;

enum class UserKey { enter, escape, tab };

/// Keeps every dialog alive that is closed inside it. The user's channel opens one for each action; a host may hold one
/// around several. When the outermost one ends, closed modeless dialogs are deleted.
class UserAction {
public:
    UserAction();
    UserAction(const UserAction&) = delete;
    UserAction& operator=(const UserAction&) = delete;
    ~UserAction();
};

/// One control of a form. It holds its value and three channels:
///
/// - the program's: plain setters, called by the dialog; they fire no handler and are never refused;
/// - the user's: what a host or a script calls. Refused with a reason when the control is disabled or hidden, when another
///   dialog waits for input, or when the control can't take it. It fires the dialog's handler;
/// - observers of the dialog (IFormObserver), which a host draws from.
///
/// A handler may close its dialog: the objects live until the outermost user action has returned.
class Control : public CWnd {
public:
    /// Enters itself in the dialog; the order of entry is the reading order.
    /// @param id     name of the member in the dialog's class. It stands in journals: never rename it
    /// @param label  text beside or on the control, exactly as the form words it; may be empty
    /// @param field  of a record that it shows; none for a control that stands for none
    Control(const Place& place, std::string_view id, CString label, const Field& field = {});
    ~Control() override;

    // What it is.
    [[nodiscard]] virtual Kind kind() const = 0;
    [[nodiscard]] const CString& id() const { return m_id; }
    [[nodiscard]] virtual const CString& label() const { return m_label; }
    void SetLabel(const CString& label);
    [[nodiscard]] CDialog& dialog() const { return *m_place.dialog; }
    [[nodiscard]] CGroup* group() const { return m_place.group; }
    [[nodiscard]] CRow* row() const { return m_place.row; }
    /// Title of the tab page that holds it; empty on the dialog itself.
    [[nodiscard]] CString page() const;
    /// False for a control that only holds others, such as a panel: it is not listed in a form.
    [[nodiscard]] virtual bool isListed() const { return true; }
    /// What a sentence calls it: its label as names are compared, else its id.
    [[nodiscard]] CString name() const;

    // The field of a record that it shows. These are the program's channel, for records of the field's record type.
    [[nodiscard]] virtual const Field& field() const { return m_field; }
    /// Shows the field of a record.
    virtual void showField(const void* /*record*/) {}
    /// Takes what is entered over into the record. False, with the record as it was, if the field can't take it.
    [[nodiscard]] virtual bool readField(void* /*record*/) const { return true; }
    /// How a list shows the field: a number with "%g", a code by its text.
    [[nodiscard]] virtual CString fieldText(const void* record) const;
    /// What is entered can't be taken: the focus comes here and the entry is marked until it is changed.
    virtual void refuseEntry() { SetFocus(); }
    [[nodiscard]] virtual bool isEntryRefused() const { return false; }

    // How it stands.
    [[nodiscard]] bool IsWindow() const override;
    [[nodiscard]] bool IsWindowEnabled() const override;
    [[nodiscard]] bool IsWindowVisible() const override;

    /// A rule beside the control: it is enabled (visible) while the rule holds and EnableWindow (ShowWindow) has not switched
    /// it off. Rules are asked whenever it matters, so they are never out of date; they must be cheap and change nothing.
    void enabledWhen(std::function<bool()> rule) { m_enabledWhen = std::move(rule); }
    void visibleWhen(std::function<bool()> rule) { m_visibleWhen = std::move(rule); }

    /// Gives it the input focus; fires no handler.
    void SetFocus();
    [[nodiscard]] bool HasFocus() const;

    /// Writes what it shows beyond id, label, kind, group, page, enabled and visible: the fields of its kind in a form.
    virtual void describe(IFieldWriter& writer) const = 0;
    /// The dialogs inside it, with the titles of their pages: of tabs and panels.
    struct Nested {
        CDialog* dialog = nullptr;
        CString title;
        bool shown = true;
    };
    [[nodiscard]] virtual std::vector<Nested> nested() const { return {}; }
    /// A dialog inside it is being destroyed.
    virtual void forget(const CDialog& /*inside*/) {}

    // The user's channel. What a kind has no meaning for is refused.

    /// Enters a value and leaves the control.
    virtual Taken set(const UserValue& value);
    virtual Taken press();
    /// Selects these rows and no others; an empty list clears the selection.
    virtual Taken select(const std::vector<int>& rows);
    virtual Taken doubleClick(int row);
    virtual Taken tick(int row, bool on);
    /// @param delta  +1 for a click up, -1 for a click down
    virtual Taken spin(int delta);
    /// Chooses an entry by its text or place: of a tab strip or a combo box.
    virtual Taken choose(const UserValue& value);
    /// Hands over object or node keys picked in the model view.
    /// @param closed  the picked outline is closed
    virtual Taken pick(const std::vector<unsigned>& keys, bool closed);
    /// Presses a key in the control; what it has no use for goes to the dialog.
    Taken key(UserKey key);
    /// Moves the focus here, as a click does.
    Taken focus();
    /// Moves the focus away.
    Taken leave();

    // For the dialog that it belongs to.

    /// The focus came or went by the user.
    virtual void gotFocus() {}
    virtual void lostFocus() {}
    /// Takes a key; false leaves it to the dialog.
    virtual bool onKey(UserKey /*key*/) { return false; }
    /// The dialog's window is about to go: end what is open.
    virtual void onDestroying() {}

protected:
    /// Whether the user can act on it now; every operation of the user's channel begins with it.
    [[nodiscard]] Taken reach() const;
    /// A refusal that names the control.
    [[nodiscard]] Taken refuse(const CString& reason) const;
    /// Refusal of an operation that its kind has no meaning for: "can't be pressed".
    [[nodiscard]] Taken cannot(const char* what) const;
    /// Runs a handler of the dialog, if there is one.
    template <class... Arguments> void fire(const Action<Arguments...>& action, Arguments... arguments) const
    {
        if (action) {
            const UserAction running;
            action(dialog(), arguments...);
        }
    }
    void changed() override;

private:
    Place m_place;
    CString m_id;
    CString m_label;
    Field m_field;
    std::function<bool()> m_enabledWhen;
    std::function<bool()> m_visibleWhen;
};

}  // namespace zel

/// A frame with a caption around controls. Hiding or disabling it does so to all controls in it.
class CGroup : public CWnd {
public:
    CGroup(CDialog& dialog, CString caption);

    [[nodiscard]] CDialog& dialog() const { return *m_dialog; }
    [[nodiscard]] bool IsWindow() const override;
    [[nodiscard]] bool IsWindowEnabled() const override { return CWnd::IsWindowEnabled() && (!m_enabledWhen || m_enabledWhen()); }
    [[nodiscard]] bool IsWindowVisible() const override { return CWnd::IsWindowVisible() && (!m_visibleWhen || m_visibleWhen()); }
    void enabledWhen(std::function<bool()> rule) { m_enabledWhen = std::move(rule); }
    void visibleWhen(std::function<bool()> rule) { m_visibleWhen = std::move(rule); }

protected:
    void changed() override;

private:
    CDialog* m_dialog;
    std::function<bool()> m_enabledWhen;
    std::function<bool()> m_visibleWhen;
};

/// Controls that stand side by side: a field with its unit and its "..." button, or a row of push buttons.
class CRow {
public:
    enum class Use { fields, buttons };

    explicit CRow(CDialog& dialog, Use use = Use::fields) : m_dialog(&dialog), m_use(use) {}
    explicit CRow(CGroup& group, Use use = Use::fields) : m_dialog(&group.dialog()), m_group(&group), m_use(use) {}

    [[nodiscard]] CDialog& dialog() const { return *m_dialog; }
    [[nodiscard]] CGroup* group() const { return m_group; }
    [[nodiscard]] Use use() const { return m_use; }

private:
    CDialog* m_dialog;
    CGroup* m_group = nullptr;
    Use m_use;
};

/// A row of push buttons.
class CButtonRow : public CRow {
public:
    explicit CButtonRow(CDialog& dialog) : CRow(dialog, Use::buttons) {}
    explicit CButtonRow(CGroup& group) : CRow(group, Use::buttons) {}
};

inline zel::Place::Place(CGroup& owner) : dialog(&owner.dialog()), group(&owner) {}
inline zel::Place::Place(CRow& owner) : dialog(&owner.dialog()), group(owner.group()), row(&owner) {}
