#include "desktop/forms/grid_bubble.h"

#include "desktop/forms/grid_delegate.h"

#include <QAccessible>
#include <QPainter>
#include <QStyle>
#include <QToolTip>

#include <algorithm>

namespace zel::desktop {

namespace {

constexpr int padding = 6;       ///< [pixels]
constexpr int away = 3;          ///< [pixels] from the cell
constexpr int widestText = 340;  ///< [pixels]
constexpr double roundness = 3.0;

}  // namespace

GridBubble::GridBubble(QWidget* parent) : QLabel(parent)
{
    setObjectName(QStringLiteral("gridWarning"));
    setTextFormat(Qt::PlainText);
    setWordWrap(true);
    setPalette(QToolTip::palette());
    setForegroundRole(QPalette::ToolTipText);
    setAttribute(Qt::WA_TransparentForMouseEvents);
    const int icon = style()->pixelMetric(QStyle::PM_SmallIconSize);
    setContentsMargins(2 * padding + icon, padding, padding, padding);
    hide();
}

void GridBubble::showAt(const QRect& cell, const QString& text)
{
    const QMargins margins = contentsMargins();
    const int across = margins.left() + margins.right();
    const int widest = std::max(1, std::min(widestText, parentWidget()->width() - across - 2 * padding));
    const QRect lines = fontMetrics().boundingRect(QRect(0, 0, widest, 0), Qt::TextWordWrap, text);
    QRect place(0, 0, lines.width() + across + 2, lines.height() + margins.top() + margins.bottom());
    const bool fitsBelow = cell.bottom() + away + place.height() <= parentWidget()->height();
    place.moveTop(fitsBelow ? cell.bottom() + away : cell.top() - away - place.height());
    place.moveLeft(std::clamp(cell.left(), 0, std::max(0, parentWidget()->width() - place.width())));
    setGeometry(place);
    const bool isNew = !isVisible() || text != this->text();
    if (text != this->text())
        setText(text);
    setAccessibleName(text);
    show();
    raise();
    if (isNew) {
        QAccessibleEvent alert(this, QAccessible::Alert);
        QAccessible::updateAccessibility(&alert);
    }
}

void GridBubble::paintEvent(QPaintEvent* event)
{
    {
        QPainter painter(this);
        painter.setRenderHint(QPainter::Antialiasing);
        painter.setPen(warningColour(palette()));
        painter.setBrush(palette().color(QPalette::ToolTipBase));
        painter.drawRoundedRect(QRectF(rect()).adjusted(0.5, 0.5, -0.5, -0.5), roundness, roundness);
        const int icon = style()->pixelMetric(QStyle::PM_SmallIconSize);
        style()->standardIcon(QStyle::SP_MessageBoxWarning).paint(&painter, QRect(padding, padding, icon, icon));
    }
    QLabel::paintEvent(event);
}

}  // namespace zel::desktop
