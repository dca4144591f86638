#include "desktop/forms/grid_view.h"

#include "desktop/forms/grid_model.h"

#include <QHeaderView>
#include <QTableView>

namespace zel::desktop {

GridView::GridView(CTBBrowserWnd& grid, FormContext& context, QWidget& parent) : ViewOf(grid, context), m_model(nullptr), m_view(new QTableView(&parent))
{
    m_model = new GridModel(grid, m_view);
    m_view->setModel(m_model);
    m_view->verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    m_view->verticalHeader()->setDefaultSectionSize(m_view->fontMetrics().height() + 6);
    m_view->setEditTriggers(QAbstractItemView::NoEditTriggers);
    QObject::connect(m_view, &QTableView::clicked, m_view, [this](const QModelIndex& index) {
        if (isInput())
            take(hand().clickCell(control(), m_model->userRow(index.row()), index.column()));
    });
}

QWidget& GridView::widget()
{
    return *m_view;
}

void GridView::refresh()
{
    m_model->follow();
    for (int column = 0; column < m_model->columnCount(); ++column) {
        const GridColumn& info = control().GetColInfo(control().GetColIndex(column + 1));
        m_view->setColumnHidden(column, info.hidden);
        m_view->setColumnWidth(column, info.width);
    }
}

void GridView::detach()
{
    ControlView::detach();
    m_model->detach();
}

}  // namespace zel::desktop
