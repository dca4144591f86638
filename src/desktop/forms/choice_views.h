#pragma once

#include "contract/forms/buttons.h"
#include "contract/forms/lists.h"
#include "contract/forms/tabs.h"
#include "desktop/forms/control_view.h"

class QCheckBox;
class QComboBox;
class QPushButton;
class QRadioButton;
class QTabBar;
class QToolButton;

namespace zel::desktop {

class ButtonView final : public ViewOf<CButton> {
public:
    ButtonView(CButton& button, FormContext& context, QWidget& parent);

    QWidget& widget() override;
    bool hasLabelBeside() const override { return false; }
    void setOwnText(const QString& text) override;
    void showAsDefault(bool isDefault) override;

private:
    void refresh() override {}

    QPushButton* m_button;
};

class CheckView final : public ViewOf<CCheckBox> {
public:
    CheckView(CCheckBox& check, FormContext& context, QWidget& parent);

    QWidget& widget() override;
    bool hasLabelBeside() const override { return false; }
    void setOwnText(const QString& text) override;

private:
    void refresh() override;

    QCheckBox* m_check;
};

class RadioView final : public ViewOf<CRadioButton> {
public:
    RadioView(CRadioButton& radio, FormContext& context, QWidget& parent);

    QWidget& widget() override;
    bool hasLabelBeside() const override { return false; }
    void setOwnText(const QString& text) override;

private:
    void refresh() override;

    QRadioButton* m_radio;
};

/// The two arrows beside a field.
class SpinView final : public ViewOf<CSpinButtonCtrl> {
public:
    SpinView(CSpinButtonCtrl& spin, FormContext& context, QWidget& parent);

    QWidget& widget() override { return *m_box; }
    QWidget* focusWidget() override { return nullptr; }
    bool hasLabelBeside() const override { return false; }

private:
    void refresh() override {}

    QWidget* m_box;
};

class ComboView final : public ViewOf<CComboBox> {
public:
    ComboView(CComboBox& combo, FormContext& context, QWidget& parent);

    QWidget& widget() override;

private:
    void refresh() override;
    void adjustWidth();

    QComboBox* m_combo;
};

/// The strip of tabs. Its pages are laid out below it.
class TabsView final : public ViewOf<CDlgTabCtrl> {
public:
    TabsView(CDlgTabCtrl& tabs, FormContext& context, QWidget& parent);

    QWidget& widget() override;
    bool hasLabelBeside() const override { return false; }

private:
    void refresh() override;

    QTabBar* m_bar;
};

}  // namespace zel::desktop
