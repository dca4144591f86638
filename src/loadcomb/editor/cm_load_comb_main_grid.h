#pragma once

#include "loadcomb/editor/lcomb_editor_rows.h"

class CCMLoadCombDlg;

/// The list of the combinations in the normal form. The items of its current row stand in the grid beside it.
class CCMLoadCombMainGrid final : public zel::CombinationGrid {
public:
    CCMLoadCombMainGrid(CCMLoadCombDlg& dialog, std::string_view id, int kind);

    void OnCurrentRowChanged(int row) override;
    bool ValidateField(const CString& text, int column) override;

private:
    [[nodiscard]] Columns columns() const override { return {.name = 1, .active = 2, .description = 3}; }
    void AddColumns() override;

    CCMLoadCombDlg& m_dialog;
};
