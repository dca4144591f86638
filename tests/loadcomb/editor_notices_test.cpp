#include "contract/change_scope.h"
#include "loadcomb/editor_fixture.h"

#include "contract/table.h"

#include <algorithm>
#include <cstdio>
#include <functional>
#include <random>
#include <utility>

namespace zel::test {

using testing::ElementsAre;
using testing::IsEmpty;

/// What the editor shows when the model changes under it.
class LoadCombinationNotices : public EditorTest {
protected:
    LoadCombinationNotices()
    {
        for (const char* name : {"A", "B", "C", "D"})
            keys.push_back(store(name, {{1, 1, 1.0}}));
    }

    static void expectAsStored(const Form& form)
    {
        std::vector<Key> stored;
        std::vector<T_LCOM_D> records;
        CDataLcom().GetList(1, stored, records);
        Texts list;
        Texts cells;
        for (const T_LCOM_D& record : records) {
            const CString active = std::to_string(record.active);
            const CString number = std::to_string(record.number);
            list.push_back(number + "|" + record.name + "|" + active + "|" + record.description);
            Texts factors(3);
            for (const T_LCOM_ITEM& item : record.items)
                factors[item.key - 1] = formatted(item.factor);
            cells.push_back(number + "|" + active + "|" + record.name + "|" + factors[0] + "|" + factors[1] + "|" + factors[2] + "|" + record.description);
        }
        EXPECT_EQ(rows(mainGrid(form)), list);
        EXPECT_EQ(shownRows(sheet(form)), cells);
        for (std::size_t at = 0; at < stored.size(); ++at) {
            EXPECT_EQ(mainGrid(form).GetRowKey(Row::at(at)), stored[at]);
            EXPECT_EQ(sheet(form).GetRowKey(Row::at(at)), stored[at]);
        }
    }
    static CString formatted(double value)
    {
        char text[32];
        std::snprintf(text, sizeof text, "%.4f", value);
        return text;
    }

