#pragma once

#include <QAbstractTableModel>

namespace zel::desktop {

/// A table model that reads from a controller and holds no values. Its numbers of rows and columns follow the controller's when it is told to,
/// so that a view never sees them change between two events.
class ControllerModel : public QAbstractTableModel {
public:
    using QAbstractTableModel::QAbstractTableModel;

    [[nodiscard]] int rowCount(const QModelIndex& parent = {}) const override { return parent.isValid() ? 0 : m_rows; }
    [[nodiscard]] int columnCount(const QModelIndex& parent = {}) const override { return parent.isValid() ? 0 : m_columns; }

    /// Takes these numbers over and has all cells and column headers that are seen painted again. What it costs does not depend on the number
    /// of rows unless that number changes; headers of rows are left to the view.
    void follow(int rows, int columns);
    /// Shows nothing from now on: the controller is gone.
    void letGo();

private:
    int m_rows = 0;
    int m_columns = 0;
};

}  // namespace zel::desktop
