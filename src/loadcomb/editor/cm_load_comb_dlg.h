#pragma once

#include "command/model_listener.h"
#include "contract/forms/forms.h"
#include "loadcomb/editor/cm_load_comb_grid.h"
#include "loadcomb/editor/cm_load_comb_main_grid.h"
#include "loadcomb/editor/cm_load_comb_sub_grid.h"

/// Load Combinations: the editor of the combinations of one design kind, in two forms. The normal form lists them, with the items of
/// one beside the list; the spreadsheet has a column for each load case. Each row that is left is written at once, so there is
/// nothing to confirm or to cancel.
class CCMLoadCombDlg final : public CDBDlgBase, public zel::ModelListener {
public:
    explicit CCMLoadCombDlg(CWnd* parent = nullptr);
    ~CCMLoadCombDlg() override;

    int DestroyWindow() override;

private:
    int OnInitDialog() override;

    void OnSelectTab();
    void OnCombination(zel::Row row) { subGrid.ShowItems(mainGrid.KeyOf(row)); }
    void OnCopy();
    void OnImport();
    void OnAutoGeneration();
    void OnToggle();

    void UpdateBuffer(const CViewBuff& buffer) override;
    [[nodiscard]] bool canUpdate() const override { return IsWindow(); }

    [[nodiscard]] zel::CombinationGrid& ShownGrid();
    [[nodiscard]] bool IsRowUnderEdit() const { return m_spreadsheet ? grid.IsEdit() : mainGrid.IsEdit() || subGrid.IsEdit(); }
    /// Ends editing in the form that is shown. False, after a warning, if a row is refused: it stays open.
    bool EndEditing();
    void ShowToggleText();

    int m_kind = 1;              ///< design kind: 1 general, 2 steel, 3 concrete, 4 footing, 5 SRC
    bool m_spreadsheet = false;  ///< which form is shown
    int m_tab = 0;

    CDlgTabCtrl tabs{*this, "tabs", &CCMLoadCombDlg::OnSelectTab};
    CCMLoadCombMainGrid mainGrid{*this, "mainGrid", m_kind, &CCMLoadCombDlg::OnCombination};
    CCMLoadCombSubGrid subGrid{*this, "subGrid", m_kind};
    CCMLoadCombGrid grid{*this, "grid", m_kind};
    CButtonRow buttons{*this};
    CButton copy{buttons, "copy", "Copy", &CCMLoadCombDlg::OnCopy};
    CButton import{buttons, "import", "Import...", &CCMLoadCombDlg::OnImport};
    CButton autoGeneration{buttons, "autoGeneration", "&Auto Generation...", &CCMLoadCombDlg::OnAutoGeneration};
    CButton toggle{buttons, "toggle", {}, &CCMLoadCombDlg::OnToggle};
    CButton close{buttons, "close", "&Close", &CCMLoadCombDlg::DestroyWindow};
};
