#include "desktop/forms/grid_view.h"

#include "desktop/forms/grid_bubble.h"
#include "desktop/forms/grid_delegate.h"
#include "desktop/forms/grid_editor.h"
#include "desktop/forms/grid_input.h"
#include "desktop/forms/grid_table.h"
#include "desktop/forms/list_selection.h"
#include "desktop/forms/text.h"

#include <QItemSelectionModel>
#include <QTimer>

namespace zel::desktop {

GridView::GridView(CTBBrowserWnd& grid, FormContext& context, QWidget& parent) : ViewOf(grid, context), m_table(new GridTable(*this, &parent))
{
    m_model = new GridModel(grid, m_table);
    m_delegate = new GridDelegate(*this, m_table);
    m_table->setItemDelegate(m_delegate);
    m_table->setModel(m_model);
    m_input = std::make_unique<GridInput>(*this);
    m_editor = std::make_unique<GridEditor>(*this);
    // Assistive tools move Qt's current cell and selection by themselves.
    QObject::connect(m_table->selectionModel(), &QItemSelectionModel::currentChanged, m_table, [this](const QModelIndex& index) { follow(index); });
    QObject::connect(m_table->selectionModel(), &QItemSelectionModel::selectionChanged, m_table, [this] {
        if (isInput())
            m_input->select(selectedRowsOf(*m_table->selectionModel()));
    });
}

GridView::~GridView()
{
    if (m_table == nullptr)
        return;
    m_table->letGo();
    m_delegate->letGo();
    m_table->selectionModel()->disconnect(m_table);
}

QWidget& GridView::widget()
{
    return *m_table;
}

GridTable& GridView::table() const
{
    return *m_table;
}

bool GridView::isTableThere() const
{
    return m_table != nullptr;
}

void GridView::detach()
{
    ControlView::detach();
    m_editor->close();
    m_input->reset();
    if (m_bubble != nullptr)
        m_bubble->hide();
    m_model->detach();
}

// Steps of the user

bool GridView::act(const std::function<Taken()>& step, Refusal refusal)
{
    if (!isInput())
        return false;
    const std::weak_ptr<bool> life = m_life;
    m_warning.clear();
    const Taken taken = step();
    if (life.expired() || !isAttached())
        return false;
    if (!taken && refusal == Refusal::shown)
        m_warning = toQt(taken.refusal);
    show();
    return taken.ok();
}

bool GridView::act(const UserStep& step, Refusal refusal)
{
    return act([&] { return hand().act(control(), step); }, refusal);
}

bool GridView::type(const QString& text)
{
    if (!isInput())
        return false;
    const std::weak_ptr<bool> life = m_life;
    const Taken taken = hand().typeText(control(), fromQt(text));
    if (life.expired() || !isAttached())
        return false;
    m_editor->follow();  // with what the controller has taken, or what it had before
    return taken.ok();
}

bool GridView::isPressed(const QModelIndex& index) const
{
    return m_input->pressedButton() == index;
}

void GridView::columnResized(int section, int width)
{
    if (!isInput() || width == 0)
        return;
    m_table->keepWidth(m_model->columnIndex(section));
    (void)act([&] { return hand().resizeColumn(control(), section, width); });
}

void GridView::follow(const QModelIndex& current)
{
    if (isInput() && m_model->has(current))
        (void)act({.verb = Verb::current, .row = m_model->userRow(current.row()), .column = current.column()});
}

void GridView::focusCame()
{
    if (isAttached())
        m_editor->takeFocus();
}

// What the controller says

void GridView::refresh()
{
    m_model->follow();
    m_table->follow();
    showSelection();
    showCurrent();
    m_editor->follow();
    showWarning();
}

QModelIndex GridView::currentIndex() const
{
    Row row;
    ColumnPlace column;
    return control().GetCurrentCell(row, column) != 0 ? m_model->index(GridModel::modelRow(row), CTBGrid::toUserColumn(column).number()) : QModelIndex();
}

/// The current cell is brought into sight when it becomes another one; a refresh for other reasons leaves the cells where they are.
void GridView::showCurrent()
{
    const QModelIndex current = currentIndex();
    if (m_table->currentIndex() != current)
        m_table->selectionModel()->setCurrentIndex(current, QItemSelectionModel::NoUpdate);
    if (current != m_shownCurrent)
        m_table->scrollTo(current, QAbstractItemView::EnsureVisible);
    m_shownCurrent = current;
}

void GridView::showSelection()
{
    const CArray<Row>& selected = control().GetSelectedRows();
    if (selected == m_shownSelection && m_selectionRows == m_model->rowCount())
        return;
    m_shownSelection = selected;
    m_selectionRows = m_model->rowCount();
    std::vector<int> rows;
    for (const Row row : selected)
        rows.push_back(GridModel::modelRow(row));
    selectRowsIn(*m_table, std::move(rows));
}

void GridView::fillVisible()
{
    if (!isAttached())
        return;
    const auto [first, last] = m_table->visibleRows();
    control().fillRows(GridModel::gridRow(first), GridModel::gridRow(last));
}

// What stands over the cells

void GridView::warn(const QString& text)
{
    m_warning = text;
    // The step that brought the warning shows it; so does this, for one that came by itself.
    QTimer::singleShot(0, m_table, [this, life = std::weak_ptr<bool>(m_life)] {
        if (!life.expired() && isAttached())
            show();
    });
}

void GridView::showWarning()
{
    if (m_table->accessibleDescription() != m_warning)
        m_table->setAccessibleDescription(m_warning);
    if (m_warning.isEmpty()) {
        if (m_bubble != nullptr)
            m_bubble->hide();
        return;
    }
    if (m_bubble == nullptr)
        m_bubble = new GridBubble(m_table->window());
    placeParts();
}

void GridView::placeParts()
{
    if (!isAttached())
        return;
    m_editor->place();
    if (m_bubble == nullptr || m_warning.isEmpty())
        return;
    const QModelIndex current = m_table->currentIndex();
    const QWidget& viewport = current.isValid() ? *m_table->paneOf(current.column()).viewport() : *m_table->viewport();
    QRect cell = m_table->cellRect(current);
    if (!current.isValid())
        cell = QRect(0, 0, 1, 1);
    if (!viewport.rect().intersects(cell) || !m_table->isVisible()) {
        m_bubble->hide();  // its cell is scrolled away
        return;
    }
    m_bubble->showAt(QRect(viewport.mapTo(m_table->window(), cell.topLeft()), cell.size()), m_warning);
}

}  // namespace zel::desktop
