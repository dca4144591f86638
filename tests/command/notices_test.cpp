#include "command/model_listener.h"
#include "command/view_buffer.h"
#include "contract/tables/load_set_tables.h"
#include "contract/tables/static_load_case_table.h"
#include "platform/modeldb/model_document.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <memory>
#include <vector>

namespace {

using testing::ElementsAre;
using testing::IsEmpty;

T_STLD_D loadCase(const char* name)
{
    T_STLD_D record;
    record.name = name;
    return record;
}

/// Notes what it is told, in one line for each change.
class Listener : public zel::ModelListener {
public:
    std::vector<CString> told;
    bool windowIsThere = true;

private:
    void UpdateBuffer(const CViewBuff& buffer) override
    {
        zel::readChanges(buffer,
                         zel::TableWatch<CDataStld>{
                             .added = [this](const CDataStld& now) { told.push_back("added " + now.currentRecord.name); },
                             .deleted = [this](const CDataStld& before) { told.push_back("deleted " + before.currentRecord.name); },
                             .modified = [this](const CDataStld& now,
                                                const CDataStld& before) { told.push_back(before.currentRecord.name + " is now " + now.currentRecord.name); },
                         },
                         zel::TableWatch<CDataSlcf>{.added = [this](const CDataSlcf& /*now*/) { told.push_back("factors"); }});
    }
    void UnitChanged() override { told.push_back("units"); }
    [[nodiscard]] bool canUpdate() const override { return windowIsThere; }
};

class Notices : public testing::Test {
protected:
    std::unique_ptr<zel::ModelDocument> model = zel::ModelDocument::inMemory();
    Listener listener;
    CDataStld cases;
};

TEST_F(Notices, AnAdditionAndADeletionComeWithTheirRecord)
{
    cases.Add(loadCase("DL"));
    cases.Del(CString("DL"));
    EXPECT_THAT(listener.told, ElementsAre("added DL", "deleted DL"));
}

TEST_F(Notices, AModificationComesOnceWithBothItsStates)
{
    cases.Add(loadCase("DL"));
    listener.told.clear();
    cases.Get(CString("DL"));
    cases.currentRecord.name = "DEAD";
    cases.Modify(CString("DL"));
    EXPECT_THAT(listener.told, ElementsAre("DL is now DEAD"));
}

TEST_F(Notices, SeveralTablesAreWatchedInTheOrderOfTheirChanges)
{
    model->beginChange("both");
    CDataSlcf().Add(T_SLCF_D());
    cases.Add(loadCase("DL"));
    model->endChange(1);
    EXPECT_THAT(listener.told, ElementsAre("factors", "added DL"));
}

TEST_F(Notices, UndoAndRedoAreReadLikeAnyChange)
{
    cases.Add(loadCase("DL"));
    model->Undo();
    model->Redo();
    EXPECT_THAT(listener.told, ElementsAre("added DL", "deleted DL", "added DL"));
}

TEST_F(Notices, AChangeOfTheUnitsComesByItself)
{
    ASSERT_NE(model->GetUnitCtrl()->SetUnitIndexCurrent({2, 2}, 1), 0);
    EXPECT_THAT(listener.told, ElementsAre("units"));
}

TEST_F(Notices, OtherHintsAndAnEmptyBufferTellNothing)
{
    for (const long long hint : {0LL, 1LL, 3LL, 2LL, 5LL, 6LL, 7LL, 8LL, 9LL, 1000LL, -1LL, -4LL})
        model->notify(nullptr, hint, nullptr);
    CDataLcoe().Add(T_LCOE_D());  // a table without update codes
    EXPECT_THAT(listener.told, IsEmpty());
}

TEST_F(Notices, ADialogWhoseWindowHasGoneIsToldNothing)
{
    listener.windowIsThere = false;
    cases.Add(loadCase("DL"));
    model->notify(nullptr, Hint::units, nullptr);
    EXPECT_THAT(listener.told, IsEmpty());
}

TEST_F(Notices, TheSecondHalfOfAModificationAloneIsPassedOver)
{
    cases.Add(loadCase("DL"));
    CViewBuff::Entry half;
    half.buffer.updateCode = CDataStld::UR_STLD_MFS;
    half.key = 1;
    half.record = zel::share(loadCase("DL"));
    CViewBuff buffer;
    buffer.assign({half});
    int told = 0;
    zel::readChanges(buffer, zel::TableWatch<CDataStld>{.modified = [&told](const CDataStld&, const CDataStld&) { ++told; }});
    EXPECT_EQ(told, 0);
}

}  // namespace
