#pragma once

#include <QTableView>

namespace zel::desktop {

class GridView;

/// A window on the cells of a grid. It fills the rows that it is about to paint, and hands all input on; the selection is the controller's.
class GridPane : public QTableView {
public:
    GridPane(GridView& view, QWidget* parent);

    /// The view is gone: shows what it has, and takes no input any more.
    virtual void letGo() { m_view = nullptr; }
    /// Null once it is gone.
    [[nodiscard]] GridView* view() const { return m_view; }

protected:
    bool event(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void inputMethodEvent(QInputMethodEvent* event) override;
    void contextMenuEvent(QContextMenuEvent* event) override;
    void dragEnterEvent(QDragEnterEvent* event) override;
    void dragMoveEvent(QDragMoveEvent* event) override;
    void dragLeaveEvent(QDragLeaveEvent* event) override;
    void dropEvent(QDropEvent* event) override;

private:
    void paintMarks();

    GridView* m_view;
};

}  // namespace zel::desktop
