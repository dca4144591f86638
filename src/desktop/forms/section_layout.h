#pragma once

#include "contract/forms/control.h"
#include "desktop/forms/control_view.h"

#include <QGridLayout>

class QHBoxLayout;
class QLabel;

namespace zel::desktop {

/// Lines of labels and fields, one below the other, in a form or in the frame of a group.
class SectionLayout {
public:
    /// @param parent  of the widgets in it; the layout is to be added to one of its layouts
    explicit SectionLayout(QWidget& parent) : m_parent(&parent), m_grid(new QGridLayout) {}

    /// Adds the view at its place and returns the label that was made beside it; null for none.
    QLabel* add(const Control& control, ControlView& view);

    [[nodiscard]] QGridLayout& layout() const { return *m_grid; }
    [[nodiscard]] QWidget& parent() const { return *m_parent; }

private:
    [[nodiscard]] bool continuesLine(const Control& control) const;
    QLabel* makeLabel(const Control& control, ControlView& view);
    void beginLine(QLabel* label, bool tall);

    QWidget* m_parent;
    QGridLayout* m_grid;
    QHBoxLayout* m_line = nullptr;
    const Control* m_last = nullptr;  ///< control that was added last
    int m_row = -1;
};

}  // namespace zel::desktop
