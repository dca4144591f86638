#pragma once

#include "desktop/views/model_subjects.h"

#include <QAbstractItemModel>

#include <functional>
#include <memory>
#include <vector>

namespace zel::desktop {

/// The model's tables by subject, two columns: name, and type or count. It follows the tables row by row, so that a view keeps what is open and
/// selected; the records of a large table come in portions as the view asks for them.
///
/// A subject whose table is empty is listed as long as it has a dialog to fill it.
class ModelTreeModel final : public QAbstractItemModel {
public:
    explicit ModelTreeModel(QObject* parent);
    ~ModelTreeModel() override;

    /// Shows another model; null shows none.
    void setDocument(CDBDoc* document);
    /// Takes over what has changed in the tables.
    void refresh();

    /// The subject that a row stands for, or that its record belongs to.
    [[nodiscard]] const Subject* subjectAt(const QModelIndex& index) const;
    /// The record of a row; 0 for a row of a subject.
    [[nodiscard]] Key keyAt(const QModelIndex& index) const;

    /// What a load case dragged out of the tree is called, beside plain text.
    static QString loadCaseMimeType() { return QStringLiteral("application/x-zel-load-cases"); }

    [[nodiscard]] QModelIndex index(int row, int column, const QModelIndex& parent) const override;
    [[nodiscard]] QModelIndex parent(const QModelIndex& child) const override;
    [[nodiscard]] int rowCount(const QModelIndex& parent) const override;
    [[nodiscard]] int columnCount(const QModelIndex& /*parent*/) const override { return 2; }
    [[nodiscard]] bool hasChildren(const QModelIndex& parent) const override;
    [[nodiscard]] bool canFetchMore(const QModelIndex& parent) const override;
    void fetchMore(const QModelIndex& parent) override;
    [[nodiscard]] QVariant data(const QModelIndex& index, int role) const override;
    [[nodiscard]] Qt::ItemFlags flags(const QModelIndex& index) const override;
    [[nodiscard]] QStringList mimeTypes() const override;
    [[nodiscard]] QMimeData* mimeData(const QModelIndexList& indexes) const override;

private:
    struct Node;

    void build();
    [[nodiscard]] Node* nodeAt(const QModelIndex& index) const;
    [[nodiscard]] QModelIndex indexOf(const Node& node) const;
    [[nodiscard]] QString text(const QModelIndex& index) const;
    void refresh(Node& node);
    void refreshSubjects(Node& node);
    void refreshRecords(Node& node);
    [[nodiscard]] bool isWanted(const Node& node) const;
    /// Begin and end a change of the rows of a node; in silence for one that is not shown.
    void bringIn(Node& node, std::size_t first, std::size_t count, const std::function<void()>& insert);
    void takeOut(Node& node, std::size_t first, std::size_t count, const std::function<void()>& remove);
    void removeMissing(Node& node, const std::vector<Key>& now);
    void reorder(Node& node, const std::vector<Key>& now);
    void insertNew(Node& node, const std::vector<Key>& now);

    CDBDoc* m_document = nullptr;
    std::unique_ptr<Node> m_root;
};

}  // namespace zel::desktop
