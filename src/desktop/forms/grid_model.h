#pragma once

#include "contract/forms/grid_browser.h"
#include "desktop/forms/controller_model.h"

namespace zel::desktop {

/// Reads the cells of a grid browser as a host paints them. Rows are the data rows and the append row, columns those on screen, hidden ones included.
class GridModel final : public ControllerModel {
public:
    GridModel(CTBBrowserWnd& grid, QObject* parent) : ControllerModel(parent), m_grid(&grid) {}

    /// Takes the controller's state over.
    void follow();
    void detach();

    /// Row of the controller's user channel: the last one may be the append row.
    [[nodiscard]] int userRow(int row) const;
    [[nodiscard]] int viewRow(int userRow) const;

    [[nodiscard]] QVariant data(const QModelIndex& index, int role) const override;
    [[nodiscard]] QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

private:
    CTBBrowserWnd* m_grid;
};

}  // namespace zel::desktop
