#pragma once

#include <QPoint>
#include <QTimer>

#include <vector>

namespace zel::desktop {

class GridView;

/// The mouse on row headers and frozen columns: a click selects a row, Ctrl and Shift more of them, a sweep all that it passes; selected rows are
/// dragged to another place. Rows are those of the model, from 0.
class GridRowGesture {
public:
    explicit GridRowGesture(GridView& view);

    /// @param column  the frozen column that was clicked; -1 for the row header
    void press(int row, int column, Qt::KeyboardModifiers modifiers, QPoint at);
    void move(QPoint at);
    void release();
    void reset();
    [[nodiscard]] bool isDragging() const { return m_state == State::dragging; }

    /// Makes the selection reach from where it began to a row.
    void extendTo(int row);

private:
    enum class State { idle, onSelected, sweeping, dragging };

    void selectOne(int row, int column);
    void toggle(int row);
    void scrollOn();
    [[nodiscard]] int rowAt(int y) const;

    GridView& m_view;
    State m_state = State::idle;
    QPoint m_pressedAt;
    QPoint m_at;
    int m_pressedRow = -1;
    int m_pressedColumn = -1;
    int m_anchor = -1;
    int m_reached = -1;
    QTimer m_scroll;  ///< runs while the mouse is held above or below the cells
};

}  // namespace zel::desktop
