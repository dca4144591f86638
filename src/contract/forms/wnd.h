#pragma once

#include "contract/text.h"

/// Anything that has a window: a dialog or a control. What is set here is the program's: it fires no handler.
class CWnd {
public:
    CWnd() = default;
    explicit CWnd(CString text) : m_text(std::move(text)) {}
    CWnd(const CWnd&) = delete;
    CWnd& operator=(const CWnd&) = delete;
    virtual ~CWnd() = default;

    /// Title of a dialog, content of an edit field, caption of a button, check, radio, group or label.
    [[nodiscard]] virtual const CString& GetWindowText() const { return m_text; }
    void GetWindowText(CString& text) const { text = GetWindowText(); }
    virtual void SetWindowText(const CString& text);

    void EnableWindow(bool enable = true);
    void ShowWindow(bool show = true);

    /// Whether the window exists: it is there from the creation of its dialog to the end of it.
    [[nodiscard]] virtual bool IsWindow() const = 0;
    /// Whether the user can work with it and see it, containers and rules taken into account.
    [[nodiscard]] virtual bool IsWindowEnabled() const { return m_enabled; }
    [[nodiscard]] virtual bool IsWindowVisible() const { return m_shown; }

protected:
    /// Something that is shown has changed.
    virtual void changed() {}
    /// The window was shown or hidden by ShowWindow.
    virtual void shown(bool /*show*/) { changed(); }

    CString m_text;

private:
    bool m_enabled = true;
    bool m_shown = true;
};
