#pragma once

#include "contract/forms/control.h"
#include "journal/user_hand.h"

#include <QString>
#include <QWidget>

#include <memory>

namespace zel::desktop {

/// What the views of one form share.
struct FormContext {
    UserHand& hand;
    /// Above 0 while widgets take over the state of their controls, so that no widget reports that as input.
    int refreshing = 0;
};

/// Marks a time in which widgets take over the state of their controls.
class Refreshing {
public:
    explicit Refreshing(FormContext& context) : m_context(context) { ++m_context.refreshing; }
    Refreshing(const Refreshing&) = delete;
    Refreshing& operator=(const Refreshing&) = delete;
    ~Refreshing() { --m_context.refreshing; }

private:
    FormContext& m_context;
};

/// What stands in a window for one control: it shows the control's state and hands on what the user does to it.
///
/// When the dialog closes, and when a control goes, the view is detached: its widgets live on until the event loop is back, and do nothing.
class ControlView {
public:
    ControlView(Control& control, FormContext& context) : m_control(&control), m_context(context) {}
    ControlView(const ControlView&) = delete;
    ControlView& operator=(const ControlView&) = delete;
    virtual ~ControlView() = default;

    /// The widget that is laid out. It is owned by the widget around it.
    [[nodiscard]] virtual QWidget& widget() = 0;
    /// The widget that takes the focus and the mnemonic; null for a view that takes none.
    [[nodiscard]] virtual QWidget* focusWidget() { return &widget(); }
    /// Whether the control's label is drawn beside it. Buttons and checks bear theirs themselves.
    [[nodiscard]] virtual bool hasLabelBeside() const { return true; }
    /// Whether it takes its own line and grows with the window.
    [[nodiscard]] virtual bool isTall() const { return false; }
    /// Sets the text with its mnemonic on a view that bears its label itself.
    virtual void setOwnText(const QString& /*text*/) {}
    /// Marks the button that Enter presses.
    virtual void showAsDefault(bool /*isDefault*/) {}
    /// Takes over the control's state.
    void show();
    /// Shows why the control refused something that the user entered.
    virtual void warn(const QString& /*text*/) {}

    [[nodiscard]] bool isAttached() const { return m_control != nullptr; }
    virtual void detach() { m_control = nullptr; }
    [[nodiscard]] const Control* control() const { return m_control; }

protected:
    /// Takes over what the kind has. Enabling, visibility and focus are the form's task.
    virtual void refresh() = 0;

    [[nodiscard]] Control& base() const { return *m_control; }
    [[nodiscard]] UserHand& hand() const { return m_context.hand; }
    /// Whether a signal of the widget is the user's.
    [[nodiscard]] bool isInput() const { return isAttached() && m_context.refreshing == 0; }
    /// A refusal of the user's channel puts the widget back to what the control holds.
    void take(const Taken& taken);

private:
    Control* m_control;
    FormContext& m_context;
};

/// A view of a kind of control.
template <class Kind> class ViewOf : public ControlView {
public:
    ViewOf(Kind& control, FormContext& context) : ControlView(control, context) {}

protected:
    [[nodiscard]] Kind& control() const { return static_cast<Kind&>(base()); }
};

/// Makes the view of a control, with its widgets inside `parent`. Null for a control that only holds others.
std::unique_ptr<ControlView> makeControlView(Control& control, FormContext& context, QWidget& parent);

}  // namespace zel::desktop
