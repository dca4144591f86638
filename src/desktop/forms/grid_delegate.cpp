#include "desktop/forms/grid_delegate.h"

#include "desktop/forms/grid_model.h"
#include "desktop/forms/grid_table.h"
#include "desktop/forms/grid_view.h"

#include <QApplication>
#include <QHelpEvent>
#include <QPainter>
#include <QToolTip>

namespace zel::desktop {

namespace {

constexpr double greyed = 0.06;   ///< share of the text colour in the background of a cell that takes no text
constexpr double heading = 0.12;  ///< the same for a heading
constexpr double faint = 0.35;    ///< share of the background in the frame of the current cell while the keys go elsewhere
constexpr int darkGrey = 128;

}  // namespace

QColor warningColour(const QPalette& palette)
{
    return qGray(palette.color(QPalette::Base).rgb()) < darkGrey ? QColor(255, 112, 112) : QColor(200, 32, 32);
}

QColor mixed(const QColor& a, const QColor& b, double share)
{
    const auto mix = [share](float from, float to) { return from + static_cast<float>(share) * (to - from); };
    return QColor::fromRgbF(mix(a.redF(), b.redF()), mix(a.greenF(), b.greenF()), mix(a.blueF(), b.blueF()));
}

QRect GridDelegate::boxRect(const QRect& cell, const QWidget& widget)
{
    const QStyle& style = *widget.style();
    const QSize size(style.pixelMetric(QStyle::PM_IndicatorWidth, nullptr, &widget), style.pixelMetric(QStyle::PM_IndicatorHeight, nullptr, &widget));
    return QStyle::alignedRect(Qt::LeftToRight, Qt::AlignCenter, size, cell);
}

void GridDelegate::paint(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const
{
    if (m_view == nullptr || !m_view->isAttached() || !m_view->model().has(index))
        return;
    const GridModel& model = m_view->model();
    const GridKind kind = model.kind(index);
    const bool current = index == m_view->table().currentIndex();
    const bool editable = model.isEditable(index);
    // Where nothing can be typed at all, the grid is a list.
    const bool takesText = m_view->grid().IsCellEditable(GridModel::gridRow(index.row()), model.columnIndex(index.column()));
    QStyle& style = *option.widget->style();

    QStyleOptionViewItem cell = option;
    initStyleOption(&cell, index);
    cell.state &= ~QStyle::State_HasFocus;
    cell.features &= ~QStyleOptionViewItem::HasCheckIndicator;
    const QColor text = cell.palette.color(QPalette::Text);
    if (cell.backgroundBrush.style() == Qt::NoBrush && (kind == GridKind::heading || !takesText) && kind != GridKind::button)
        cell.backgroundBrush = mixed(cell.palette.color(QPalette::Base), text, kind == GridKind::heading ? heading : greyed);
    if (kind == GridKind::heading)
        cell.font.setBold(true);

    const bool offers = current && editable && !model.choices(index).empty();
    if (offers || kind == GridKind::button) {
        const QString shown = std::exchange(cell.text, QString());
        style.drawControl(QStyle::CE_ItemViewItem, &cell, painter, cell.widget);
        cell.text = shown;
        cell.backgroundBrush = Qt::NoBrush;
    }
    if (kind == GridKind::button) {
        QStyleOptionButton button;
        button.initFrom(option.widget);
        button.rect = option.rect.adjusted(1, 1, -2, -2);
        button.text = cell.text;
        const bool enabled =
            m_view->grid().IsValidCell(GridModel::gridRow(index.row()), GridModel::gridColumn(index.column())) && (option.state & QStyle::State_Enabled) != 0;
        button.state = enabled ? QStyle::State_Enabled : QStyle::State_None;
        button.state |= m_view->isPressed(index) ? QStyle::State_Sunken : QStyle::State_Raised;
        style.drawControl(QStyle::CE_PushButton, &button, painter, option.widget);
    } else {
        if (offers)
            cell.rect.setRight(cell.rect.right() - arrowWidth);
        style.drawControl(QStyle::CE_ItemViewItem, &cell, painter, cell.widget);
    }
    if (kind == GridKind::check && index.data(Qt::CheckStateRole).isValid()) {
        QStyleOptionViewItem box = option;
        box.rect = boxRect(option.rect, *option.widget);
        box.state &= ~(QStyle::State_HasFocus | QStyle::State_On | QStyle::State_Off);
        if (!editable)
            box.state &= ~QStyle::State_Enabled;
        box.state |= index.data(Qt::CheckStateRole).toInt() == Qt::Checked ? QStyle::State_On : QStyle::State_Off;
        style.drawPrimitive(QStyle::PE_IndicatorItemViewItemCheck, &box, painter, option.widget);
    }
    if (offers) {
        QStyleOption arrow = option;
        arrow.rect = QRect(option.rect.right() - arrowWidth + 1, option.rect.top(), arrowWidth - frameWidth, option.rect.height());
        style.drawPrimitive(QStyle::PE_IndicatorArrowDown, &arrow, painter, option.widget);
    }
    if (current)
        paintFrame(*painter, option);
}

void GridDelegate::paintFrame(QPainter& painter, const QStyleOptionViewItem& option) const
{
    const QPalette& palette = option.palette;
    QColor colour = palette.color(QPalette::Highlight);
    if ((option.state & QStyle::State_Selected) != 0)
        colour = palette.color(QPalette::HighlightedText);
    if (m_view->isWarned())
        colour = warningColour(palette);
    else if (!m_view->table().hasKeys())
        colour = mixed(colour, palette.color(QPalette::Base), faint);
    const QRect outer = option.rect.adjusted(0, 0, -1, -1);
    const QRect inner = outer.adjusted(frameWidth, frameWidth, -frameWidth, -frameWidth);
    for (const QRect& side : QRegion(outer) - QRegion(inner))
        painter.fillRect(side, colour);
}

bool GridDelegate::helpEvent(QHelpEvent* event, QAbstractItemView* view, const QStyleOptionViewItem& option, const QModelIndex& index)
{
    if (event->type() != QEvent::ToolTip)
        return QStyledItemDelegate::helpEvent(event, view, option, index);
    const QString text = index.data(Qt::DisplayRole).toString();
    const int margin = 2 * (view->style()->pixelMetric(QStyle::PM_FocusFrameHMargin, nullptr, view) + 1);
    if (view->fontMetrics().horizontalAdvance(text) + margin > option.rect.width())
        QToolTip::showText(event->globalPos(), text, view);
    else
        QToolTip::hideText();
    return true;
}

}  // namespace zel::desktop
