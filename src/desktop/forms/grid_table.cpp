#include "desktop/forms/grid_table.h"

#include "desktop/forms/grid_headers.h"
#include "desktop/forms/grid_view.h"
#include "desktop/forms/text.h"

#include <QApplication>
#include <QPainter>
#include <QScrollBar>
#include <QSignalBlocker>
#include <QWheelEvent>

#include <algorithm>

namespace zel::desktop {

namespace {

constexpr int rowMargin = 8;        ///< [pixels] that a row is higher than its text
constexpr int mostSpanRows = 500;   ///< forms of cells are that short; in longer tables no cell covers others
constexpr int fewestShownRows = 6;  ///< without making the grid scroll in a form that is as small as it gets
constexpr int shownRows = 11;
constexpr int widestAtFirst = 760;  ///< [pixels]
constexpr int widestAtLeast = 640;  ///< [pixels] that the columns make a form wide at most

}  // namespace

/// The second pane: it has neither scroll bars nor keys of its own.
class GridTable::FrozenPane final : public GridPane {
public:
    FrozenPane(GridView& view, GridTable& table) : GridPane(view, &table), m_table(table)
    {
        setFocusPolicy(Qt::NoFocus);
        setFrameShape(QFrame::NoFrame);
        setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
        setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
        verticalHeader()->hide();
        verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
        hide();
    }

protected:
    void wheelEvent(QWheelEvent* event) override { QCoreApplication::sendEvent(m_table.viewport(), event); }

