#include "desktop/views/model_tree_model.h"

#include "contract/document.h"
#include "contract/load_types.h"
#include "contract/table.h"

#include <QApplication>
#include <QFont>
#include <QMimeData>
#include <QPalette>

#include <algorithm>
#include <unordered_map>
#include <unordered_set>

namespace zel::desktop {

namespace {

constexpr std::size_t portion = 200;  // records that come at once

/// How many records of a table are to be rows: a first portion, all that are rows already, and if all were, also what is new.
std::size_t wantedRows(const std::vector<Key>& rows, const std::vector<Key>& now, bool more)
{
    const std::unordered_set<Key> there(rows.begin(), rows.end());
    std::size_t wanted = now.size();
    while (wanted > 0 && !there.contains(now[wanted - 1]))
        --wanted;
    const std::size_t room = more ? portion : rows.size() + portion;
    return std::max(wanted, std::min(now.size(), room));
}

}  // namespace

/// A subject in the tree. The rows under it are its shown subjects, or the first records of its table.
struct ModelTreeModel::Node {
    const Subject* subject = nullptr;  ///< null at the root
    Node* parent = nullptr;
    std::vector<std::unique_ptr<Node>> subjects;
    std::vector<Node*> shown;  ///< of `subjects`, in order
    std::vector<Key> rows;     ///< records that have come
    bool more = false;         ///< the table has further ones behind them
    QString details;

