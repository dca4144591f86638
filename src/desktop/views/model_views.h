#pragma once

class CDBDoc;
class QMainWindow;
class QMenu;

namespace zel {

class UserHand;

}  // namespace zel

namespace zel::desktop {

class LinePane;
class ModelTree;
class PlanView;

/// The views of a main window: the plan in its middle, the model tree at its left, the panes of lines below. The window owns them.
class ModelViews {
public:
    ModelViews(QMainWindow& window, UserHand& hand);

    /// Follow another model, null for none, or a notice of the one that is open.
    void setDocument(CDBDoc* document);
    void showNotice(long long hint);

    /// Adds what the user can do with the views.
    void addActions(QMenu& menu);

    [[nodiscard]] PlanView& plan() const { return *m_plan; }
    [[nodiscard]] ModelTree& tree() const { return *m_tree; }
    [[nodiscard]] LinePane& output() const { return *m_output; }
    [[nodiscard]] LinePane& history() const { return *m_history; }

private:
    QMainWindow& m_window;
    PlanView* m_plan;
    ModelTree* m_tree;
    LinePane* m_output;
    LinePane* m_history;
};

}  // namespace zel::desktop
