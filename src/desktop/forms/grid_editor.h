#pragma once

#include "contract/forms/grid_places.h"

#include <QObject>
#include <QPersistentModelIndex>
#include <QPointer>
#include <QWidget>

class QComboBox;
class QLineEdit;

namespace zel::desktop {

class GridView;

/// The field in the open cell of a grid. It is there while the controller has a cell open; each keystroke goes to the controller.
class GridEditor final : public QObject {
public:
    explicit GridEditor(GridView& view) : m_view(view) {}
    ~GridEditor() override { close(); }

    /// Opens, fills, moves or closes the field as the controller says.
    void follow();
    void close();
    /// Puts the field where its cell is.
    void place();
    /// Gives it the keyboard, if it is there.
    void takeFocus();
    /// Opens the list of a cell that offers one.
    void dropDown();
    [[nodiscard]] QWidget* field() const { return m_field; }

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    class List;

    void open(const QModelIndex& cell);
    [[nodiscard]] QLineEdit* line() const;
    void showText(const QString& text);
    bool key(class QKeyEvent& event);

    GridView& m_view;
    QPointer<QWidget> m_field;
    QPointer<List> m_list;  ///< the field, where it is a list
    QModelIndex m_cell;
    ColumnIndex m_columnIndex = -1;
};

}  // namespace zel::desktop