    [[nodiscard]] bool lists() const { return subject != nullptr && subject->shape == SubjectShape::records; }
};

ModelTreeModel::ModelTreeModel(QObject* parent) : QAbstractItemModel(parent)
{
    build();
}

ModelTreeModel::~ModelTreeModel() = default;

void ModelTreeModel::build()
{
    m_root = std::make_unique<Node>();
    std::vector<Node*> path{m_root.get()};
    for (const Subject& subject : modelSubjects()) {
        path.resize(static_cast<std::size_t>(subject.level) + 1);
        auto node = std::make_unique<Node>();
        node->subject = &subject;
        node->parent = path.back();
        path.push_back(node.get());
        node->parent->subjects.push_back(std::move(node));
    }
}

void ModelTreeModel::setDocument(CDBDoc* document)
{
    beginResetModel();
    m_document = nullptr;
    build();
    endResetModel();
    m_document = document;
    refresh();
}

// Rows

ModelTreeModel::Node* ModelTreeModel::nodeAt(const QModelIndex& index) const
{
    if (!index.isValid())
        return m_root.get();
    const auto* parent = static_cast<const Node*>(index.internalPointer());
    const auto row = static_cast<std::size_t>(index.row());
    return row < parent->shown.size() ? parent->shown[row] : nullptr;
}

QModelIndex ModelTreeModel::indexOf(const Node& node) const
{
    if (node.parent == nullptr)
        return {};
    const auto& shown = node.parent->shown;
    const auto place = std::find(shown.begin(), shown.end(), &node);
    return place != shown.end() ? createIndex(static_cast<int>(place - shown.begin()), 0, node.parent) : QModelIndex();
}

QModelIndex ModelTreeModel::index(int row, int column, const QModelIndex& parent) const
{
    return hasIndex(row, column, parent) ? createIndex(row, column, nodeAt(parent)) : QModelIndex();
}

QModelIndex ModelTreeModel::parent(const QModelIndex& child) const
{
    return child.isValid() ? indexOf(*static_cast<const Node*>(child.internalPointer())) : QModelIndex();
}

int ModelTreeModel::rowCount(const QModelIndex& parent) const
{
    const Node* node = parent.column() > 0 ? nullptr : nodeAt(parent);
    if (node == nullptr)
        return 0;
    return static_cast<int>(node->lists() ? node->rows.size() : node->shown.size());
}

bool ModelTreeModel::hasChildren(const QModelIndex& parent) const
{
    const Node* node = parent.column() > 0 ? nullptr : nodeAt(parent);
    return node != nullptr && (node->more || !node->rows.empty() || !node->shown.empty());
}

bool ModelTreeModel::canFetchMore(const QModelIndex& parent) const
{
    const Node* node = nodeAt(parent);
    return node != nullptr && node->more;
}

void ModelTreeModel::fetchMore(const QModelIndex& parent)
{
    Node* node = nodeAt(parent);
    if (node == nullptr || !node->more || m_document == nullptr)
        return;
    refreshRecords(*node);  // what has come is in step with the table from here on
    const std::vector<Key> keys = m_document->table(*node->subject->table).keys(node->subject->kind);
    const std::size_t first = node->rows.size();
    const std::size_t last = std::min(keys.size(), first + portion);
    if (first < last) {
        bringIn(*node, first, last - first, [&] { node->rows.assign(keys.begin(), keys.begin() + static_cast<std::ptrdiff_t>(last)); });
    }
    node->more = last < keys.size();
}

const Subject* ModelTreeModel::subjectAt(const QModelIndex& index) const
{
    if (!index.isValid())
        return nullptr;
    const Node* node = nodeAt(index);
    return node != nullptr ? node->subject : static_cast<const Node*>(index.internalPointer())->subject;
}

Key ModelTreeModel::keyAt(const QModelIndex& index) const
{
    if (!index.isValid() || nodeAt(index) != nullptr)
        return 0;
    const auto* parent = static_cast<const Node*>(index.internalPointer());
    const auto row = static_cast<std::size_t>(index.row());
    return row < parent->rows.size() ? parent->rows[row] : 0;
}

// What rows show

QString ModelTreeModel::text(const QModelIndex& index) const
{
    const Subject* subject = subjectAt(index);
    if (subject == nullptr || m_document == nullptr)
        return {};
    if (const Key key = keyAt(index); key != 0)
        return index.column() == 0 ? recordName(*m_document, *subject, key) : recordDetails(*m_document, *subject, key);
    return index.column() == 0 ? QString::fromLatin1(subject->text) : nodeAt(index)->details;
}

QVariant ModelTreeModel::data(const QModelIndex& index, int role) const
{
    switch (role) {
    case Qt::DisplayRole:
    case Qt::ToolTipRole:
        return text(index);
    case Qt::FontRole: {
        const Node* node = nodeAt(index);
        if (index.column() != 0 || node == nullptr || node->parent != m_root.get())
            return {};
        QFont font = QApplication::font("QTreeView");
        font.setWeight(QFont::DemiBold);
        return font;
    }
    case Qt::AccessibleTextRole: {
        const QString details = text(index.siblingAtColumn(1));
        return text(index.siblingAtColumn(0)) + (details.isEmpty() ? QString() : QStringLiteral(", ") + details);
    }
    case Qt::ForegroundRole: {
        const bool isEmptySubject = nodeAt(index) != nullptr && !hasChildren(index.siblingAtColumn(0)) && text(index.siblingAtColumn(1)).isEmpty();
        return index.column() == 1 || isEmptySubject ? QVariant(QApplication::palette().brush(QPalette::PlaceholderText)) : QVariant();
    }
    default:
        return {};
    }
}

Qt::ItemFlags ModelTreeModel::flags(const QModelIndex& index) const
{
    if (!index.isValid())
        return Qt::NoItemFlags;
    const bool isLoadCase = keyAt(index) != 0 && subjectAt(index)->table == Table::STLD;
    return Qt::ItemIsEnabled | Qt::ItemIsSelectable | (isLoadCase ? Qt::ItemIsDragEnabled : Qt::NoItemFlags) |
        (hasChildren(index) ? Qt::NoItemFlags : Qt::ItemNeverHasChildren);
}

QStringList ModelTreeModel::mimeTypes() const
{
    return {loadCaseMimeType(), QStringLiteral("text/plain")};
}

/// One line a load case, in the order of the tree: type 1, key, name with the mark of static cases, factor 1.
QMimeData* ModelTreeModel::mimeData(const QModelIndexList& indexes) const
{
    std::vector<QModelIndex> cases;
    for (const QModelIndex& index : indexes) {
        if (index.column() == 0 && flags(index).testFlag(Qt::ItemIsDragEnabled))
            cases.push_back(index);
    }
    if (cases.empty())
        return nullptr;
    std::sort(cases.begin(), cases.end(), [](const QModelIndex& a, const QModelIndex& b) { return a.row() < b.row(); });
    QString lines;
    for (const QModelIndex& index : cases)
        lines += QStringLiteral("1\t%1\t%2%3\t1\n")
                     .arg(keyAt(index))
                     .arg(text(index), QString::fromUtf8(zel::staticCaseMark.data(), static_cast<qsizetype>(zel::staticCaseMark.size())));
    auto* data = new QMimeData;
    data->setText(lines);
    data->setData(loadCaseMimeType(), lines.toUtf8());
    return data;
}

// Following the tables

void ModelTreeModel::refresh()
{
    if (m_document != nullptr)
        refresh(*m_root);
}

void ModelTreeModel::refresh(Node& node)
{
    if (node.lists())
        refreshRecords(node);
    refreshSubjects(node);
    if (node.subject == nullptr)
        return;
    const QString details = subjectDetails(*m_document, *node.subject);
    if (details == node.details)
        return;
    node.details = details;
    if (const QModelIndex index = indexOf(node); index.isValid())
        Q_EMIT dataChanged(index, index.siblingAtColumn(1));
}

bool ModelTreeModel::isWanted(const Node& node) const
{
    return node.subject->opening.isThere() || !node.details.isEmpty() || !node.shown.empty();
}

void ModelTreeModel::refreshSubjects(Node& node)
{
    std::size_t row = 0;
    for (const std::unique_ptr<Node>& inner : node.subjects) {
        const auto place = node.shown.begin() + static_cast<std::ptrdiff_t>(row);
        const bool isShown = place != node.shown.end() && *place == inner.get();
        refresh(*inner);
        const bool wanted = isWanted(*inner);
        if (wanted && !isShown)
            bringIn(node, row, 1, [&] { node.shown.insert(place, inner.get()); });
        else if (!wanted && isShown)
            takeOut(node, row, 1, [&] { node.shown.erase(place); });
        if (wanted)
            ++row;
    }
}

void ModelTreeModel::bringIn(Node& node, std::size_t first, std::size_t count, const std::function<void()>& insert)
{
    const QModelIndex index = indexOf(node);
    const bool told = index.isValid() || node.parent == nullptr;
    if (told)
        beginInsertRows(index, static_cast<int>(first), static_cast<int>(first + count) - 1);
    insert();
    if (told)
        endInsertRows();
}

void ModelTreeModel::takeOut(Node& node, std::size_t first, std::size_t count, const std::function<void()>& remove)
{
    const QModelIndex index = indexOf(node);
    const bool told = index.isValid() || node.parent == nullptr;
    if (told)
        beginRemoveRows(index, static_cast<int>(first), static_cast<int>(first + count) - 1);
    remove();
    if (told)
        endRemoveRows();
}

void ModelTreeModel::refreshRecords(Node& node)
{
    std::vector<Key> now = m_document->table(*node.subject->table).keys(node.subject->kind);
    const std::size_t all = now.size();
    removeMissing(node, now);
    now.resize(wantedRows(node.rows, now, node.more));
    reorder(node, now);
    insertNew(node, now);
    node.more = node.rows.size() < all;
    if (const QModelIndex parent = indexOf(node); parent.isValid() && !node.rows.empty())
        Q_EMIT dataChanged(index(0, 0, parent), index(static_cast<int>(node.rows.size()) - 1, 1, parent));
}

void ModelTreeModel::removeMissing(Node& node, const std::vector<Key>& now)
{
    const std::unordered_set<Key> there(now.begin(), now.end());
    std::size_t end = node.rows.size();
    while (end > 0) {
        if (there.contains(node.rows[end - 1])) {
            --end;
            continue;
        }
        std::size_t begin = end - 1;
        while (begin > 0 && !there.contains(node.rows[begin - 1]))
            --begin;
        const auto first = node.rows.begin() + static_cast<std::ptrdiff_t>(begin);
        takeOut(node, begin, end - begin, [&] { node.rows.erase(first, first + static_cast<std::ptrdiff_t>(end - begin)); });
        end = begin;
    }
}

/// Puts the rows into the order that their records have now; selections go with the records.
void ModelTreeModel::reorder(Node& node, const std::vector<Key>& now)
{
    const std::unordered_set<Key> shown(node.rows.begin(), node.rows.end());
    std::vector<Key> ordered;
    ordered.reserve(node.rows.size());
    std::copy_if(now.begin(), now.end(), std::back_inserter(ordered), [&](Key key) { return shown.contains(key); });
    if (ordered == node.rows)
        return;
    Q_EMIT layoutAboutToBeChanged({QPersistentModelIndex(indexOf(node))});
    std::unordered_map<Key, int> places;
    for (std::size_t i = 0; i < ordered.size(); ++i)
        places[ordered[i]] = static_cast<int>(i);
    for (const QModelIndex& index : persistentIndexList()) {
        if (index.internalPointer() == &node)
            changePersistentIndex(index, createIndex(places.at(node.rows[static_cast<std::size_t>(index.row())]), index.column(), &node));
    }
    node.rows = std::move(ordered);
    Q_EMIT layoutChanged({QPersistentModelIndex(indexOf(node))});
}

/// Rows and `now` are in the same order; what is only in `now` comes in, in runs.
void ModelTreeModel::insertNew(Node& node, const std::vector<Key>& now)
{
    for (std::size_t row = 0; row < now.size();) {
        if (row < node.rows.size() && node.rows[row] == now[row]) {
            ++row;
            continue;
        }
        std::size_t end = row + 1;
        while (end < now.size() && (row >= node.rows.size() || now[end] != node.rows[row]))
            ++end;
        bringIn(node, row, end - row, [&] {
            node.rows.insert(node.rows.begin() + static_cast<std::ptrdiff_t>(row), now.begin() + static_cast<std::ptrdiff_t>(row),
                             now.begin() + static_cast<std::ptrdiff_t>(end));
        });
        row = end;
    }
}

}  // namespace zel::desktop
