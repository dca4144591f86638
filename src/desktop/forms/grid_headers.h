#pragma once

#include "contract/forms/grid_browser.h"

#include <QHeaderView>

namespace zel::desktop {

class GridPane;

/// Headers of the rows: a click selects a row, a selected one is dragged by its header. The row under edit bears a pencil.
class GridRowHeader final : public QHeaderView {
public:
    explicit GridRowHeader(GridPane& pane);

    /// Takes over whether and how wide it is shown; texts are never clipped.
    void follow(const CTBBrowserWnd& grid);

protected:
    void paintSection(QPainter* painter, const QRect& rect, int row) const override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void contextMenuEvent(QContextMenuEvent* event) override;

private:
    GridPane& m_pane;
};

/// Headers of the columns: dragged by its header a column moves, at its edge it gets wider. The order on screen is the controller's.
class GridColumnHeader final : public QHeaderView {
public:
    explicit GridColumnHeader(GridPane& pane);

protected:
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;

private:
    [[nodiscard]] bool isAtEdge(int x) const;

    GridPane& m_pane;
    int m_pressed = -1;  ///< column that is, or may get, dragged
    QPoint m_pressedAt;
    bool m_dragging = false;
};

}  // namespace zel::desktop
