#pragma once

#include "contract/forms/grid_browser.h"
#include "desktop/forms/controller_model.h"

namespace zel::desktop {

/// Reads the cells of a grid browser as a host paints them. Rows are the data rows and the append row, columns those on screen, hidden ones
/// included. They are numbered from 0.
class GridModel final : public ControllerModel {
public:
    GridModel(CTBBrowserWnd& grid, QObject* parent) : ControllerModel(parent), m_grid(&grid) {}

    /// Takes the controller's state over.
    void follow();
    void detach();

    /// Row of the controller's user channel: the last one may be the append row.
    [[nodiscard]] UserRow userRow(int row) const { return m_grid->toUserRow(gridRow(row)); }
    /// The grid's own numbers of a row and a column, and the row of the model for one of the grid's.
    [[nodiscard]] static Row gridRow(int row) { return Row::of(row + 1); }
    [[nodiscard]] static ColumnPlace gridColumn(int column) { return ColumnPlace::of(column + 1); }
    [[nodiscard]] static int modelRow(Row row) { return row.number() - 1; }
    /// Whether the cell is there in the grid now: rows may have come or gone since the last `follow`.
    [[nodiscard]] bool has(const QModelIndex& index) const;
    /// The fixed index of a column.
    [[nodiscard]] ColumnIndex columnIndex(int column) const { return m_grid->GetColIndex(gridColumn(column)); }
    /// Kind and choices of a cell, and whether it takes a text now. The cell must be there.
    [[nodiscard]] GridKind kind(const QModelIndex& index) const { return m_grid->GetCellKind(gridRow(index.row()), columnIndex(index.column())); }
    [[nodiscard]] bool isEditable(const QModelIndex& index) const;
    [[nodiscard]] std::vector<CString> choices(const QModelIndex& index) const;

    [[nodiscard]] QVariant data(const QModelIndex& index, int role) const override;
    [[nodiscard]] QVariant headerData(int section, Qt::Orientation orientation, int role) const override;
    [[nodiscard]] Qt::ItemFlags flags(const QModelIndex& index) const override;

private:
    [[nodiscard]] QVariant shown(const QModelIndex& index) const;
    [[nodiscard]] QVariant colour(const QModelIndex& index, bool background) const;

    CTBBrowserWnd* m_grid;
};

}  // namespace zel::desktop
