#pragma once

#include "contract/forms/grid_browser_ex.h"
#include "desktop/forms/control_view.h"

class QTableView;

namespace zel::desktop {

class GridModel;

/// The grid browser as a spreadsheet: model and view on the controller, which holds all texts.
class GridView final : public ViewOf<CTBBrowserWnd> {
public:
    GridView(CTBBrowserWnd& grid, FormContext& context, QWidget& parent);

    QWidget& widget() override;
    bool isTall() const override { return true; }
    void detach() override;

private:
    void refresh() override;

    GridModel* m_model;
    QTableView* m_view;
};

}  // namespace zel::desktop
