#pragma once

#include <QStyledItemDelegate>

namespace zel::desktop {

class GridView;

/// Paints the cells of a grid: texts, boxes to tick, buttons, headings, the arrow of a cell that offers a list, and the frame of the current one.
class GridDelegate final : public QStyledItemDelegate {
public:
    static constexpr int frameWidth = 2;   ///< [pixels] of the frame around the current cell
    static constexpr int arrowWidth = 16;  ///< [pixels] at the right of a cell that offers a list, when it is current

    GridDelegate(GridView& view, QObject* parent) : QStyledItemDelegate(parent), m_view(&view) {}
    void letGo() { m_view = nullptr; }

    void paint(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const override;
    /// Shows the whole text of a cell that is too narrow for it.
    bool helpEvent(QHelpEvent* event, QAbstractItemView* view, const QStyleOptionViewItem& option, const QModelIndex& index) override;

    /// Where the box of a check cell stands in the cell.
    [[nodiscard]] static QRect boxRect(const QRect& cell, const QWidget& widget);

private:
    void paintFrame(QPainter& painter, const QStyleOptionViewItem& option) const;

    GridView* m_view;
};

/// A colour for what is wrong, legible on the background of `palette`.
[[nodiscard]] QColor warningColour(const QPalette& palette);

/// `a`, with `share` (0 to 1) of `b` in it.
[[nodiscard]] QColor mixed(const QColor& a, const QColor& b, double share);

}  // namespace zel::desktop
