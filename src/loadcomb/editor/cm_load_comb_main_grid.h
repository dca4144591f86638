#pragma once

#include "loadcomb/editor/combination_grid.h"

/// The list of the combinations in the normal form. The items of its current row stand in the grid beside it.
class CCMLoadCombMainGrid final : public zel::CombinationGrid {
public:
    using CombinationGrid::CombinationGrid;

    bool ValidateField(const CString& text, ColumnIndex column) override;

private:
    [[nodiscard]] Columns columns() const override { return {.name = 1, .active = 2, .description = 3}; }
    void AddColumns() override;
};
