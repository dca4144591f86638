#include "desktop/forms/list_views.h"

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

std::vector<int> selectedRows(const QItemSelectionModel& selection)
{
    std::vector<int> rows;
    for (const QItemSelectionRange& range : selection.selection()) {
        for (int row = range.top(); row <= range.bottom(); ++row)
            rows.push_back(row);
    }
    std::sort(rows.begin(), rows.end());
    rows.erase(std::unique(rows.begin(), rows.end()), rows.end());
    return rows;
}

/// Selects these rows, ascending, and no others; neighbours as one range.
void selectRows(QAbstractItemView& view, const std::vector<int>& rows)
{
    const QAbstractItemModel& model = *view.model();
    QItemSelection selection;
    for (std::size_t first = 0; first < rows.size();) {
        std::size_t last = first;
        while (last + 1 < rows.size() && rows[last + 1] == rows[last] + 1)
            ++last;
        selection.select(model.index(rows[first], 0), model.index(rows[last], model.columnCount() - 1));
        first = last + 1;
    }
    if (selectedRows(*view.selectionModel()) != rows)
        view.selectionModel()->select(selection, QItemSelectionModel::ClearAndSelect);
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
        m_view.take(m_view.hand().tick(m_view.control(), index.row(), value.toInt() == Qt::Checked));
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
            take(hand().select(control(), selectedRows(*m_view->selectionModel())));
    });
    QObject::connect(m_view, &QListView::doubleClicked, m_view, [this](const QModelIndex& index) {
        if (isInput())
            take(hand().doubleClick(control(), index.row()));
    });
}

QWidget& ListBoxView::widget()
{
    return *m_view;
}

void ListBoxView::refresh()
{
    m_model->follow(control().GetCount(), 1);
    selectRows(*m_view, control().GetSelItems());
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
            take(hand().select(control(), selectedRows(*m_view->selectionModel())));
    });
    QObject::connect(m_view, &QTableView::doubleClicked, m_view, [this](const QModelIndex& index) {
        if (isInput())
            take(hand().doubleClick(control(), index.row()));
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
    const int columns = static_cast<int>(control().columns().size());
    const bool newColumns = columns != m_model->columnCount();
    m_model->follow(control().GetItemCount(), columns);
    if (newColumns)
        showColumns();
    selectRows(*m_view, control().GetSelectedItems());
    if (const int row = control().visibleRow(); row >= 0)
        m_view->scrollTo(m_model->index(row, 0));
}

void ReportView::detach()
{
    ControlView::detach();
    m_model->letGo();
}

}  // namespace zel::desktop
