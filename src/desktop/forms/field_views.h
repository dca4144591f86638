#pragma once

#include "contract/forms/edit.h"
#include "desktop/forms/control_view.h"

class QLabel;
class QLineEdit;
class QPlainTextEdit;

namespace zel::desktop {

/// A field of text, of a number or of picked keys; typing reaches the control at each keystroke.
class EditView final : public ViewOf<CEdit> {
public:
    EditView(CEdit& field, FormContext& context, QWidget& parent);

    QWidget& widget() override;

private:
    void refresh() override;
    void typed(const QString& text);
    [[nodiscard]] int placeOf(int byte) const;
    void select(int start, int end);
    /// Shows whether the form can't take what is entered: by the colour behind the text, and to readers of the screen.
    void mark(bool refused);

    QLineEdit* m_line = nullptr;
    QPlainTextEdit* m_lines = nullptr;  ///< in place of m_line, of a field of several lines
};

/// A text that the program sets, or the unit beside a field.
class StaticView final : public ViewOf<CStatic> {
public:
    StaticView(CStatic& text, FormContext& context, QWidget& parent);

    QWidget& widget() override;
    QWidget* focusWidget() override { return nullptr; }
    bool hasLabelBeside() const override { return false; }

private:
    void refresh() override;

    QLabel* m_label;
};

}  // namespace zel::desktop
