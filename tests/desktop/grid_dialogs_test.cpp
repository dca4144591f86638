#include "desktop/grid_screen.h"

#include "command/command.h"
#include "contract/tables/load_combination_table.h"
#include "contract/tables/static_load_case_table.h"

#include <QDropEvent>
#include <QLineEdit>
#include <QMimeData>
#include <QPushButton>

#include <optional>

namespace desktop_test {

using zel::desktop::FormWindow;

namespace {

/// The combination at a place of the sequence.
T_LCOM_D combination(std::size_t place)
{
    CArray<zel::Key> keys;
    CDataLcom().GetKeyList(1, keys);
    CDataLcom data;
    data.Get(1, keys.at(place));
    return data.currentRecord;
}

T_LCOM_D combinationOf(const char* name, zel::Key key, double factor)
{
    T_LCOM_D record;
    record.name = name;
    record.items.push_back({1, key, factor});
    return record;
}

}  // namespace

class GridsOfDialogs : public DesktopTest {
protected:
    GridsOfDialogs() { show(example("first")); }

    FormWindow& openCombinations()
    {
        std::vector<zel::Key> keys;
        std::vector<T_STLD_D> records;
        CDataStld().GetList(keys, records);
        first = keys.at(0);
        second = keys.at(1);
        firstName = QString::fromStdString(records.at(0).name);
        secondName = QString::fromStdString(records.at(1).name);
        CDataLcom().Add(1, {combinationOf("A", first, 1.2), combinationOf("B", second, 1.6)});
        FormWindow& form = open(D_CMD_RESULT_LOADCOMB, "CCMLoadCombDlg");
        form.resize(900, 500);
        settle();
        return form;
    }

    zel::Key first = 0;
    zel::Key second = 0;
    QString firstName;
    QString secondName;
};

TEST_F(GridsOfDialogs, ARowOfLoadCasesThatIsClickedIsShownInTheFields)
{
    FormWindow& form = open(D_CMD_MODEL_LOAD_LOADCASE, "CCMLoadCaseDlg");
    const GridOnScreen grid(form, control(form, "grid"));
    grid.click(1, 1);  // the number, which is frozen
    EXPECT_EQ(widget<QLineEdit>(form, "Name").text(), grid.shown(1, 2));
    EXPECT_EQ(grid.selected(), std::vector<int>({1}));
    grid.type("x");  // for display only
    EXPECT_EQ(grid.field(), nullptr);
}

TEST_F(GridsOfDialogs, LoadCasesAreMovedByTheKeys)
{
    FormWindow& form = open(D_CMD_MODEL_LOAD_LOADCASE, "CCMLoadCaseDlg");
    const GridOnScreen grid(form, control(form, "grid"));
    const QString name = grid.shown(0, 2);
    grid.click(0, 1);
    grid.key(Qt::Key_Down, Qt::ControlModifier);
    EXPECT_EQ(grid.shown(1, 2), name);
    EXPECT_EQ(grid.selected(), std::vector<int>({1}));
}

TEST_F(GridsOfDialogs, AFactorTypedIntoTheSpreadsheetIsWrittenWhenItsRowIsLeft)
{
    FormWindow& form = openCombinations();
    click(form, "toggle");
    const GridOnScreen grid(form, control(form, "grid"));
    int column = 0;
    while (grid.view.model().headerData(column, Qt::Horizontal, Qt::DisplayRole).toString() != secondName + "(ST)")
        ++column;
    grid.click(0, column);
    grid.type("0.5*3");
    EXPECT_EQ(combination(0).items.size(), 1U);
    grid.key(Qt::Key_Return);
    ASSERT_EQ(combination(0).items.size(), 2U);
    EXPECT_EQ(combination(0).items[1].key, second);
    EXPECT_DOUBLE_EQ(combination(0).items[1].factor, 1.5);
}

TEST_F(GridsOfDialogs, AnItemIsAppendedByChoosingItsLoadCase)
{
    FormWindow& form = openCombinations();
    const GridOnScreen main(form, control(form, "mainGrid"));
    const GridOnScreen items(form, control(form, "subGrid"));
    main.click(0, 2);
    ASSERT_EQ(items.view.model().rowCount(), 2);  // one item, and the row for a new one
    items.click(1, 0);
    int steps = 0;
    items.type(secondName.left(1).toUtf8().constData());
    while (items.fieldText() != secondName + "(ST)" && items.field() != nullptr && steps++ < 10)
        items.key(Qt::Key_Down);
    items.key(Qt::Key_Tab);
    items.type("0.7");
    items.key(Qt::Key_Return);
    ASSERT_EQ(combination(0).items.size(), 2U);
    EXPECT_EQ(combination(0).items[1].key, second);
    EXPECT_DOUBLE_EQ(combination(0).items[1].factor, 0.7);
}

TEST_F(GridsOfDialogs, LoadCasesDroppedOnTheItemsAreAdded)
{
    FormWindow& form = openCombinations();
    const GridOnScreen main(form, control(form, "mainGrid"));
    const GridOnScreen items(form, control(form, "subGrid"));
    main.click(0, 2);
    QMimeData data;
    data.setData(QStringLiteral("application/x-zel-load-cases"), ("1\t\t" + secondName + "(ST)\t0.9\n").toUtf8());
    const QPoint below(5, items.pane(0).height() - 5);
    QDragEnterEvent enter(below, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(&items.pane(0), &enter);
    QDropEvent drop(below, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(&items.pane(0), &drop);
    settle();
    ASSERT_EQ(combination(0).items.size(), 2U);
    EXPECT_DOUBLE_EQ(combination(0).items[1].factor, 0.9);
}

TEST_F(GridsOfDialogs, CombinationsAreDraggedByTheirNumbers)
{
    FormWindow& form = openCombinations();
    const GridOnScreen grid(form, control(form, "mainGrid"));
    grid.click(0, 0);
    ASSERT_EQ(grid.selected(), std::vector<int>({0}));
    grid.drag(grid.pane(0), grid.centre(0, 0), grid.centre(1, 0) + QPoint(0, 8));
    EXPECT_EQ(combination(0).name, "B");
    EXPECT_EQ(combination(1).name, "A");
}

}  // namespace desktop_test
