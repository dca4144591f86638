#pragma once

#include "contract/forms/wnd.h"

#include <optional>
#include <vector>

class CButton;
class CDialog;
class CGroup;

inline constexpr int IDOK = 1;
inline constexpr int IDCANCEL = 2;

namespace zel {

class Control;
enum class UserKey;
struct Taken;

/// What a host draws from. Calls come as the program or the user changes something; a host collects them and redraws when idle,
/// and then also asks again what is enabled and visible.
class IFormObserver {
public:
    IFormObserver() = default;
    IFormObserver(const IFormObserver&) = delete;
    IFormObserver& operator=(const IFormObserver&) = delete;
    virtual ~IFormObserver() = default;

    virtual void controlChanged(Control& control) = 0;
    /// Title, enabling or visibility of the dialog or of groups, pages or panels changed, or the focus moved.
    virtual void formChanged(CDialog& dialog) = 0;
};

}  // namespace zel

/// A dialog: a title and controls in reading order. Its controls are members, which enter themselves when they are made.
class CDialog : public CWnd {
public:
    /// @param templateId  number by which the form is known
    CDialog(unsigned templateId, CString title, CWnd* parent = nullptr);
    ~CDialog() override;

    /// Name of the dialog's class, as journals name it: without namespaces.
    [[nodiscard]] virtual CString ClassName() const;
    [[nodiscard]] unsigned templateId() const { return m_templateId; }
    [[nodiscard]] CWnd* GetParent() const { return m_parent; }

    [[nodiscard]] bool IsWindow() const override { return m_state == State::open; }
    [[nodiscard]] bool isModal() const { return m_modal; }
    /// Whether EndDialog has been called since the dialog was opened.
    [[nodiscard]] bool hasEnded() const { return m_endCode.has_value(); }
    /// The code of EndDialog; none for a dialog that was not run modally.
    [[nodiscard]] std::optional<int> endCode() const { return m_endCode; }

    /// Ends the modal run: DoModal returns `code`.
    void EndDialog(int code);
    /// Destroys the window; returns 0 if there is none. A modal run ends as cancelled.
    virtual int DestroyWindow();
    /// Shows it as the active window, in front of the other dialogs.
    void SetActiveWindow();

    // The form.

    /// Its controls in reading order: its own, and at the place of a tab strip or a panel those of the dialogs inside it.
    [[nodiscard]] std::vector<zel::Control*> controls() const;
    [[nodiscard]] const std::vector<zel::Control*>& ownControls() const { return m_controls; }
    [[nodiscard]] const std::vector<CGroup*>& groups() const { return m_groups; }
    /// The dialog that it is a page or a panel of, with its tab strip or panel; null for a dialog of its own.
    [[nodiscard]] zel::Control* container() const { return m_container; }
    /// The outermost dialog.
    [[nodiscard]] CDialog& root();
    [[nodiscard]] const CDialog& root() const;

    /// The button that Enter presses; none: Enter is OK.
    void SetDefButton(CButton& button) { m_defaultButton = &button; }
    [[nodiscard]] CButton* defaultButton() const { return m_defaultButton; }

    /// The control with the input focus; null if none has it.
    [[nodiscard]] zel::Control* GetFocus() const { return root().m_focus; }

    void observe(zel::IFormObserver& observer);
    void unobserve(zel::IFormObserver& observer);

    // The user's channel.

    /// Brings it to the front.
    zel::Taken userActivate();
    /// Closes the window: by OnClose, which cancels.
    zel::Taken userClose();
    /// Enter presses the default button or gives OK, Escape gives Cancel, Tab moves the focus.
    zel::Taken userKey(zel::UserKey key);
    /// Whether the user can act on it: it is open, and no other dialog in front waits for input.
    [[nodiscard]] zel::Taken reach() const;

    // For controls, containers and hosts.

    void enter(zel::Control& control);
    void leave(zel::Control& control);
    void enter(CGroup& group) { m_groups.push_back(&group); }
    void controlChanged(zel::Control& control);
    void formChanged();
    /// Sets the control that has the focus, in silence.
    void focusOn(zel::Control* control);
    void setContainer(zel::Control* container) { m_container = container; }
    /// Makes and unmakes the window of a page or panel, as its container does.
    void openInside();
    void closeInside();

protected:
    /// The window has been made: fill the controls. The result is not looked at.
    virtual int OnInitDialog() { return 1; }
    virtual void OnOK() { EndDialog(IDOK); }
    virtual void OnCancel() { EndDialog(IDCANCEL); }
    virtual void OnClose() { OnCancel(); }
    /// Takes a key before the focused control and the dialog; true when it is used up.
    virtual bool PreTranslateKey(zel::UserKey /*key*/) { return false; }
    /// The window is gone.
    virtual void PostNcDestroy() {}
    void changed() override { formChanged(); }
    void shown(bool show) override;

    int runModal();  ///< gives the end code; IDCANCEL, with a message, where a hundred modal dialogs wait inside each other already
    /// Makes the window of a modeless dialog. It appears with the first ShowWindow or SetActiveWindow.
    void openModeless();
    void setTemplateId(unsigned templateId) { m_templateId = templateId; }

private:
    enum class State { closed, open };

    void makeWindow();
    void unmakeWindow();
    void appear();
    void nextFocus();
    bool translateKey(zel::UserKey key);

    unsigned m_templateId;
    CWnd* m_parent;
    std::vector<zel::Control*> m_controls;
    std::vector<CGroup*> m_groups;
    std::vector<zel::IFormObserver*> m_observers;
    zel::Control* m_container = nullptr;
    zel::Control* m_focus = nullptr;
    CButton* m_defaultButton = nullptr;
    State m_state = State::closed;
    bool m_modal = false;
    bool m_appeared = false;
    bool m_fresh = false;  ///< its first SetActiveWindow belongs to its opening
    std::optional<int> m_endCode;
};

/// A dialog that can be run modally.
class CInternationalDlg : public CDialog {
public:
    using CDialog::CDialog;

    /// Opens the dialog and returns when it has ended, with its end code: 1 OK, 2 Cancel, or what EndDialog was given.
    int DoModal() { return runModal(); }
};

/// A dialog whose place on the screen can be set.
class CDlgMove : public CInternationalDlg {
public:
    using CInternationalDlg::CInternationalDlg;

    struct InitPos {
        int mode = 0;  ///< 0 the host's choice, 1 beside the parent, 2 at x, y
        int x = 0;
        int y = 0;
    };

    /// Sets where it first opens; a host without a screen keeps it only.
    void SetInitPos(int mode, int x, int y) { m_initPos = {mode, x, y}; }
    [[nodiscard]] const InitPos& initPos() const { return m_initPos; }

private:
    InitPos m_initPos;
};
