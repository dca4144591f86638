#pragma once

#include "contract/view_ctrl.h"

#include <QObject>

class QAction;
class QMenu;

namespace zel::desktop {

class MainWindow;

/// The Edit menu: undo and redo with the name of the change, and the selection of the model views.
///
/// Undo and redo work whichever form has the focus. While a text that is being typed has steps of its own to take back, their keys act on that.
class EditActions final : public QObject {
public:
    EditActions(MainWindow& window, QMenu& menu);

    /// Follows another document, or a notice of it.
    void showDocument();
    void showNotice(long long hint);

    void undo();
    void redo();

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void selectAll();
    void showNames();

    MainWindow& m_window;
    QAction* m_undo;
    QAction* m_redo;
    QAction* m_previous;
    T_SELECTION m_now;
    T_SELECTION m_before;
};

}  // namespace zel::desktop
