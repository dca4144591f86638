#pragma once

#include "contract/forms/control.h"

#include <utility>

/// A line (or several) of text.
class CEdit : public zel::Control {
public:
    /// @param onChange  the user has changed the text
    CEdit(const zel::Place& place, std::string_view id, CString label, zel::Action<> onChange = {});
    /// Shows a field: a text, or a plain number.
    CEdit(const zel::Place& place, std::string_view id, CString label, const zel::Field& field, zel::Action<> onChange = {});

    [[nodiscard]] zel::Kind kind() const override { return zel::Kind::edit; }

    void showField(const void* record) override;
    [[nodiscard]] bool readField(void* record) const override;
    /// Selects the text too, so that typing replaces it.
    void refuseEntry() override;
    [[nodiscard]] bool isEntryRefused() const override { return m_refused; }

    /// Selects the text from place `start` to place `end`; (0, -1) all of it.
    void SetSel(int start, int end);
    [[nodiscard]] std::pair<int, int> GetSel() const { return m_selection; }
    /// The user can see and copy the text but not change it.
    void SetReadOnly(bool readOnly = true);
    [[nodiscard]] bool isReadOnly() const { return m_readOnly; }
    void setMultiLine(bool multiLine = true) { m_multiLine = multiLine; }
    [[nodiscard]] bool isMultiLine() const { return m_multiLine; }

    void onChange(zel::Action<> action) { m_onChange = std::move(action); }
    void onSetFocus(zel::Action<> action) { m_onSetFocus = std::move(action); }
    /// The user has left the field.
    void onKillFocus(zel::Action<> action) { m_onKillFocus = std::move(action); }
    /// The user has pressed Enter (Escape) in it; the key then does not reach the dialog.
    void onEnter(zel::Action<> action) { m_onEnter = std::move(action); }
    void onEscape(zel::Action<> action) { m_onEscape = std::move(action); }

    /// Replaces the text as typing does; the focus stays.
    zel::Taken type(const CString& text);
    /// Types a text, or a number with "%.15g", and leaves the field.
    zel::Taken set(const zel::UserValue& value) override;

    void SetWindowText(const CString& text) override;
    void describe(zel::IFieldWriter& writer) const override;
    void gotFocus() override { fire(m_onSetFocus); }
    void lostFocus() override { fire(m_onKillFocus); }
    bool onKey(zel::UserKey key) override;

protected:
    /// A sentence that says why the field can't take the text; empty if it can.
    [[nodiscard]] virtual CString objection(const CString& /*text*/) const { return {}; }
    /// The number that the text stands for; 0 if it is none.
    virtual int readNumber(double& value) const;

private:
    zel::Action<> m_onChange;
    zel::Action<> m_onSetFocus;
    zel::Action<> m_onKillFocus;
    zel::Action<> m_onEnter;
    zel::Action<> m_onEscape;
    std::pair<int, int> m_selection{0, 0};
    bool m_readOnly = false;
    bool m_multiLine = false;
    bool m_refused = false;  ///< the text can't be taken as it stands
};

/// A label: text that the program sets.
class CStatic : public zel::Control {
public:
    CStatic(const zel::Place& place, std::string_view id, CString text);

    [[nodiscard]] zel::Kind kind() const override { return zel::Kind::label; }
    [[nodiscard]] const CString& label() const override { return GetWindowText(); }
    void describe(zel::IFieldWriter& writer) const override;
};
