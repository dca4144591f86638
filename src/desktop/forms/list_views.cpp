#include "desktop/forms/list_views.h"

#include "desktop/forms/list_selection.h"
#include "desktop/forms/text.h"

#include <QHeaderView>
#include <QItemSelectionModel>
#include <QListView>
#include <QScrollBar>
#include <QTableView>

#include <algorithm>

namespace zel::desktop {

namespace {

constexpr int shownRows = 7;
constexpr int widestList = 700;  ///< [pixels] that the columns of a list make a form wide at most

/// The selected rows as the user's channel takes them: the one with the keyboard last, which the controller then takes for the focused one.
std::vector<int> selectedRows(const QAbstractItemView& view)
{
    std::vector<int> rows = selectedRowsOf(*view.selectionModel());
    const auto current = std::find(rows.begin(), rows.end(), view.currentIndex().row());
    if (current != rows.end())
        std::rotate(current, current + 1, rows.end());
    return rows;
}

/// Takes a selection of the controller over. The keyboard goes to `focused`, or stays where it is.
void showSelection(QAbstractItemView& view, const std::vector<int>& rows, int focused)
{
    selectRowsIn(view, rows);
    const int column = std::max(view.currentIndex().column(), 0);
    const QModelIndex row = view.model()->index(focused, column);
    if (row.isValid() && view.currentIndex().row() != focused)
        view.selectionModel()->setCurrentIndex(row, QItemSelectionModel::NoUpdate);
}

void setUp(QAbstractItemView& view, bool multiple)
{
    view.setSelectionMode(multiple ? QAbstractItemView::ExtendedSelection : QAbstractItemView::SingleSelection);
    view.setSelectionBehavior(QAbstractItemView::SelectRows);
    view.setEditTriggers(QAbstractItemView::NoEditTriggers);
    view.setTabKeyNavigation(false);
}

}  // namespace

class ListBoxView::Model final : public ControllerModel {
public:
    explicit Model(ListBoxView& view, QObject* parent) : ControllerModel(parent), m_view(view) {}

    [[nodiscard]] QVariant data(const QModelIndex& index, int role) const override
    {
        if (!m_view.isAttached() || index.row() >= m_view.control().GetCount())
            return {};
        if (role == Qt::DisplayRole)
            return toQt(m_view.control().GetItemText(index.row()));
        const CCheckListBox* boxes = checks();
        if (role == Qt::CheckStateRole && boxes != nullptr)
            return boxes->GetCheck(index.row()) ? Qt::Checked : Qt::Unchecked;
        return {};
    }

    [[nodiscard]] Qt::ItemFlags flags(const QModelIndex& index) const override
    {
        const Qt::ItemFlags plain = Qt::ItemIsEnabled | Qt::ItemIsSelectable;
        return index.isValid() && m_view.isAttached() && checks() != nullptr ? plain | Qt::ItemIsUserCheckable : plain;
    }

    bool setData(const QModelIndex& index, const QVariant& value, int role) override
    {
        if (role != Qt::CheckStateRole || !m_view.isInput())
            return false;
        m_view.take(m_view.hand().act(m_view.control(), {.verb = Verb::tick, .row = index.row(), .on = value.toInt() == Qt::Checked}));
        return true;
    }

private:
    [[nodiscard]] const CCheckListBox* checks() const { return dynamic_cast<const CCheckListBox*>(&m_view.control()); }

    ListBoxView& m_view;
};

ListBoxView::ListBoxView(CListBox& list, FormContext& context, QWidget& parent) : ViewOf(list, context), m_view(new QListView(&parent))
{
    m_model = new Model(*this, m_view);
    m_view->setModel(m_model);
    m_view->setUniformItemSizes(true);
    setUp(*m_view, list.isMultiple());
    m_view->setMinimumHeight(m_view->fontMetrics().lineSpacing() * shownRows);
    QObject::connect(m_view->selectionModel(), &QItemSelectionModel::selectionChanged, m_view, [this] {
        if (isInput())
            take(hand().act(control(), {.verb = Verb::select, .rows = selectedRows(*m_view)}));
    });
    QObject::connect(m_view, &QListView::doubleClicked, m_view, [this](const QModelIndex& index) {
        if (isInput())
            take(hand().act(control(), {.verb = Verb::doubleClick, .row = index.row()}));
    });
}

QWidget& ListBoxView::widget()
{
    return *m_view;
}

void ListBoxView::refresh()
{
    m_model->follow(control().GetCount(), 1);
    const std::vector<int> selected = control().GetSelItems();
    const bool keeps = std::binary_search(selected.begin(), selected.end(), m_view->currentIndex().row());
    showSelection(*m_view, selected, selected.empty() || keeps ? -1 : selected.front());
    if (!selected.empty() && !keeps)
        m_view->scrollTo(m_view->currentIndex());
}

void ListBoxView::detach()
{
    ControlView::detach();
    m_model->letGo();
}

class ReportView::Model final : public ControllerModel {
public:
    explicit Model(ReportView& view, QObject* parent) : ControllerModel(parent), m_view(view) {}

