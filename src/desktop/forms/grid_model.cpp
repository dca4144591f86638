#include "desktop/forms/grid_model.h"

#include "desktop/forms/text.h"

namespace zel::desktop {

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

int GridModel::userRow(int row) const
{
    return m_grid->toUserRow(row + 1);
}

int GridModel::viewRow(int userRow) const
{
    return m_grid->toRow(userRow) - 1;
}

QVariant GridModel::data(const QModelIndex& index, int role) const
{
    if (m_grid == nullptr || !index.isValid() || index.row() >= m_grid->GetRowCount() || index.column() >= m_grid->GetColCount())
        return {};
    if (role == Qt::DisplayRole)
        return toQt(m_grid->shownText(userRow(index.row()), index.column()));
    return {};
}

QVariant GridModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (m_grid == nullptr || role != Qt::DisplayRole)
        return {};
    if (orientation == Qt::Vertical)
        return section < m_grid->GetRowCount() ? QVariant(toQt(m_grid->GetRowHeaderText(section + 1))) : QVariant();
    return section < m_grid->GetColCount() ? QVariant(toQt(m_grid->GetColInfo(m_grid->GetColIndex(section + 1)).header)) : QVariant();
}

}  // namespace zel::desktop
