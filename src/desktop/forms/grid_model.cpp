#include "desktop/forms/grid_model.h"

#include "desktop/forms/text.h"

#include <QBrush>

namespace zel::desktop {

namespace {

constexpr int brightGrey = 127;  ///< backgrounds above it bear black text

QColor colourOf(const Colour& colour)
{
    return {colour.red, colour.green, colour.blue};
}

}  // namespace

void GridModel::follow()
{
    if (m_grid != nullptr)
        ControllerModel::follow(m_grid->GetRowCount(), m_grid->GetColCount());
}

void GridModel::detach()
{
    m_grid = nullptr;
    letGo();
}

bool GridModel::has(const QModelIndex& index) const
{
    return m_grid != nullptr && index.isValid() && index.row() < m_grid->GetRowCount() && index.column() < m_grid->GetColCount();
}

bool GridModel::isEditable(const QModelIndex& index) const
{
    return !m_grid->IsModeDisplayOnly() && m_grid->IsCellEditable(gridRow(index.row()), columnIndex(index.column()));
}

std::vector<CString> GridModel::choices(const QModelIndex& index) const
{
    return m_grid->GetCellChoices(gridRow(index.row()), columnIndex(index.column()));
}

QVariant GridModel::shown(const QModelIndex& index) const
{
    return toQt(m_grid->shownText(userRow(index.row()), index.column()));
}

/// Of the cell's own style. A cell of which only the background is given keeps its text legible in a dark theme.
QVariant GridModel::colour(const QModelIndex& index, bool background) const
{
    const GridCellStyle style = m_grid->GetCellStyle(gridRow(index.row()), columnIndex(index.column()));
    if (background)
        return style.background ? QVariant(QBrush(colourOf(*style.background))) : QVariant();
    if (style.foreground)
        return QBrush(colourOf(*style.foreground));
    if (style.background)
        return QBrush(qGray(colourOf(*style.background).rgb()) > brightGrey ? Qt::black : Qt::white);
    return {};
}

QVariant GridModel::data(const QModelIndex& index, int role) const
{
    if (!has(index))
        return {};
    switch (role) {
    case Qt::DisplayRole:
    case Qt::AccessibleTextRole:
        return kind(index) == GridKind::check ? QVariant() : shown(index);
    case Qt::EditRole:
        return toQt(m_grid->GetValueRowCol(gridRow(index.row()), gridColumn(index.column())));
    case Qt::CheckStateRole: {
        if (kind(index) != GridKind::check)
            return {};
        const QString text = shown(index).toString();
        return text.isEmpty() ? QVariant() : QVariant(text == QLatin1String("1") ? Qt::Checked : Qt::Unchecked);
    }
    case Qt::TextAlignmentRole: {
        const GridAlign align = m_grid->GetColInfo(columnIndex(index.column())).align;
        const Qt::Alignment sideways = align == GridAlign::left ? Qt::AlignLeft : align == GridAlign::right ? Qt::AlignRight : Qt::AlignHCenter;
        return QVariant(sideways | Qt::AlignVCenter);
    }
    case Qt::BackgroundRole:
    case Qt::ForegroundRole:
        return colour(index, role == Qt::BackgroundRole);
    default:
        return {};
    }
}

QVariant GridModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (m_grid == nullptr || role != Qt::DisplayRole)
        return {};
    if (orientation == Qt::Vertical)
        return section < m_grid->GetRowCount() ? QVariant(toQt(m_grid->GetRowHeaderText(gridRow(section)))) : QVariant();
    return section < m_grid->GetColCount() ? QVariant(toQt(m_grid->GetColInfo(columnIndex(section)).header)) : QVariant();
}

Qt::ItemFlags GridModel::flags(const QModelIndex& index) const
{
    if (!has(index))
        return Qt::NoItemFlags;
    const Qt::ItemFlags plain = Qt::ItemIsEnabled | Qt::ItemIsSelectable | Qt::ItemIsDropEnabled;
    return isEditable(index) ? plain | Qt::ItemIsEditable : plain;
}

}  // namespace zel::desktop
