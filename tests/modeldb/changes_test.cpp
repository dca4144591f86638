#include "contract/table.h"
#include "contract/tables/load_combination_table.h"
#include "contract/tables/load_set_tables.h"
#include "contract/tables/model_tables.h"
#include "contract/tables/property_tables.h"
#include "contract/tables/static_load_case_table.h"
#include "contract/view_ctrl.h"
#include "model_fixture.h"

#include <functional>

namespace zel::test {

using Notices = InMemoryModel;
using Undo = InMemoryModel;
using Changes = std::vector<std::string>;

TEST_F(Notices, OneWriteIsOneNoticeWithEveryRecordInIt)
{
    const NoticeLog log;
    CDataStld().Add({loadCase("A"), loadCase("B")});
    ASSERT_EQ(log.notices.size(), 1U);
    EXPECT_EQ(log.notices[0].hint, 0);
    EXPECT_EQ(log.notices[0].changes, (Changes{"ADD 1 A 1", "ADD 2 B 2"}));
}

TEST_F(Notices, AModificationIsThePairOfTheNewRecordThenTheOld)
{
    CDataStld cases;
    cases.Add(loadCase("A"));
    const NoticeLog log;
    cases.Get("A");
    cases.currentRecord.name = "B";
    cases.Modify(CString("A"));
    ASSERT_EQ(log.notices.size(), 1U);
    EXPECT_EQ(log.notices[0].changes, (Changes{"MFD 1 B 1", "MFS 1 A 1"}));
}

TEST_F(Notices, ADeletionComesFirstThenThePairsOfThoseThatMoveUpInTheNewOrder)
{
    CDataStld cases;
    cases.Add({loadCase("A"), loadCase("B"), loadCase("C"), loadCase("D")});
    const NoticeLog log;
    cases.Del(CString("B"));
    ASSERT_EQ(log.notices.size(), 1U);
    EXPECT_EQ(log.notices[0].changes, (Changes{"DEL 2 B 2", "MFD 3 C 2", "MFS 3 C 3", "MFD 4 D 3", "MFS 4 D 4"}));
}

TEST_F(Notices, AChangeOfSequenceComesAsPairsInTheNewOrderWithoutThoseThatStay)
{
    CDataStld cases;
    cases.Add({loadCase("A"), loadCase("B"), loadCase("C")});
    const NoticeLog log;
    cases.ChangeSequence({2}, 0);
    ASSERT_EQ(log.notices.size(), 1U);
    EXPECT_EQ(log.notices[0].changes, (Changes{"MFD 2 B 1", "MFS 2 B 2", "MFD 1 A 2", "MFS 1 A 1"}));
}

TEST_F(Notices, AWriteThatIsRefusedTellsNobody)
{
    const NoticeLog log;
    EXPECT_EQ(CDataStld().Add(loadCase("")), 0);
    EXPECT_TRUE(log.notices.empty());
}

TEST_F(Notices, ATableWithoutCodesSendsAnEmptyBuffer)
{
    const NoticeLog log;
    CDataLcoe().Add(T_LCOE_D{});
    ASSERT_EQ(log.notices.size(), 1U);
    EXPECT_EQ(log.notices[0].hint, 0);
    EXPECT_TRUE(log.notices[0].changes.empty());
    EXPECT_EQ(model->GetViewBuff()->GetCount(), 0);
    EXPECT_EQ(model->GetViewBuff()->GetStartBuffer(), nullptr);
}

TEST_F(Notices, OneRecordOfSeismicFactorsIsToldAsAddedAlsoWhenItIsReplaced)
{
    const NoticeLog log;
    CDataSlcf().Add(T_SLCF_D{});
    CDataSlcf().Add(T_SLCF_D{});
    const std::string added = "code " + std::to_string(CDataSlcf::UR_SLCF_ADD);
    ASSERT_EQ(log.notices.size(), 2U);
    EXPECT_EQ(log.notices[1].changes, (Changes{added}));
}

TEST_F(Notices, AnIndexOutsideTheBufferIsInvalid)
{
    CDataStld handle;
    EXPECT_THROW(model->GetViewBuff()->GetData(0, handle), std::invalid_argument);
}

/// Does something at its first notice.
class Reacting final : public CDBUpdateConnector {
public:
    explicit Reacting(std::function<void()> reaction) : m_reaction(std::move(reaction)) {}
    void OnUpdate(CView* /*sender*/, long long /*hint*/, CObject* /*object*/) override
    {
        if (m_reaction)
            std::exchange(m_reaction, nullptr)();
    }

private:
    std::function<void()> m_reaction;
};

TEST_F(Notices, AListenerMayWriteAndTheOthersStillSeeTheOuterChangeAfterwards)
{
    const Reacting first([] { CDataStld().Add(loadCase("inner")); });
    const NoticeLog log;
    CDataStld().Add(loadCase("outer"));
    ASSERT_EQ(log.notices.size(), 2U);
    EXPECT_EQ(log.notices[0].changes, (Changes{"ADD 2 inner 2"}));
    EXPECT_EQ(log.notices[1].changes, (Changes{"ADD 1 outer 1"}));
}

TEST_F(Notices, AListenerMayLeaveAndAnotherMayJoinDuringANotice)
{
    auto leaving = std::make_unique<NoticeLog>();
    std::unique_ptr<NoticeLog> joining;
    const Reacting reacting([&] {
        leaving.reset();
        joining = std::make_unique<NoticeLog>();
    });
    auto later = std::make_unique<NoticeLog>();
    CDataStld().Add(loadCase("A"));
    EXPECT_EQ(later->notices.size(), 1U);
    EXPECT_TRUE(joining->notices.empty());
    CDataStld().Add(loadCase("B"));
    EXPECT_EQ(joining->notices.size(), 1U);
}

TEST_F(Undo, TakesBackAndMakesAgainWithTheSameNotices)
{
    CDataStld cases;
    cases.Add(loadCase("A"));
    cases.Get("A");
    cases.currentRecord.name = "B";
    cases.Modify(CString("A"));
    EXPECT_EQ(model->undoName(), "Modify static load case \"A\"");
    const NoticeLog log;
    EXPECT_NE(model->Undo(), 0);
    EXPECT_NE(cases.Get("A"), 0);
    EXPECT_EQ(model->redoName(), "Modify static load case \"A\"");
    EXPECT_NE(model->Redo(), 0);
    EXPECT_NE(cases.Get("B"), 0);
    ASSERT_EQ(log.notices.size(), 2U);
    EXPECT_EQ(log.notices[0].hint, 1);
    EXPECT_EQ(log.notices[0].changes, (Changes{"MFD 1 A 1", "MFS 1 B 1"}));
    EXPECT_EQ(log.notices[1].hint, 3);
    EXPECT_EQ(log.notices[1].changes, (Changes{"MFD 1 B 1", "MFS 1 A 1"}));
    EXPECT_NE(model->Undo(), 0);
    EXPECT_NE(model->Undo(), 0);
    EXPECT_EQ(cases.GetCount(), 0);
    EXPECT_EQ(model->Undo(), 0);
    EXPECT_EQ(model->undoName(), "");
}

TEST_F(Undo, RestoresKeyPlaceAndNameOfADeletedRecord)
{
    CDataStld cases;
    cases.Add({loadCase("A"), loadCase("B"), loadCase("C")});
    cases.Del(CString("A"));
    model->Undo();
    cases.Get("A");
    EXPECT_EQ(cases.currentKey, 1U);
    EXPECT_EQ(cases.currentRecord.no, 1);
    cases.Get("C");
    EXPECT_EQ(cases.currentRecord.no, 3);
}

TEST_F(Undo, ANewWriteForgetsWhatCouldBeMadeAgain)
{
    CDataStld cases;
    cases.Add(loadCase("A"));
    model->Undo();
    cases.Add(loadCase("B"));
    EXPECT_EQ(model->Redo(), 0);
    EXPECT_EQ(model->redoName(), "");
}

TEST_F(Undo, SeveralWritesMadeOneChangeAreOneStepAndOneNotice)
{
    const NoticeLog log;
    CDataStld cases;
    model->beginChange("Make two load cases");
    cases.Add(loadCase("A"));
    cases.Add(loadCase("B"));
    EXPECT_NE(cases.Get("A"), 0) << "a write of the change is seen by the next";
    EXPECT_TRUE(log.notices.empty());
    EXPECT_NE(model->endChange(1), 0);
    ASSERT_EQ(log.notices.size(), 1U);
    EXPECT_EQ(log.notices[0].changes.size(), 2U);
    EXPECT_EQ(model->undoName(), "Make two load cases");
    model->Undo();
    EXPECT_EQ(cases.GetCount(), 0);
}

TEST_F(Undo, WritesOfOneChangeMayBeToldEachByItself)
{
    CDataStld cases;
    cases.Add(loadCase("A"));
    const NoticeLog log;
    model->beginChange("Replace", CDBDoc::NoticeTime::each);
    cases.Del(CString("A"));
    cases.Add(loadCase("B"));
    ASSERT_EQ(log.notices.size(), 2U);
    EXPECT_EQ(log.notices[0].changes, (Changes{"DEL 1 A 1"}));
    EXPECT_EQ(log.notices[1].changes, (Changes{"ADD 1 B 1"}));
    EXPECT_NE(model->endChange(1), 0);
    EXPECT_EQ(log.notices.size(), 2U);
    EXPECT_EQ(model->undoName(), "Replace");
    model->Undo();
    EXPECT_NE(cases.Get("A"), 0);
    EXPECT_EQ(cases.GetCount(), 1);
    model->beginChange("Nothing", CDBDoc::NoticeTime::each);
    cases.Add(loadCase("C"));
    EXPECT_EQ(model->endChange(0), 0);
    EXPECT_EQ(log.notices.back().hint, 1) << "whoever was told of C is told that it is gone again";
    EXPECT_EQ(log.notices.back().changes, (Changes{"DEL 2 C 2"}));
}

TEST_F(Undo, AChangeThatIsNotKeptLeavesNothing)
{
    const NoticeLog log;
    CDataStld cases;
    cases.Add(loadCase("A"));
    model->beginChange("Nothing");
    cases.Add(loadCase("B"));
    cases.Del(CString("A"));
    EXPECT_EQ(model->endChange(0), 0);
    EXPECT_EQ(cases.GetCount(), 1);
    EXPECT_NE(cases.Get("A"), 0);
    EXPECT_EQ(log.notices.size(), 1U);
    EXPECT_EQ(model->undoName(), "Add static load case \"A\"");
}

TEST_F(Undo, OfUnitsRestoresEveryValueExactlyAndSendsHint4)
{
    CDataThik thicknesses;
    T_THIK_D record;
    record.outX = 0.1 + 0.2;
    thicknesses.Add(1, record);
    model->GetUnitCtrl()->SetUnitIndexCurrent({T_UNIT_INDEX::INCH, T_UNIT_INDEX::KIP}, 1);
    const NoticeLog log;
    model->Undo();
    thicknesses.Get(1, record);
    EXPECT_EQ(record.outX, 0.1 + 0.2);
    EXPECT_EQ(model->units().length, T_UNIT_INDEX::MM);
    model->Redo();
    EXPECT_EQ(model->units().length, T_UNIT_INDEX::INCH);
    ASSERT_EQ(log.notices.size(), 2U);
    EXPECT_EQ(log.notices[0].hint, 4);
    EXPECT_EQ(log.notices[1].hint, 4);
    EXPECT_TRUE(log.notices[0].changes.empty());
}

TEST_F(Notices, AChangeOfSelectionIsHint5AndSelectPreviousTakesItBack)
{
    ITable& points = model->table(Table::PONT);
    points.add(0, {1, 2, 3}, {share(T_PONT_D{}), share(T_PONT_D{}), share(T_PONT_D{})}, false);
    const NoticeLog log;
    CViewCtrl& view = *model->GetViewCtrl();
    view.select({{1, 3, 99}, {}, {}, {}, {}}, true);
    std::vector<Key> keys;
    view.GetAllSelectedPont(keys);
    EXPECT_EQ(keys, (std::vector<Key>{1, 3})) << "a key without a point can't be selected";
    view.GetAllUnSelectedPont(keys);
    EXPECT_EQ(keys, (std::vector<Key>{2}));
    view.UnselectAll(nullptr);
    view.SelectPrevious();
    view.GetAllSelectedPont(keys);
    EXPECT_EQ(keys, (std::vector<Key>{1, 3}));
    ASSERT_EQ(log.notices.size(), 3U);
    EXPECT_EQ(log.notices[0].hint, 5);
    points.remove(0, {1});
    view.GetAllSelectedPont(keys);
    EXPECT_EQ(keys, (std::vector<Key>{3}));
}

}  // namespace zel::test
