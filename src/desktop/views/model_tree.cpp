#include "desktop/views/model_tree.h"

#include "contract/document.h"
#include "contract/table.h"
#include "contract/tables/model_tables.h"
#include "contract/view_ctrl.h"
#include "desktop/views/model_tree_model.h"
#include "journal/user_hand.h"

#include <QContextMenuEvent>
#include <QHeaderView>
#include <QKeyEvent>
#include <QMenu>
#include <QScrollBar>
#include <QStyledItemDelegate>

#include <algorithm>

namespace zel::desktop {

namespace {

/// Rows with room to click at.
class RoomyRows final : public QStyledItemDelegate {
public:
    using QStyledItemDelegate::QStyledItemDelegate;

    [[nodiscard]] QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override
    {
        const QSize size = QStyledItemDelegate::sizeHint(option, index);
        return {size.width(), std::max(size.height(), option.fontMetrics.height() + 6)};
    }
};

}  // namespace

ModelTree::ModelTree(UserHand& hand, QWidget* parent) : QTreeView(parent), m_hand(hand)
{
    setModel(new ModelTreeModel(this));
    setAccessibleName(QStringLiteral("Model tree"));
    setHeaderHidden(true);
    setUniformRowHeights(true);
    setItemDelegate(new RoomyRows(this));
    setFrameShape(QFrame::NoFrame);
    setIndentation(16);
    setTextElideMode(Qt::ElideRight);
    setSelectionMode(QAbstractItemView::ExtendedSelection);
    setEditTriggers(QAbstractItemView::NoEditTriggers);
    setExpandsOnDoubleClick(false);
    setDragEnabled(true);
    setDragDropMode(QAbstractItemView::DragOnly);
    header()->setStretchLastSection(true);
    header()->setMinimumSectionSize(48);
    m_refresh.setSingleShot(true);
    m_refresh.setInterval(0);
    connect(&m_refresh, &QTimer::timeout, this, [this] { bringUpToDate(); });
    connect(this, &QTreeView::doubleClicked, this, [this](const QModelIndex& index) { open(index); });
    connect(this, &QTreeView::expanded, this, [this] { fetchVisible(); });
    connect(verticalScrollBar(), &QScrollBar::valueChanged, this, [this] { fetchVisible(); });
}

ModelTreeModel& ModelTree::tree() const
{
    return static_cast<ModelTreeModel&>(*model());
}

void ModelTree::setDocument(CDBDoc* document)
{
    m_refresh.stop();
    m_document = document;
    tree().setDocument(document);
    expandFirst();
}

void ModelTree::showNotice(long long hint)
{
    if (Hint::isData(hint) || hint == Hint::units)
        m_refresh.start();
}

void ModelTree::bringUpToDate()
{
    m_refresh.stop();
    tree().refresh();
}

/// What users come for is open at first.
void ModelTree::expandFirst()
{
    for (int row = 0; row < model()->rowCount(); ++row) {
        const QModelIndex index = model()->index(row, 0);
        const std::optional<Table> table = tree().subjectAt(index)->table;
        if (!table || table == Table::STLD)
            expand(index);
    }
}

/// Asks for more records where the last one that has come is in sight.
void ModelTree::fetchVisible()
{
    QModelIndex index = indexAt(QPoint(0, 0));
    while (index.isValid() && visualRect(index).top() < viewport()->height()) {
        const QModelIndex list = index.parent();
        if (index.row() == model()->rowCount(list) - 1 && model()->canFetchMore(list))
            model()->fetchMore(list);
        index = indexBelow(index);
    }
}

void ModelTree::resizeEvent(QResizeEvent* event)
{
    QTreeView::resizeEvent(event);
    header()->resizeSection(0, viewport()->width() * 52 / 100);
    fetchVisible();
}

// Opening

void ModelTree::keyPressEvent(QKeyEvent* event)
{
    if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter)
        open(currentIndex());
    else
        QTreeView::keyPressEvent(event);
}

void ModelTree::contextMenuEvent(QContextMenuEvent* event)
{
    const QModelIndex index = indexAt(event->pos());
    const Subject* subject = tree().subjectAt(index);
    QMenu menu(this);
    if (subject != nullptr && subject->opening.isThere()) {
        QString name = QString::fromLatin1(subject->text);
        if (const std::string_view title = subject->opening.title(); !title.empty())
            name = QString::fromLatin1(title.data(), static_cast<qsizetype>(title.size()));
        QAction* action = menu.addAction(QStringLiteral("&Open %1...").arg(name.remove(QStringLiteral("..."))));
        connect(action, &QAction::triggered, this, [this, index = QPersistentModelIndex(index)] { open(index); });
        menu.setDefaultAction(action);
        menu.addSeparator();
    }
    connect(menu.addAction(QStringLiteral("&Expand All")), &QAction::triggered, this, [this] { expandRecursively({}, 1); });
    connect(menu.addAction(QStringLiteral("&Collapse All")), &QAction::triggered, this, [this] { collapseAll(); });
    menu.exec(event->globalPos());
}

void ModelTree::open(const QModelIndex& index)
{
    const Subject* subject = tree().subjectAt(index);
    if (subject == nullptr)
        return;
    if (subject->opening.isThere())
        // A dialog that waits for its end must not run inside the click.
        QTimer::singleShot(0, this, [this, opening = subject->opening] { opening.run(m_hand); });
    else if (subject->table == Table::GRUP && tree().keyAt(index) != 0)
        selectGroup(tree().keyAt(index));
    else
        setExpanded(index.siblingAtColumn(0), !isExpanded(index.siblingAtColumn(0)));
}

void ModelTree::selectGroup(Key key)
{
    CDataGrup groups;
    if (m_document == nullptr || groups.Get(key) == 0)
        return;
    T_SELECTION selection;
    selection.points = groups.currentRecord.points;
    selection.lines = groups.currentRecord.lines;
    selection.areas = groups.currentRecord.areas;
    m_hand.select(*m_document, selection);
}

}  // namespace zel::desktop
