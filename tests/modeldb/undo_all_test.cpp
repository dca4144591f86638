#include "contract/tables/model_tables.h"
#include "contract/tables/static_load_case_table.h"
#include "contract/units.h"
#include "full_disk.h"
#include "model_fixture.h"

namespace zel::test {

using UndoAll = InMemoryModel;
using Changes = std::vector<std::string>;

std::vector<std::string> namesOfCases()
{
    std::vector<std::string> names;
    CDataStld().GetNameList(names);
    return names;
}

TEST_F(UndoAll, TellsOnceWhatDiffersFromTheOpenedModel)
{
    CDataStld cases;
    cases.Add(loadCase("A"));
    cases.Get("A");
    cases.currentRecord.name = "B";
    cases.Modify(CString("A"));
    cases.Add(loadCase("C"));
    cases.Del(CString("C"));
    const NoticeLog log;
    EXPECT_NE(model->undoAll(), 0);
    ASSERT_EQ(log.notices.size(), 1U);
    EXPECT_EQ(log.notices[0].hint, Hint::undo);
    EXPECT_EQ(log.notices[0].changes, (Changes{"DEL 1 B 1"}));  // C came and went, so nobody is told of it
    EXPECT_TRUE(namesOfCases().empty());
    EXPECT_EQ(model->undoCount(), 0U);
    EXPECT_EQ(model->undoAll(), 0);
}

TEST_F(UndoAll, RedoMakesTheChangesAgainOneByOne)
{
    CDataStld cases;
    cases.Add(loadCase("A"));
    cases.Add(loadCase("B"));
    cases.ChangeSequence({2}, 0);
    model->undoAll();
    EXPECT_EQ(model->redoCount(), 3U);
    EXPECT_NE(model->Redo(), 0);
    EXPECT_EQ(namesOfCases(), (Changes{"A"}));
    EXPECT_NE(model->Redo(), 0);
    EXPECT_NE(model->Redo(), 0);
    EXPECT_EQ(namesOfCases(), (Changes{"B", "A"}));
    EXPECT_EQ(model->redoCount(), 0U);
}

TEST_F(UndoAll, TakesTheUnitsBackAndTellsOfThem)
{
    CDataStld().Add(loadCase("A"));
    model->GetUnitCtrl()->SetUnitIndexCurrent({T_UNIT_INDEX::M, T_UNIT_INDEX::KN}, 1);
    CDataStld().Add(loadCase("B"));
    model->GetUnitCtrl()->SetUnitIndexCurrent({T_UNIT_INDEX::FEET, T_UNIT_INDEX::KIP}, 1);
    const NoticeLog log;
    EXPECT_NE(model->undoAll(), 0);
    EXPECT_EQ(model->units(), T_UNIT_INDEX{});
    T_UNIT_INDEX current;
    model->GetUnitCtrl()->GetUnitIndexCurrent(current);
    EXPECT_EQ(current, T_UNIT_INDEX{});
    ASSERT_EQ(log.notices.size(), 2U);
    EXPECT_EQ(log.notices[0].hint, Hint::undo);
    EXPECT_EQ(log.notices[1].hint, Hint::units);
    while (model->Redo() != 0) {}
    EXPECT_EQ(model->units(), (T_UNIT_INDEX{T_UNIT_INDEX::FEET, T_UNIT_INDEX::KIP}));
}

TEST(UndoAllInAFile, TheFileIsAsItWasOpened)
{
    const Folder folder;
    const HeadlessUserInterface host;
    const auto path = folder / "model.qvx";
    {
        const auto model = ModelDocument::create(path);
        CDataStld().Add(loadCase("kept"));
    }
    {
        const auto model = ModelDocument::open(path);
        CDataStld().Add(loadCase("B"));
        CDataStld().Del(CString("kept"));
        EXPECT_NE(model->undoAll(), 0);
    }
    const auto model = ModelDocument::open(path);
    EXPECT_EQ(namesOfCases(), (Changes{"kept"}));
}

TEST(UndoAllInAFile, WhenTheFileRefusesItNothingIsTakenBack)
{
    const Folder folder;
    const HeadlessUserInterface host;
    const auto path = folder / "model.qvx";
    const auto model = ModelDocument::create(path);
    std::vector<T_STLD_D> many;
    for (int i = 0; i < 400; ++i) {
        many.push_back(loadCase(("L" + std::to_string(i)).c_str()));
        many.back().description = std::string(400, 'x');
    }
    CDataStld().Add(many);
    CDataStld().Add(loadCase("last"));
    {
        const FullDisk full(4096);
        EXPECT_EQ(model->undoAll(), 0);
    }
    EXPECT_EQ(CDataStld().GetCount(), 401);
    EXPECT_EQ(model->undoCount(), 2U);
    EXPECT_EQ(host.boxes.size(), 1U);
    EXPECT_NE(model->undoAll(), 0);
    EXPECT_EQ(CDataStld().GetCount(), 0);
}

}  // namespace zel::test
