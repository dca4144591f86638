#pragma once

#include "contract/table_store.h"

#include <QTimer>
#include <QTreeView>

class CDBDoc;

namespace zel {

class UserHand;

}  // namespace zel

namespace zel::desktop {

class ModelTreeModel;

/// The model by subject: load cases, combinations, sets, properties, supports, counts of objects. A double click, or Enter, opens the dialog of a
/// subject, and selects the objects of a group; load cases can be dragged into the combination editor.
class ModelTree final : public QTreeView {
public:
    ModelTree(UserHand& hand, QWidget* parent);

    /// Shows another model; null shows none.
    void setDocument(CDBDoc* document);
    /// Follows a notice of the model.
    void showNotice(long long hint);
    /// Takes over at once what has changed; otherwise that happens when the current event is over.
    void bringUpToDate();

protected:
    void keyPressEvent(QKeyEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void contextMenuEvent(QContextMenuEvent* event) override;

private:
    void open(const QModelIndex& index);
    void selectGroup(Key key);
    void expandFirst();
    void fetchVisible();
    [[nodiscard]] ModelTreeModel& tree() const;

    UserHand& m_hand;
    CDBDoc* m_document = nullptr;
    QTimer m_refresh;
};

}  // namespace zel::desktop
