#pragma once

#include "contract/forms/grid_places.h"
#include "contract/text.h"
#include "desktop/forms/grid_row_gesture.h"

#include <QPersistentModelIndex>
#include <QPointer>
#include <QString>

#include <vector>

class QContextMenuEvent;
class QDropEvent;
class QInputMethodEvent;
class QKeyEvent;
class QMenu;
class QMouseEvent;

namespace zel {
enum class UserKey;
}

namespace zel::desktop {

class GridPane;
class GridView;

/// What mouse and keyboard mean in a grid, as steps of the user. Each step may close the dialog, so it is the last thing that a function does.
class GridInput {
public:
    explicit GridInput(GridView& view);
    ~GridInput();
    GridInput(const GridInput&) = delete;
    GridInput& operator=(const GridInput&) = delete;

    // Events.

    void press(GridPane& pane, QMouseEvent& event);
    void pressRowHeader(QMouseEvent& event);
    void move(QMouseEvent& event);
    void release(GridPane& pane, QMouseEvent& event);
    void doubleClick(GridPane& pane, QMouseEvent& event);
    /// False for a key that the grid has no use for.
    bool key(QKeyEvent& event);
    void compose(QInputMethodEvent& event);
    void menu(GridPane& pane, QContextMenuEvent& event);
    void dragOver(GridPane& pane, QDropEvent& event);
    void dragLeft();
    void drop(GridPane& pane, QDropEvent& event);

    // Steps.

    void select(const std::vector<int>& rows);
    void leaveCell();
    /// The keyboard has come to the open cell.
    void focusCell();
    void copy();
    void paste();
    void pasteOverOpenCell();
    void removeRows();
    /// Moves the selected rows, else the current one, one place up (-1) or down (1).
    void moveRows(int step);
    void moveColumn(int column, int gap);
    /// Lets go of what the mouse holds.
    void reset();

    [[nodiscard]] QModelIndex pressedButton() const { return m_button; }
    /// Whether a text of the clipboard fills more than one cell.
    [[nodiscard]] static bool isBlock(const QString& text);

private:
    bool command(const QKeyEvent& event);
    bool moveKey(const QKeyEvent& event);
    bool typeKey(const QKeyEvent& event);
    void pressKey(UserKey key);
    void tab();
    void backTab();
    void escape();
    /// Makes a cell current.
    void click(Row row, ColumnPlace column);
    void step(int rows, int columns);
    void goTo(Row row, ColumnPlace column, int rowStep, int columnStep);
    /// Opens the current cell. False if it is not open afterwards.
    bool open();
    void clear();
    void toggle(const QModelIndex& cell);
    void pasteText(const CString& text);
    void dropDown();
    [[nodiscard]] bool canStandAt(Row row, ColumnPlace column) const;
    [[nodiscard]] bool isEditable(const QModelIndex& cell) const;
    [[nodiscard]] QModelIndex current() const;
    [[nodiscard]] std::vector<int> chosenRows() const;
    [[nodiscard]] CString identityOf(Row row) const;

    GridView& m_view;
    GridRowGesture m_rows;
    QPersistentModelIndex m_button;  ///< cell whose button is held down
    bool m_wholeRow = false;         ///< the row for a new entry was taken as a whole
    QPointer<QMenu> m_menu;
};

}  // namespace zel::desktop