    [[nodiscard]] QVariant data(const QModelIndex& index, int role) const override
    {
        if (!m_view.isAttached() || index.row() >= m_view.control().GetItemCount())
            return {};
        if (role == Qt::DisplayRole || role == Qt::ToolTipRole)
            return toQt(m_view.control().GetItemText(index.row(), index.column()));
        if (role == Qt::TextAlignmentRole)
            return alignment(index.column());
        return {};
    }

    [[nodiscard]] QVariant headerData(int section, Qt::Orientation orientation, int role) const override
    {
        if (!m_view.isAttached() || orientation != Qt::Horizontal || section >= static_cast<int>(m_view.control().columns().size()))
            return {};
        if (role == Qt::DisplayRole)
            return toQt(m_view.control().columns()[static_cast<std::size_t>(section)].title);
        if (role == Qt::TextAlignmentRole)
            return alignment(section);
        return {};
    }

private:
    [[nodiscard]] QVariant alignment(int column) const
    {
        const auto& columns = m_view.control().columns();
        if (column >= static_cast<int>(columns.size()))
            return {};
        Qt::Alignment sideways = Qt::AlignLeft;
        if (columns[static_cast<std::size_t>(column)].align == CListCtrl::Align::right)
            sideways = Qt::AlignRight;
        else if (columns[static_cast<std::size_t>(column)].align == CListCtrl::Align::centre)
            sideways = Qt::AlignHCenter;
        return QVariant(sideways | Qt::AlignVCenter);
    }

    ReportView& m_view;
};

ReportView::ReportView(CListCtrl& list, FormContext& context, QWidget& parent) : ViewOf(list, context), m_view(new QTableView(&parent))
{
    m_model = new Model(*this, m_view);
    m_view->setModel(m_model);
    setUp(*m_view, list.isMultiple());
    m_view->setShowGrid(false);
    m_view->setWordWrap(false);
    m_view->verticalHeader()->hide();
    m_view->verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    m_view->verticalHeader()->setDefaultSectionSize(m_view->fontMetrics().height() + 6);
    m_view->horizontalHeader()->setStretchLastSection(true);
    m_view->horizontalHeader()->setHighlightSections(false);
    m_view->setMinimumHeight(m_view->verticalHeader()->defaultSectionSize() * shownRows);
    QObject::connect(m_view->selectionModel(), &QItemSelectionModel::selectionChanged, m_view, [this] {
        if (isInput())
            take(hand().act(control(), {.verb = Verb::select, .rows = selectedRows(*m_view)}));
    });
    QObject::connect(m_view, &QTableView::doubleClicked, m_view, [this](const QModelIndex& index) {
        if (isInput())
            take(hand().act(control(), {.verb = Verb::doubleClick, .row = index.row()}));
    });
}

QWidget& ReportView::widget()
{
    return *m_view;
}

void ReportView::showColumns()
{
    const auto& columns = control().columns();
    int width = 0;
    for (std::size_t i = 0; i < columns.size(); ++i) {
        const int column = static_cast<int>(i);
        const int titleWidth = m_view->horizontalHeader()->sectionSizeHint(column);
        const int wanted = std::max(columns[i].width, titleWidth);
        m_view->setColumnHidden(column, !columns[i].visible);
        m_view->setColumnWidth(column, wanted);
        width += columns[i].visible ? wanted : 0;
    }
    m_view->setMinimumWidth(std::min(width + m_view->verticalScrollBar()->sizeHint().width() + 2 * m_view->frameWidth(), widestList));
}

void ReportView::refresh()
{
    const auto& columns = control().columns();
    const auto same = [](const CListCtrl::Column& a, const CListCtrl::Column& b) { return a.title == b.title && a.width == b.width && a.visible == b.visible; };
    const bool newColumns = !std::equal(columns.begin(), columns.end(), m_columns.begin(), m_columns.end(), same);
    const int keyboard = m_view->currentIndex().row();
    const int formerRows = m_model->rowCount();
    m_model->follow(control().GetItemCount(), static_cast<int>(columns.size()));
    if (newColumns) {
        m_columns = columns;
        showColumns();
    }
    const int focused = control().GetFocusedItem();
    showSelection(*m_view, control().GetSelectedItems(), focused >= 0 ? focused : std::min(keyboard, m_model->rowCount() - 1));
    // Brought into sight when the dialog asks for it; what the user has scrolled to since then stays.
    const int inSight = control().visibleRow();
    if (inSight >= 0 && (inSight != m_inSight || m_model->rowCount() != formerRows))
        m_view->scrollTo(m_model->index(inSight, 0));
    m_inSight = inSight;
}

void ReportView::detach()
{
    ControlView::detach();
    m_model->letGo();
}

}  // namespace zel::desktop
