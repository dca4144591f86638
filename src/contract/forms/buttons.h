#pragma once

#include "contract/forms/control.h"

#include <vector>

class CEdit;

/// A push button. Its caption is its label.
class CButton : public zel::Control {
public:
    CButton(const zel::Place& place, std::string_view id, CString caption, zel::Action<> onClick = {});

    [[nodiscard]] zel::Kind kind() const override { return zel::Kind::button; }
    [[nodiscard]] const CString& label() const override { return GetWindowText(); }
    [[nodiscard]] bool isDefault() const;
    void onClick(zel::Action<> action) { m_onClick = std::move(action); }

    zel::Taken press() override;
    void describe(zel::IFieldWriter& /*writer*/) const override {}
    bool onKey(zel::UserKey key) override;

private:
    zel::Action<> m_onClick;
};

/// A check box.
class CCheckBox : public zel::Control {
public:
    CCheckBox(const zel::Place& place, std::string_view id, CString caption, zel::Action<> onClick = {});
    /// Shows a field of 0 and 1.
    CCheckBox(const zel::Place& place, std::string_view id, CString caption, const zel::Field& field, zel::Action<> onClick = {});

    void showField(const void* record) override { SetCheck(field().integer(record) != 0); }
    [[nodiscard]] bool readField(void* record) const override;

    [[nodiscard]] zel::Kind kind() const override { return zel::Kind::check; }
    [[nodiscard]] const CString& label() const override { return GetWindowText(); }
    void SetCheck(bool checked);
    [[nodiscard]] bool GetCheck() const { return m_checked; }
    void onClick(zel::Action<> action) { m_onClick = std::move(action); }

    /// Ticks or clears it; a box that stands so already is left alone and fires nothing.
    zel::Taken set(const zel::UserValue& value) override;
    /// Clicks it.
    zel::Taken press() override;
    void describe(zel::IFieldWriter& writer) const override;

private:
    zel::Action<> m_onClick;
    bool m_checked = false;
};

class CRadioButton;

/// Radio buttons of which at most one is chosen. It is no control: each of its buttons is one.
///
///     CRadioGroup  mode{*this, &CCMAutoLoadCombDlg::OnMode};
///     CRadioButton add{mode, "add", "Add"};
///     CRadioButton replace{mode, "replace", "Replace"};
class CRadioGroup {
public:
    /// @param place     where its buttons stand
    /// @param onChoose  the user has clicked one of them
    explicit CRadioGroup(const zel::Place& place, zel::Action<> onChoose = {}) : m_place(place), m_onChoose(std::move(onChoose)) {}
    /// Shows a field of the codes of its buttons. A code that none has chooses none, and while none is chosen the field is left as it is.
    CRadioGroup(const zel::Place& place, const zel::Field& field, zel::Action<> onChoose = {}) : m_place(place), m_field(field), m_onChoose(std::move(onChoose))
    {
    }
    CRadioGroup(const CRadioGroup&) = delete;
    CRadioGroup& operator=(const CRadioGroup&) = delete;
    ~CRadioGroup() = default;

    /// Chooses the button at `index`, in the order of declaration; -1 or an index without a button: none.
    void SetSel(int index);
    /// The chosen one; -1 for none.
    [[nodiscard]] int GetSel() const { return m_selected; }
    /// Shows the group's field of a record.
    void showField(const void* record) { SetSel(indexOf(record)); }
    [[nodiscard]] const std::vector<CRadioButton*>& buttons() const { return m_buttons; }
    void onChoose(zel::Action<> action) { m_onChoose = std::move(action); }

private:
    friend class CRadioButton;

    /// Of the button with the code that the record holds; -1 if none has it.
    [[nodiscard]] int indexOf(const void* record) const;

    zel::Place m_place;
    zel::Field m_field;
    zel::Action<> m_onChoose;
    std::vector<CRadioButton*> m_buttons;
    int m_selected = -1;
};

/// One radio button.
class CRadioButton : public zel::Control {
public:
    CRadioButton(CRadioGroup& radios, std::string_view id, CString caption);
    /// @param code  what the group's field holds while this one is chosen; without it, its place in the group from 0
    CRadioButton(CRadioGroup& radios, std::string_view id, CString caption, int code);
    /// At a place of its own.
    CRadioButton(const zel::Place& place, CRadioGroup& radios, std::string_view id, CString caption);

    [[nodiscard]] zel::Kind kind() const override { return zel::Kind::radio; }
    [[nodiscard]] const CString& label() const override { return GetWindowText(); }
    [[nodiscard]] CRadioGroup& radios() const { return m_radios; }
    [[nodiscard]] bool GetCheck() const;

    /// The first of the buttons stands for the group's field.
    [[nodiscard]] const zel::Field& field() const override { return m_index == 0 ? m_radios.m_field : Control::field(); }
    void showField(const void* record) override { m_radios.showField(record); }
    [[nodiscard]] bool readField(void* record) const override;
    /// The caption of the button with the code.
    [[nodiscard]] CString fieldText(const void* record) const override;

    /// Takes true only: a radio is cleared by choosing another one.
    zel::Taken set(const zel::UserValue& value) override;
    zel::Taken press() override;
    void describe(zel::IFieldWriter& writer) const override;

private:
    friend class CRadioGroup;

    CRadioGroup& m_radios;
    int m_index;
    int m_code;
};

/// The pair of arrows beside an edit field, its buddy.
class CSpinButtonCtrl : public zel::Control {
public:
    /// @param onDelta  called for each click with the change as a spin button reports it, -1 for a click up and 1 for a click down:
    ///                 the handler subtracts it. Without a handler the whole number in the buddy is changed, within the range.
    CSpinButtonCtrl(const zel::Place& place, std::string_view id, CEdit& buddy, zel::Action<int> onDelta = {});

    [[nodiscard]] zel::Kind kind() const override { return zel::Kind::spin; }
    void SetRange(int lowest, int highest);
    [[nodiscard]] CEdit& GetBuddy() const { return m_buddy; }
    void onDelta(zel::Action<int> action) { m_onDelta = std::move(action); }

    zel::Taken spin(int delta) override;
    void describe(zel::IFieldWriter& writer) const override;

private:
    CEdit& m_buddy;
    zel::Action<int> m_onDelta;
    int m_lowest = 0;
    int m_highest = 100;
};
