#include "desktop/desktop_fixture.h"
#include "desktop/views/model_tree.h"
#include "desktop/views/model_tree_model.h"
#include "desktop/views/model_views.h"

#include "contract/tables/load_combination_table.h"
#include "contract/tables/static_load_case_table.h"
#include "contract/view_ctrl.h"
#include "desktop/forms/text.h"

#include <QMimeData>
#include <QScrollBar>
#include <QSignalSpy>

namespace desktop_test {

namespace {

class ModelTreeTest : public DesktopTest {
protected:
    ModelTreeTest() { show(example("tower")); }

    zel::desktop::ModelTree& tree() { return window.views().tree(); }
    zel::desktop::ModelTreeModel& model() { return static_cast<zel::desktop::ModelTreeModel&>(*tree().model()); }
    /// The row of a path of texts; invalid if there is none.
    QModelIndex row(const std::vector<QString>& path)
    {
        settle();
        QModelIndex found;
        for (const QString& text : path) {
            QModelIndex next;
            for (int i = 0; i < model().rowCount(found); ++i) {
                if (model().index(i, 0, found).data().toString() == text)
                    next = model().index(i, 0, found);
            }
            if (!next.isValid())
                return {};
            found = next;
        }
        return found;
    }
    static QString details(const QModelIndex& index) { return index.siblingAtColumn(1).data().toString(); }
    QStringList names(const QModelIndex& parent)
    {
        QStringList all;
        for (int i = 0; i < model().rowCount(parent); ++i)
            all.append(model().index(i, 0, parent).data().toString());
        return all;
    }
    static T_STLD_D loadCase(const CString& name)
    {
        T_STLD_D record;
        record.name = name;
        record.type = "L";
        return record;
    }