    void paintEvent(QPaintEvent* event) override
    {
        GridPane::paintEvent(event);
        QPainter painter(viewport());
        painter.setPen(palette().color(QPalette::Dark));
        painter.drawLine(viewport()->width() - 1, 0, viewport()->width() - 1, viewport()->height());
    }

private:
    GridTable& m_table;
};

GridTable::GridTable(GridView& view, QWidget* parent) : GridPane(view, parent), m_frozen(new FrozenPane(view, *this)), m_rowHeader(new GridRowHeader(*this))
{
    setVerticalHeader(m_rowHeader);
    m_rowHeader->setSectionResizeMode(QHeaderView::Fixed);
    const auto resized = [this](int section, int /*former*/, int width) {
        if (this->view() != nullptr)
            this->view()->columnResized(section, width);
    };
    QObject::connect(horizontalHeader(), &QHeaderView::sectionResized, this, resized);
    QObject::connect(m_frozen->horizontalHeader(), &QHeaderView::sectionResized, this, resized);
    QObject::connect(verticalScrollBar(), &QScrollBar::valueChanged, m_frozen->verticalScrollBar(), &QScrollBar::setValue);
}

void GridTable::letGo()
{
    GridPane::letGo();
    m_frozen->letGo();
}

void GridTable::setModel(QAbstractItemModel* model)
{
    QTableView::setModel(model);
    m_frozen->setModel(model);
    m_frozen->setSelectionModel(selectionModel());
    m_frozen->setItemDelegate(itemDelegate());
}

// What the controller says

void GridTable::follow()
{
    const CTBBrowserWnd& grid = view()->grid();
    followRows(grid);
    followColumns(grid);
    followSpans(grid);
    stickColumns();
    repaintCells();
    if (const QSize least = minimumSizeHint(); least != m_leastSize) {
        m_leastSize = least;
        updateGeometry();
    }
}

void GridTable::followRows(const CTBBrowserWnd& grid)
{
    const int height = fontMetrics().height() + rowMargin;
    for (QHeaderView* header : {verticalHeader(), m_frozen->verticalHeader()}) {
        if (header->defaultSectionSize() != height) {
            header->setMinimumSectionSize(height);
            header->setDefaultSectionSize(height);
        }
    }
    m_rowHeader->follow(grid);

    std::vector<int> hidden;
    const int count = model()->rowCount();
    for (int row = 0; row < count; ++row) {
        if (grid.IsRowHidden(GridModel::gridRow(row)))
            hidden.push_back(row);
    }
    const auto show = [&](int row, bool out) {
        if (row < count && isRowHidden(row) != out) {
            setRowHidden(row, out);
            m_frozen->setRowHidden(row, out);
        }
    };
    for (const int row : m_hiddenRows)
        show(row, std::binary_search(hidden.begin(), hidden.end(), row));
    for (const int row : hidden)
        show(row, true);
    m_hiddenRows = std::move(hidden);
}

int GridTable::widthFor(const GridColumn& column, ColumnIndex index, int section)
{
    if (m_userSized.count(index) != 0)
        return column.width;
    const QString title = toQt(column.header);
    auto measured = m_titleWidths.find(title);
    if (measured == m_titleWidths.end())
        measured = m_titleWidths.emplace(title, horizontalHeader()->sectionSizeHint(section)).first;
    return std::max(column.width, measured->second);
}

void GridTable::followColumns(const CTBBrowserWnd& grid)
{
    horizontalHeader()->setVisible(grid.IsColHeaderShown());
    m_frozen->horizontalHeader()->setVisible(grid.IsColHeaderShown());
    const int columns = model()->columnCount();
    m_sticky.assign(static_cast<std::size_t>(columns), false);
    for (int section = 0; section < columns; ++section) {
        const ColumnIndex index = grid.GetColIndex(GridModel::gridColumn(section));
        const GridColumn& column = grid.GetColInfo(index);
        m_sticky[static_cast<std::size_t>(section)] = column.frozen && !column.hidden;
        setColumnHidden(section, column.hidden);
        if (column.hidden)
            continue;
        const int width = widthFor(column, index, section);
        const QHeaderView::ResizeMode mode = column.resizable ? QHeaderView::Interactive : QHeaderView::Fixed;
        for (GridPane* pane : {static_cast<GridPane*>(this), static_cast<GridPane*>(m_frozen)}) {
            pane->setColumnWidth(section, width);
            if (pane->horizontalHeader()->sectionResizeMode(section) != mode)
                pane->horizontalHeader()->setSectionResizeMode(section, mode);
        }
    }
}

void GridTable::followSpans(const CTBBrowserWnd& grid)
{
    std::vector<Span> spans;
    const int rows = model()->rowCount();
    const int columns = model()->columnCount();
    if (rows <= mostSpanRows) {
        for (int row = 0; row < rows; ++row) {
            for (int column = 0; column < columns; ++column) {
                const int count = std::min(grid.GetCellStyle(GridModel::gridRow(row), grid.GetColIndex(GridModel::gridColumn(column))).span, columns - column);
                if (count > 1) {
                    spans.push_back({row, column, count});
                    column += count - 1;
                }
            }
        }
    }
    if (spans == m_spans)
        return;
    clearSpans();
    for (const Span& span : spans)
        setSpan(span.row, span.column, 1, span.count);
    m_spans = std::move(spans);
}

// Columns that stay in sight

/// A column to keep is drawn at the left edge once its own place is beyond it.
void GridTable::stickColumns()
{
    int edge = 0;
    for (int section = 0; section < static_cast<int>(m_sticky.size()); ++section) {
        const bool stuck = m_sticky[static_cast<std::size_t>(section)] && columnViewportPosition(section) <= edge;
        if (m_frozen->isColumnHidden(section) == stuck)
            m_frozen->setColumnHidden(section, !stuck);
        if (stuck)
            edge += columnWidth(section);
    }
    placeFrozen();
}

void GridTable::placeFrozen()
{
    const int width = m_frozen->horizontalHeader()->length();
    if (width == 0) {
        m_frozen->hide();
        return;
    }
    const QRect inside = viewport()->geometry();
    const int headerHeight = horizontalHeader()->isVisible() ? horizontalHeader()->height() : 0;
    m_frozen->horizontalHeader()->setFixedHeight(std::max(headerHeight, 1));
    m_frozen->setGeometry(inside.left(), inside.top() - headerHeight, std::min(width, inside.width()), headerHeight + inside.height());
    m_frozen->show();
    m_frozen->raise();
    m_frozen->verticalScrollBar()->setValue(verticalScrollBar()->value());
}

GridPane& GridTable::frozenPane()
{
    return *m_frozen;
}

GridPane& GridTable::paneOf(int column)
{
    if (m_frozen->isVisible() && !m_frozen->isColumnHidden(column))
        return *m_frozen;
    return *this;
}

QRect GridTable::cellRect(const QModelIndex& index)
{
    return index.isValid() ? paneOf(index.column()).visualRect(index) : QRect();
}

bool GridTable::hasKeys() const
{
    const QWidget* focused = QApplication::focusWidget();
    return focused != nullptr && (focused == this || isAncestorOf(focused));
}

void GridTable::leaveTo(bool next)
{
    (void)focusNextPrevChild(next);
}

// Places

std::pair<int, int> GridTable::visibleRows() const
{
    const int first = rowAt(0);
    const int last = rowAt(viewport()->height() - 1);
    return {std::max(first, 0), last >= 0 ? last : model()->rowCount() - 1};
}

int GridTable::rowGapAt(int y) const
{
    const int row = rowAt(y);
    if (row < 0)
        return y < 0 ? 0 : model()->rowCount();
    return y > rowViewportPosition(row) + rowHeight(row) / 2 ? row + 1 : row;
}

int GridTable::rowGapPosition(int gap) const
{
    const int last = model()->rowCount() - 1;
    return gap <= last ? rowViewportPosition(gap) : rowViewportPosition(last) + rowHeight(last);
}

int GridTable::columnGapAt(int x) const
{
    const QHeaderView& header = m_frozen->isVisible() && x < m_frozen->width() ? *m_frozen->horizontalHeader() : *horizontalHeader();
    const int section = header.logicalIndexAt(x);
    if (section < 0)
        return x < 0 ? 0 : model()->columnCount();
    return x > header.sectionViewportPosition(section) + header.sectionSize(section) / 2 ? section + 1 : section;
}

void GridTable::setMarks(const GridMarks& marks)
{
    if (marks.rowGap == m_marks.rowGap && marks.columnGap == m_marks.columnGap && marks.dropCell == m_marks.dropCell)
        return;
    m_marks = marks;
    repaintCells();
}

void GridTable::repaintCells()
{
    viewport()->update();
    m_frozen->viewport()->update();
    m_rowHeader->viewport()->update();
}

// Being a widget

void GridTable::scrollTo(const QModelIndex& index, ScrollHint hint)
{
    if (!index.isValid())
        return;
    QTableView::scrollTo(index, hint);
    // The pane of the frozen columns must not cover the cell.
    const int covered = m_frozen->isVisible() ? m_frozen->width() : 0;
    if (&paneOf(index.column()) == this && columnViewportPosition(index.column()) < covered)
        horizontalScrollBar()->setValue(horizontalScrollBar()->value() - (covered - columnViewportPosition(index.column())));
}

void GridTable::updateGeometries()
{
    QTableView::updateGeometries();
    if (m_placing || model() == nullptr)
        return;
    m_placing = true;
    stickColumns();
    m_placing = false;
    if (view() != nullptr)
        view()->placeParts();
}

void GridTable::scrollContentsBy(int dx, int dy)
{
    QTableView::scrollContentsBy(dx, dy);
    if (dx != 0)
        stickColumns();
    if (view() != nullptr)
        view()->placeParts();
}

void GridTable::focusInEvent(QFocusEvent* event)
{
    {
        // Qt makes the first cell current where none is. That is no step of the user.
        const QSignalBlocker quiet(selectionModel());
        const QModelIndex former = currentIndex();
        QTableView::focusInEvent(event);
        if (currentIndex() != former)
            selectionModel()->setCurrentIndex(former, QItemSelectionModel::NoUpdate);
    }
    repaintCells();
    if (view() != nullptr)
        view()->focusCame();
}

void GridTable::focusOutEvent(QFocusEvent* event)
{
    QTableView::focusOutEvent(event);
    repaintCells();
}

void GridTable::changeEvent(QEvent* event)
{
    QTableView::changeEvent(event);
    if (event->type() == QEvent::FontChange || event->type() == QEvent::StyleChange) {
        m_titleWidths.clear();
        if (view() != nullptr && view()->isAttached() && model() != nullptr)
            view()->show();
    }
}

void GridTable::hideEvent(QHideEvent* event)
{
    QTableView::hideEvent(event);
    if (view() != nullptr)
        view()->placeParts();  // a warning goes with the page that it is on
}

/// Without a current cell the frame of the keyboard goes around all of them.
void GridTable::paintEvent(QPaintEvent* event)
{
    GridPane::paintEvent(event);
    if (!hasFocus() || currentIndex().isValid())
        return;
    QPainter painter(viewport());
    painter.setPen(palette().color(QPalette::Highlight));
    painter.drawRect(viewport()->rect().adjusted(0, 0, -1, -1));
}

QSize GridTable::sizeFor(int mostWidth, int rows) const
{
    int width = m_rowHeader->isVisibleTo(this) ? m_rowHeader->minimumWidth() : 0;
    width += horizontalHeader()->length() + verticalScrollBar()->sizeHint().width() + 2 * QTableView::frameWidth();
    const int header = horizontalHeader()->isVisibleTo(this) ? horizontalHeader()->sizeHint().height() : 0;
    const int height = header + rows * verticalHeader()->defaultSectionSize() + 2 * QTableView::frameWidth();
    return {std::min(width, mostWidth), height};
}

QSize GridTable::sizeHint() const
{
    return sizeFor(widestAtFirst, shownRows);
}

QSize GridTable::minimumSizeHint() const
{
    return sizeFor(widestAtLeast, fewestShownRows);
}

}  // namespace zel::desktop