    std::vector<Key> keys;
};

TEST_F(LoadCombinationNotices, AnAddedCombinationComesAtItsPlace)
{
    const Form form = open();
    store(combination("E", {{1, 2, 1.5}}, "new"));
    expectAsStored(form);
    EXPECT_EQ(mainGrid(form).GetDataRowCount(), 5);
}

TEST_F(LoadCombinationNotices, OtherKindsAreNotShown)
{
    const Form form = open();
    store(combination("S"), 2);
    ASSERT_NE(CDataLcom().Del(2, std::vector<CString>{"S"}), 0);
    expectAsStored(form);
    EXPECT_EQ(mainGrid(form).GetDataRowCount(), 4);
}

TEST_F(LoadCombinationNotices, ADeletedCombinationGoesAndTheOthersMoveUp)
{
    const Form form = open();
    ASSERT_NE(CDataLcom().Del(1, keys[1]), 0);
    EXPECT_THAT(rows(mainGrid(form)), ElementsAre("1|A|1|", "2|C|1|", "3|D|1|"));
    expectAsStored(form);
    ASSERT_NE(model->Undo(), 0);
    expectAsStored(form);
    ASSERT_NE(model->Redo(), 0);
    expectAsStored(form);
}

TEST_F(LoadCombinationNotices, AModifiedCombinationKeepsItsPlace)
{
    const Form form = open();
    click(mainGrid(form), 1, mainName);
    change("B", [](T_LCOM_D& record) {
        record.name = "wind";
        record.items = {{1, 3, 2.0}};
    });
    expectAsStored(form);
    EXPECT_THAT(rows(subGrid(form)), ElementsAre("WX(ST)|2|1"));
}

TEST_F(LoadCombinationNotices, AnotherSequenceReordersTheRows)
{
    const Form form = open();
    ASSERT_NE(CDataLcom().ChangeSequence(1, {keys[3], keys[0]}, keys[1]), 0);
    EXPECT_THAT(column(mainGrid(form), mainName), ElementsAre("B", "D", "A", "C"));
    expectAsStored(form);
}

TEST_F(LoadCombinationNotices, TheCurrentRowStaysAndItsItemsFollow)
{
    const Form form = open();
    change("C", [](T_LCOM_D& record) { record.items = {{1, 3, 3.0}}; });
    click(mainGrid(form), 1, mainActive);
    ASSERT_NE(CDataLcom().Del(1, keys[1]), 0);
    Row row;
    ColumnPlace column;
    ASSERT_NE(mainGrid(form).GetCurrentCell(row, column), 0);
    EXPECT_EQ(row, 2);
    EXPECT_EQ(column, mainActive + 1);
    EXPECT_THAT(rows(subGrid(form)), ElementsAre("WX(ST)|3|1"));
    ASSERT_NE(CDataLcom().Del(1, std::vector<CString>{"C", "D"}), 0);
    EXPECT_EQ(mainGrid(form).GetCurrentRow(), 1);
    EXPECT_THAT(rows(subGrid(form)), ElementsAre("DL(ST)|1|1"));
    ASSERT_NE(CDataLcom().Del(1, keys[0]), 0);
    EXPECT_THAT(rows(subGrid(form)), IsEmpty());
}

TEST_F(LoadCombinationNotices, WhatIsBeingTypedStaysWithItsCombination)
{
    const Form form = open();
    typeOpen(mainGrid(form), 2, {{mainDescription, "of C"}});
    form.at("Copy").SetFocus();
    ASSERT_NE(CDataLcom().Del(1, keys[0]), 0);
    EXPECT_EQ(mainGrid(form).GetEditRow(), 2);
    ASSERT_NE(CDataLcom().ChangeSequence(1, {keys[3]}, 0), 0);
    EXPECT_EQ(mainGrid(form).GetEditRow(), 3);
    EXPECT_EQ(mainGrid(form).TextAt(3, mainDescription), "of C");
    done(mainGrid(form).leaveRow());
    EXPECT_EQ(stored("C").description, "of C");
    EXPECT_EQ(stored("D").description, "");
    expectAsStored(form);
}

TEST_F(LoadCombinationNotices, TypingEndsWhenItsCombinationGoes)
{
    const Form form = open();
    typeOpen(mainGrid(form), 2, {{mainDescription, "of C"}});
    ASSERT_NE(CDataLcom().Del(1, keys[2]), 0);
    EXPECT_FALSE(mainGrid(form).IsEdit());
    expectAsStored(form);
}

TEST_F(LoadCombinationNotices, ANewRowStaysUnderEditWhileOthersCome)
{
    const Form form = open();
    typeOpen(mainGrid(form), append, {{mainName, "mine"}});
    std::vector<T_LCOM_D> many;
    for (int count = 0; count < 200; ++count)
        many.push_back(combination("G" + std::to_string(count)));
    ASSERT_NE(CDataLcom().Add(1, many), 0);
    EXPECT_TRUE(mainGrid(form).IsAppend());
    done(mainGrid(form).leaveRow());
    EXPECT_EQ(stored("mine").number, 205);
    expectAsStored(form);
}

TEST_F(LoadCombinationNotices, ALongChangeKeepsTypingAndSelectionWithTheirRows)
{
    std::vector<T_LCOM_D> many;
    for (int count = 0; count < 200; ++count)
        many.push_back(combination("G" + std::to_string(count)));
    ASSERT_NE(CDataLcom().Add(1, many), 0);
    const Form form = openSpreadsheet();
    done(sheet(form).select({100}));
    form.press("toggle");
    typeOpen(mainGrid(form), 50, {{mainDescription, "typed"}});
    ASSERT_NE(CDataLcom().Del(1, keys[0]), 0);    // all others get another number
    EXPECT_THAT(sheet(form).GetSelectedRows(), ElementsAre(Row{100}));
    EXPECT_EQ(mainGrid(form).GetEditRow(), 50);
    EXPECT_EQ(mainGrid(form).TextAt(50, mainDescription), "typed");
    done(mainGrid(form).leaveRow());
    EXPECT_EQ(stored("G46").description, "typed");
    expectAsStored(form);
}

TEST_F(LoadCombinationNotices, ItemsUnderEditGoWithTheirCombination)
{
    const Form form = open();
    click(mainGrid(form), 1, mainName);
    typeOpen(subGrid(form), 0, {{factor, "7"}});
    ASSERT_NE(CDataLcom().Del(1, keys[0]), 0);
    ASSERT_NE(CDataLcom().Del(1, keys[1]), 0);
    EXPECT_FALSE(subGrid(form).IsEdit());
    expectAsStored(form);
}

TEST_F(LoadCombinationNotices, NoticesWithoutAChangeAndOfOtherTablesLeaveItAlone)
{
    const Form form = open();
    typeOpen(mainGrid(form), 1, {{mainDescription, "typed"}});
    tellOfNoChange();
    changeCase("DL", [](T_STLD_D& record) { record.selfWeightFactor = 2.0; });
    EXPECT_EQ(mainGrid(form).GetEditRow(), 2);
    EXPECT_THAT(boxes(), IsEmpty());
}

// Load cases

TEST_F(LoadCombinationNotices, ARenamedLoadCaseBearsItsNewNameEverywhere)
{
    const Form form = open();
    click(mainGrid(form), 0, mainName);
    renameCase("DL", "dead");
    EXPECT_EQ(titles(sheet(form))[dl], "[IDS_ZEL_CMD___s_ST_]dead(ST)");
    EXPECT_THAT(rows(subGrid(form)), ElementsAre("dead(ST)|1|1"));
    EXPECT_EQ(subGrid(form).GetColInfo(loadCase).choices.front(), "dead(ST)");
    expectAsStored(form);
}

TEST_F(LoadCombinationNotices, ARenamedLoadCaseLeavesTheRowUnderEditOpen)
{
    const Form form = openSpreadsheet();
    typeOpen(sheet(form), 0, {{dl, "1.4"}});
    renameCase("DL", "dead");
    EXPECT_TRUE(sheet(form).IsEdit());
    done(sheet(form).leaveRow());
    EXPECT_THAT(stored("A").items, ElementsAre(T_LCOM_ITEM{1, 1, 1.4}));
}

TEST_F(LoadCombinationNotices, LoadCasesThatComeAndGoHaveTheirColumns)
{
    const Form form = openSpreadsheet();
    click(sheet(form), 2, sheetDescription);
    addCase("EX", "E");
    EXPECT_THAT(titles(sheet(form)).size(), 8U);
    EXPECT_EQ(sheet(form).TextAt(0, 6), "[IDS_ZEL_CMD___s_ST_]EX(ST)");
    Row row;
    ColumnPlace column;
    ASSERT_NE(sheet(form).GetCurrentCell(row, column), 0);
    EXPECT_EQ(row, 3);
    EXPECT_EQ(column, 8);
    type(sheet(form), 0, {{6, "1.5"}, {7, "with EX"}});
    EXPECT_EQ(stored("A").items.back(), (T_LCOM_ITEM{1, 4, 1.5}));
    EXPECT_EQ(stored("A").description, "with EX");
    change("A", [](T_LCOM_D& record) { record.items.pop_back(); });
    deleteCase("EX");
    EXPECT_THAT(titles(sheet(form)).size(), 7U);
    expectAsStored(form);
}

TEST_F(LoadCombinationNotices, LoadCasesThatChangePlacesTakeTheirFactorsAlong)
{
    change("A", [](T_LCOM_D& record) { record.items = {{1, 1, 1.0}, {1, 2, 2.0}, {1, 3, 3.0}}; });
    const Form form = openSpreadsheet();
    click(sheet(form), 0, wx);
    ASSERT_NE(CDataStld().ChangeSequence({3}, 0), 0);
    EXPECT_EQ(shownRows(sheet(form))[0], "1|1|A|3.0000|1.0000|2.0000|");
    Row row;
    ColumnPlace column;
    ASSERT_NE(sheet(form).GetCurrentCell(row, column), 0);
    EXPECT_EQ(column, dl + 1);    // WX stands first among the cases now
    EXPECT_THAT(subGrid(form).GetColInfo(loadCase).choices, ElementsAre("WX(ST)", "DL(ST)", "LL(ST)", shown("IDS_ZEL_CMD__None")));
}

TEST_F(LoadCombinationNotices, ARowUnderEditIsWrittenBeforeTheColumnsChange)
{
    const Form form = openSpreadsheet();
    typeOpen(sheet(form), 0, {{ll, "1.6"}});
    addCase("EX", "E");
    EXPECT_FALSE(sheet(form).IsEdit());
    EXPECT_THAT(stored("A").items, ElementsAre(T_LCOM_ITEM{1, 1, 1.0}, T_LCOM_ITEM{1, 2, 1.6}));
}

TEST_F(LoadCombinationNotices, AFactorOfACaseThatGoesMeanwhileIsNoItem)
{
    const Form form = openSpreadsheet();
    typeOpen(sheet(form), 0, {{wx, "1.6"}, {ll, "0.5"}});
    deleteCase("WX");
    EXPECT_THAT(stored("A").items, ElementsAre(T_LCOM_ITEM{1, 1, 1.0}, T_LCOM_ITEM{1, 2, 0.5}));
    ASSERT_NE(model->Undo(), 0);
    ASSERT_NE(model->Undo(), 0);
    form.press("toggle");
    click(mainGrid(form), 0, mainName);
    typeOpen(subGrid(form), append, {{loadCase, "WX(ST)"}, {factor, "1.6"}});
    deleteCase("WX");
    EXPECT_FALSE(subGrid(form).IsEdit());
    EXPECT_THAT(stored("A").items, ElementsAre(T_LCOM_ITEM{1, 1, 1.0}));
}

TEST_F(LoadCombinationNotices, AnItemUnderEditIsWrittenBeforeItsCaseIsRenamed)
{
    const Form form = open();
    click(mainGrid(form), 0, mainName);
    typeOpen(subGrid(form), 0, {{factor, "1.4"}});
    renameCase("DL", "dead");
    EXPECT_THAT(stored("A").items, ElementsAre(T_LCOM_ITEM{1, 1, 1.4}));
    EXPECT_THAT(rows(subGrid(form)), ElementsAre("dead(ST)|1.4|1"));
    typeOpen(subGrid(form), 0, {{factor, "1.5"}});
    changeCase("dead", [](T_STLD_D& record) { record.selfWeightFactor = 1.0; });
    EXPECT_TRUE(subGrid(form).IsEdit());
}

TEST_F(LoadCombinationNotices, TheColumnOfADeletedCaseLeavesTheCurrentCellNearby)
{
    const Form form = openSpreadsheet();
    click(sheet(form), 0, wx);
    deleteCase("WX");
    Row row;
    ColumnPlace column;
    ASSERT_NE(sheet(form).GetCurrentCell(row, column), 0);
    EXPECT_EQ(row, 1);
    EXPECT_EQ(column, wx + 1);
}

// A listener that writes from inside a notice

TEST_F(LoadCombinationNotices, AWriteFromInsideANoticeLeavesTheEditorInOrder)
{
    struct Answering : CDBUpdateConnector {
        void OnUpdate(CView* /*sender*/, long long /*hint*/, CObject* /*object*/) override
        {
            if (then)
                std::exchange(then, nullptr)();
        }
        std::function<void()> then;
    } answering;    // joins before the editor, so that it writes before the editor has seen the first change
    const Form form = open();
    answering.then = [] { store("F", {{1, 3, 2.0}}); };
    store("E", {{1, 2, 1.0}});
    EXPECT_THAT(column(mainGrid(form), mainName), ElementsAre("A", "B", "C", "D", "E", "F"));
    expectAsStored(form);
    answering.then = [] { EXPECT_NE(CDataLcom().Del(1, std::vector<CString>{"G"}), 0); };
    ASSERT_NE(CDataLcom().Add(1, combination("G")), 0);
    EXPECT_EQ(mainGrid(form).GetDataRowCount(), 6);
    expectAsStored(form);
}

// A combination that has gone, of which no notice has come yet

TEST_F(LoadCombinationNotices, ARowIsNotWrittenToACombinationThatHasGone)
{
    const Form form = open();
    const ChangeScope change(*model, "Several", CDBDoc::NoticeTime::atEnd);
    typeOpen(mainGrid(form), 1, {{mainDescription, "lost"}});
    ASSERT_NE(CDataLcom().Del(1, keys[1]), 0);
    done(mainGrid(form).leaveRow());
    EXPECT_EQ(mainGrid(form).GetEditRow(), 2);
    EXPECT_THAT(boxes(), IsEmpty());
    EXPECT_THAT(storedNames(), ElementsAre("A", "C", "D"));
}

TEST_F(LoadCombinationNotices, ItemsAreNotWrittenToACombinationThatHasGone)
{
    const Form form = open();
    click(mainGrid(form), 1, mainName);
    const ChangeScope change(*model, "Several", CDBDoc::NoticeTime::atEnd);
    typeOpen(subGrid(form), append, {{loadCase, "LL(ST)"}, {factor, "2"}});
    ASSERT_NE(CDataLcom().Del(1, keys[1]), 0);
    done(subGrid(form).leaveRow());
    EXPECT_TRUE(subGrid(form).IsAppend());
    EXPECT_THAT(boxes(), IsEmpty());
    EXPECT_THAT(storedNames(), ElementsAre("A", "C", "D"));
}

TEST_F(LoadCombinationNotices, ADeletionThatIsRefusedLeavesItsRowsAndThoseOfTheOthers)
{
    const Form form = open();
    const ChangeScope change(*model, "Several", CDBDoc::NoticeTime::atEnd);
    ASSERT_NE(CDataLcom().Del(1, keys[1]), 0);
    done(mainGrid(form).deleteRows({0, 1}));
    EXPECT_THAT(boxes(), testing::SizeIs(1));
    EXPECT_EQ(mainGrid(form).GetDataRowCount(), 4);
    EXPECT_THAT(storedNames(), ElementsAre("A", "C", "D"));
}

TEST_F(LoadCombinationNotices, APasteOverACombinationThatHasGoneWritesNothing)
{
    const Form form = open();
    const ChangeScope change(*model, "Several", CDBDoc::NoticeTime::atEnd);
    ASSERT_NE(CDataLcom().Del(1, keys[1]), 0);
    done(mainGrid(form).paste(0, mainName, "A2\nB2\n"));
    EXPECT_THAT(warnings(), ElementsAre("IDS_ZEL_CMD__Invalid_data__Operation_has_been_cance"));
    EXPECT_THAT(storedNames(), ElementsAre("A", "C", "D"));
}

// Any change

TEST_F(LoadCombinationNotices, AfterAnyChangesBothFormsShowTheTable)
{
    std::mt19937 random(20260612);
    const auto upTo = [&random](std::size_t below) { return static_cast<std::size_t>(random() % below); };
    const Form form = open();
    int named = 0;
    const auto added = [&](std::size_t count) {
        std::vector<T_LCOM_D> records;
        for (std::size_t each = 0; each < count; ++each)
            records.push_back(combination("N" + std::to_string(++named), {{1, static_cast<Key>(1 + upTo(3)), 1.0 + static_cast<double>(upTo(9))}}));
        return records;
    };
    for (int step = 0; step < 400; ++step) {
        std::vector<Key> order;
        CDataLcom data;
        data.GetKeyList(1, order);
        std::shuffle(order.begin(), order.end(), random);
        const std::size_t some = order.empty() ? 0 : 1 + upTo(std::min<std::size_t>(order.size(), 90));
        const std::vector<Key> chosen(order.begin(), order.begin() + static_cast<std::ptrdiff_t>(some));
        switch (upTo(8)) {
        case 0:
            data.Add(1, added(1 + upTo(order.size() > 150 ? 2 : 120)));
            break;
        case 1:
            CDBDoc::GetDocPoint()->table(Table::LCOM).remove(1, chosen);
            break;
        case 2:
            if (!chosen.empty())
                data.ChangeSequence(1, chosen, order.size() > some ? order.back() : 0);
            break;
        case 3:
            if (!chosen.empty() && data.Get(1, chosen.front()) != 0) {
                const CString oldName = data.currentRecord.name;
                data.currentRecord.name = "M" + std::to_string(++named);
                data.Modify(1, oldName);
            }
            break;
        case 4:
            model->Undo();
            break;
        case 5:
            model->Redo();
            break;
        case 6:    // several kinds of change in one notice
            model->beginChange("several");
            data.Add(1, added(3));
            if (!chosen.empty()) {
                data.ChangeSequence(1, chosen, 0);
                data.Del(1, chosen.front());
            }
            model->endChange(1);
            break;
        default:
            if (!order.empty())
                click(mainGrid(form), static_cast<int>(upTo(order.size())), mainName);
            break;
        }
        ASSERT_NO_FATAL_FAILURE(expectAsStored(form));
        ASSERT_FALSE(HasFailure()) << "after step " << step;
    }
    EXPECT_THAT(boxes(), IsEmpty());
}

}  // namespace zel::test
