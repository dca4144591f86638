#pragma once

#include "desktop/desktop_fixture.h"
#include "desktop/forms/grid_editor.h"
#include "desktop/forms/grid_table.h"
#include "desktop/forms/grid_view.h"
#include "desktop/forms/text.h"

#include <QApplication>
#include <QHeaderView>
#include <QMouseEvent>
#include <QTest>

namespace desktop_test {

/// What a person does to one grid of a form. Rows and columns are those on screen, from 0.
class GridOnScreen {
public:
    GridOnScreen(zel::desktop::FormWindow& form, const zel::Control& control) : view(dynamic_cast<zel::desktop::GridView&>(*form.viewOf(control))) {}

    zel::desktop::GridView& view;

    [[nodiscard]] zel::desktop::GridTable& table() const { return view.table(); }
    [[nodiscard]] QWidget* field() const { return view.editor().field(); }
    [[nodiscard]] QString fieldText() const
    {
        return field() != nullptr ? field()->property(field()->inherits("QComboBox") ? "currentText" : "text").toString() : QString();
    }
    [[nodiscard]] QModelIndex cell(int row, int column) const { return view.model().index(row, column); }
    [[nodiscard]] QString shown(int row, int column) const { return cell(row, column).data().toString(); }
    [[nodiscard]] QWidget& pane(int column) const { return *table().paneOf(column).viewport(); }
    [[nodiscard]] QPoint centre(int row, int column) const { return table().cellRect(cell(row, column)).center(); }

    void click(int row, int column, Qt::KeyboardModifiers modifiers = {}) const
    {
        QTest::mouseClick(&pane(column), Qt::LeftButton, modifiers, centre(row, column));
        settle();
    }
    void doubleClick(int row, int column) const
    {
        QTest::mouseClick(&pane(column), Qt::LeftButton, {}, centre(row, column));
        QTest::mouseDClick(&pane(column), Qt::LeftButton, {}, centre(row, column));
        settle();
    }
    /// A key where the keyboard is: in the open cell, else in the grid.
    void key(Qt::Key which, Qt::KeyboardModifiers modifiers = {}) const
    {
        QTest::keyClick(field() != nullptr ? field() : &table(), which, modifiers);
        settle();
    }
    void type(const char* text) const
    {
        for (; *text != '\0'; ++text)
            QTest::keyClick(field() != nullptr ? field() : static_cast<QWidget*>(&table()), *text);
        settle();
    }
    [[nodiscard]] QPoint rowHeader(int row) const { return {10, table().rowViewportPosition(row) + table().rowHeight(row) / 2}; }
    void clickRow(int row, Qt::KeyboardModifiers modifiers = {}) const
    {
        QTest::mouseClick(table().verticalHeader()->viewport(), Qt::LeftButton, modifiers, rowHeader(row));
        settle();
    }
    /// Presses at one place of a widget and lets go at another.
    static void drag(QWidget& widget, QPoint from, QPoint to)
    {
        QTest::mousePress(&widget, Qt::LeftButton, {}, from);
        for (const QPoint at : {(from + to) / 2, to}) {
            QMouseEvent move(QEvent::MouseMove, at, widget.mapToGlobal(at), Qt::NoButton, Qt::LeftButton, Qt::NoModifier);
            QApplication::sendEvent(&widget, &move);
        }
        QTest::mouseRelease(&widget, Qt::LeftButton, {}, to);
        settle();
    }
    [[nodiscard]] std::vector<int> selected() const
    {
        std::vector<int> rows;
        for (const QModelIndex& row : table().selectionModel()->selectedRows())
            rows.push_back(row.row());
        std::sort(rows.begin(), rows.end());
        return rows;
    }
    /// The text of the warning that is shown; empty if none is.
    [[nodiscard]] QString warning() const
    {
        const auto* bubble = table().window()->findChild<QWidget*>(QStringLiteral("gridWarning"));
        return bubble != nullptr && bubble->isVisible() ? bubble->accessibleName() : QString();
    }
};

}  // namespace desktop_test