    const std::vector<QString> cases{QStringLiteral("Static Load Cases")};
};

}  // namespace

TEST_F(ModelTreeTest, ItListsTheLoadCasesWithTheirTypes)
{
    const QModelIndex list = row(cases);
    ASSERT_TRUE(list.isValid());
    EXPECT_EQ(details(list), "20");
    EXPECT_EQ(model().rowCount(list), 20);
    EXPECT_EQ(model().index(0, 0, list).data().toString(), "DL");
    EXPECT_EQ(details(model().index(0, 0, list)), "Dead Load (D)");
    EXPECT_TRUE(tree().isExpanded(list));
}

TEST_F(ModelTreeTest, ItCountsTheSets)
{
    EXPECT_EQ(details(row({"Load Case Sets", "Wind Directions"})), "2 sets");
    EXPECT_EQ(details(row({"Load Case Sets", "Orthogonal Effect"})), "1 pair");
}

TEST_F(ModelTreeTest, EmptyTablesWithoutADialogAreNotListed)
{
    EXPECT_FALSE(row({"Plan"}).isValid());
    EXPECT_TRUE(row({"Load Combinations", "Steel"}).isValid());
    show(example("mat"));
    EXPECT_EQ(details(row({"Plan", "Points"})), "41");
    EXPECT_EQ(names(row({"Plan", "Groups"})), (QStringList{"Columns", "Core walls", "Core piles"}));
    EXPECT_EQ(names(row({"Properties", "Thicknesses"})), (QStringList{"1  Mat", "2  Pit under the core"}));
    EXPECT_EQ(details(row({"Properties", "Thicknesses", "1  Mat"})), "1.2 m");
}

TEST_F(ModelTreeTest, ItFollowsAdditionsChangesAndDeletions)
{
    CDataStld table;
    ASSERT_NE(table.Add(loadCase("NEW")), 0);
    QPersistentModelIndex added(row({cases[0], "NEW"}));
    ASSERT_TRUE(added.isValid());
    EXPECT_EQ(added.row(), 20);
    ASSERT_NE(table.Get(CString("NEW")), 0);
    table.currentRecord.name = "LATER";
    ASSERT_NE(table.Modify(CString("NEW")), 0);
    settle();
    EXPECT_EQ(added.data().toString(), "LATER");
    ASSERT_NE(table.Del(CString("LATER")), 0);
    settle();
    EXPECT_FALSE(added.isValid());
    EXPECT_EQ(details(row(cases)), "20");
    window.hand().undo(window.document());
    EXPECT_TRUE(row({cases[0], "LATER"}).isValid());
    window.hand().redo(window.document());
    EXPECT_FALSE(row({cases[0], "LATER"}).isValid());
}

TEST_F(ModelTreeTest, WhatIsOpenAndSelectedStays)
{
    QModelIndex combinations = row({"Load Combinations"});
    tree().expand(combinations);
    tree().setCurrentIndex(row({cases[0], "WX"}));
    ASSERT_NE(CDataStld().Del(std::vector<CString>{"DL", "HS"}), 0);
    ASSERT_NE(CDataStld().Add(loadCase("NEW")), 0);
    settle();
    EXPECT_EQ(tree().currentIndex().data().toString(), "WX");
    EXPECT_EQ(tree().selectionModel()->selectedRows().size(), 1);
    EXPECT_TRUE(tree().isExpanded(row(cases)));
    EXPECT_TRUE(tree().isExpanded(row({"Load Combinations"})));
}

TEST_F(ModelTreeTest, ItFollowsTheSequence)
{
    tree().setCurrentIndex(row({cases[0], "RX"}));
    QSignalSpy removed(&model(), &QAbstractItemModel::rowsRemoved);
    ASSERT_NE(CDataStld().ChangeSequence({31}, 0), 0);
    EXPECT_EQ(names(row(cases)).first(), "RX");
    EXPECT_EQ(tree().currentIndex().row(), 0);
    EXPECT_EQ(tree().currentIndex().data().toString(), "RX");
    EXPECT_EQ(removed.count(), 0);
}

TEST_F(ModelTreeTest, CombinationsStandUnderTheirDesignKind)
{
    T_LCOM_D combination;
    combination.name = "LCB1";
    combination.description = "1.4DL";
    combination.items = {{1, 1, 1.4}};
    ASSERT_NE(CDataLcom().Add(3, combination), 0);
    const QModelIndex list = row({"Load Combinations", "Concrete"});
    EXPECT_EQ(details(list), "1");
    tree().expand(list);
    EXPECT_EQ(details(row({"Load Combinations", "Concrete", "LCB1"})), "1.4DL");
    EXPECT_EQ(details(row({"Load Combinations", "Steel"})), "");
}

TEST_F(ModelTreeTest, AnotherModelTakesThePlaceOfTheFormer)
{
    show(example("first"));
    EXPECT_FALSE(row({cases[0], "WXA"}).isValid());
    EXPECT_TRUE(tree().isExpanded(row(cases)));
    show(zel::ModelDocument::inMemory());
    EXPECT_EQ(model().rowCount(row(cases)), 0);
    ASSERT_NE(CDataStld().Add(loadCase("ONE")), 0);
    EXPECT_TRUE(row({cases[0], "ONE"}).isValid());
}

TEST_F(ModelTreeTest, LoadCasesAreDraggedAsTheEditorTakesThem)
{
    const QModelIndex list = row(cases);
    EXPECT_TRUE(model().flags(row({cases[0], "LL"})).testFlag(Qt::ItemIsDragEnabled));
    EXPECT_FALSE(model().flags(list).testFlag(Qt::ItemIsDragEnabled));
    const QModelIndexList dragged{row({cases[0], "WX"}), row({cases[0], "WX"}).siblingAtColumn(1), row({cases[0], "LL"}), list};
    const std::unique_ptr<QMimeData> data(model().mimeData(dragged));
    ASSERT_NE(data, nullptr);
    EXPECT_EQ(data->text(), "1\t3\tLL(ST)\t1\n1\t11\tWX(ST)\t1\n");
    EXPECT_EQ(data->data(QStringLiteral("application/x-zel-load-cases")), data->text().toUtf8());
    EXPECT_EQ(model().mimeData({list}), nullptr);
}

TEST_F(ModelTreeTest, ADoubleClickOpensTheDialogOfTheSubject)
{
    const auto doubleClick = [&](const QModelIndex& index) {
        tree().scrollTo(index);
        const QPoint place = tree().visualRect(index).center();
        QTest::mouseClick(tree().viewport(), Qt::LeftButton, {}, place);
        QTest::mouseDClick(tree().viewport(), Qt::LeftButton, {}, place);
        settle();
    };
    doubleClick(row({cases[0], "DL"}));
    EXPECT_EQ(form("CCMLoadCaseDlg").dialog()->ClassName(), "CCMLoadCaseDlg");
    doubleClick(row({"Load Combinations", "General"}));
    EXPECT_EQ(form("CCMLoadCombDlg").dialog()->ClassName(), "CCMLoadCombDlg");
    std::string opened;
    whenModal([&](QWidget& modal) {
        opened = dynamic_cast<zel::desktop::FormWindow&>(modal).dialog()->ClassName();
        modal.close();
    });
    tree().expand(row({"Load Case Sets"}));
    tree().setCurrentIndex(row({"Load Case Sets", "Wind Directions"}));
    QTest::keyClick(&tree(), Qt::Key_Return);
    QTest::qWait(200);
    EXPECT_EQ(opened, "CLoadCaseWindDirectDlg");
}

TEST_F(ModelTreeTest, ADoubleClickOnAGroupSelectsItsObjects)
{
    show(example("mat"));
    const QModelIndex groups = row({"Plan", "Groups"});
    tree().expand(groups.parent());
    tree().expand(groups);
    const QModelIndex piles = row({"Plan", "Groups", "Core piles"});
    tree().scrollTo(piles);
    QTest::mouseClick(tree().viewport(), Qt::LeftButton, {}, tree().visualRect(piles).center());
    QTest::mouseDClick(tree().viewport(), Qt::LeftButton, {}, tree().visualRect(piles).center());
    EXPECT_EQ(window.document().GetViewCtrl()->selection().points.size(), 9U);
}

TEST_F(ModelTreeTest, ALargeTableComesInPortions)
{
    constexpr int many = 100'000;
    std::vector<T_STLD_D> records;
    for (int i = 0; i < many; ++i)
        records.push_back(loadCase("C" + std::to_string(i)));
    auto document = zel::ModelDocument::inMemory();
    ASSERT_NE(CDataStld().Add(records), 0);
    show(std::move(document));
    const QModelIndex list = row(cases);
    EXPECT_EQ(details(list), "100000");
    EXPECT_LT(model().rowCount(list), 1000);
    EXPECT_TRUE(model().canFetchMore(list));
    const int before = model().rowCount(list);
    tree().scrollTo(model().index(before - 1, 0, list));
    settle();
    EXPECT_GT(model().rowCount(list), before);
    ASSERT_NE(CDataStld().Del(std::vector<CString>{"C0", "C99999"}), 0);
    settle();
    EXPECT_EQ(model().index(0, 0, row(cases)).data().toString(), "C1");
    EXPECT_LT(model().rowCount(row(cases)), 1000);
}

}  // namespace desktop_test
