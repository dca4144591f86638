#pragma once

#include <QLabel>

namespace zel::desktop {

/// A short text beside a cell that says why it was refused. Clicks pass through it.
class GridBubble final : public QLabel {
public:
    explicit GridBubble(QWidget* parent);

    /// Shows a text at a cell, whose place is given in the coordinates of the parent: below it, or above where there is no room.
    void showAt(const QRect& cell, const QString& text);

protected:
    void paintEvent(QPaintEvent* event) override;
};

}  // namespace zel::desktop
