#pragma once

#include "contract/forms/list_ctrl.h"
#include "contract/forms/lists.h"
#include "desktop/forms/control_view.h"
#include "desktop/forms/controller_model.h"

class QListView;
class QTableView;

namespace zel::desktop {

/// A list of items, with or without boxes to tick.
class ListBoxView final : public ViewOf<CListBox> {
public:
    ListBoxView(CListBox& list, FormContext& context, QWidget& parent);

    QWidget& widget() override;
    bool isTall() const override { return true; }
    void detach() override;

private:
    void refresh() override;

    class Model;
    Model* m_model;
    QListView* m_view;
};

/// A report list: columns with titles; whole rows are selected.
class ReportView final : public ViewOf<CListCtrl> {
public:
    ReportView(CListCtrl& list, FormContext& context, QWidget& parent);

    QWidget& widget() override;
    bool isTall() const override { return true; }
    void detach() override;

private:
    void refresh() override;
    void showColumns();

    class Model;
    Model* m_model;
    QTableView* m_view;
    std::vector<CListCtrl::Column> m_columns;  ///< as they were shown last
    int m_inSight = -1;                        ///< row that was last brought into sight
};

}  // namespace zel::desktop
