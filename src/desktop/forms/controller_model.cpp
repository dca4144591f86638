#include "desktop/forms/controller_model.h"

namespace zel::desktop {

void ControllerModel::follow(int rows, int columns)
{
    if (columns != m_columns) {
        beginResetModel();
        m_rows = rows;
        m_columns = columns;
        endResetModel();
        return;
    }
    if (rows > m_rows) {
        beginInsertRows({}, m_rows, rows - 1);
        m_rows = rows;
        endInsertRows();
    } else if (rows < m_rows) {
        beginRemoveRows({}, rows, m_rows - 1);
        m_rows = rows;
        endRemoveRows();
    }
    if (m_rows > 0 && m_columns > 0)
        Q_EMIT dataChanged(index(0, 0), index(m_rows - 1, m_columns - 1));
    if (m_columns > 0)
        Q_EMIT headerDataChanged(Qt::Horizontal, 0, m_columns - 1);
}

void ControllerModel::letGo()
{
    beginResetModel();
    m_rows = 0;
    m_columns = 0;
    endResetModel();
}

}  // namespace zel::desktop
