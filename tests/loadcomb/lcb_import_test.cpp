#include "loadcomb/editor/lcb_import.h"

#include "contract/tables/load_combination_table.h"
#include "contract/tables/static_load_case_table.h"
#include "modeldb/model_fixture.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <sstream>

namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using testing::SizeIs;

/// Files of load combinations into a model with the load cases DL and LL.
class LcbImport : public testing::Test {
protected:
    LcbImport()
    {
        zel::MessageCatalogue::builtIn().showKeys(true);
        EXPECT_NE(CDataStld().Add(zel::test::loadCase("DL", "D")), 0);
        EXPECT_NE(CDataStld().Add(zel::test::loadCase("LL", "L")), 0);
    }
    ~LcbImport() override
    {
        zel::MessageCatalogue::builtIn().showKeys(false);
        EXPECT_TRUE(host.allDone());
    }

    std::string write(const char* name, const std::string& text)
    {
        zel::test::writeFile(folder / name, text);
        return (folder / name).string();
    }

    static int import(int kind, const std::string& text)
    {
        std::istringstream file(text);
        return zel::lcb::importFile(kind, file);
    }

    static std::vector<T_LCOM_D> stored(int kind = 1)
    {
        std::vector<zel::Key> keys;
        std::vector<T_LCOM_D> records;
        CDataLcom().GetList(kind, keys, records);
        return records;
    }

    zel::HeadlessUserInterface host;
    zel::test::Folder folder;
    std::unique_ptr<zel::ModelDocument> model = zel::ModelDocument::inMemory();
};

TEST_F(LcbImport, StoresTheCombinationsInTheKindAsked)
{
    EXPECT_NE(import(3, "12, any, 1, 1.2, 2, 1.6, ** dead and live\n7,x,2,1\n"), 0);
    const std::vector<T_LCOM_D> records = stored(3);
    ASSERT_THAT(records, SizeIs(2));
    EXPECT_EQ(records[0].name, "LCB12");
    EXPECT_EQ(records[0].number, 1) << "the model keeps the place";
    EXPECT_EQ(records[0].kind, 3);
    EXPECT_EQ(records[0].active, 1);
    EXPECT_THAT(records[0].items, ElementsAre(T_LCOM_ITEM{1, 1, 1.2}, T_LCOM_ITEM{1, 2, 1.6}));
    EXPECT_EQ(records[1].name, "LCB7");
    EXPECT_THAT(stored(1), IsEmpty());
    EXPECT_THAT(host.boxes, IsEmpty());
}

TEST_F(LcbImport, PlacesAreThoseOfTheSequenceOfTheLoadCases)
{
    ASSERT_NE(CDataStld().ChangeSequence({2}, 0), 0);
    EXPECT_NE(import(1, "1,x,1,1"), 0);
    EXPECT_EQ(stored().at(0).items.at(0).key, 2U);
}

TEST_F(LcbImport, ARecordWithoutItemsIsStored)
{
    EXPECT_NE(import(1, "1,x,1,0.0"), 0);
    ASSERT_THAT(stored(), SizeIs(1));
    EXPECT_THAT(stored()[0].items, IsEmpty());
}

TEST_F(LcbImport, IsOneChangeWithOneNoticeAndOneStepToUndo)
{
    ASSERT_NE(import(1, "1,x,1,1"), 0);
    zel::test::NoticeLog log;
    std::string text;
    for (int id = 2; id <= 200; ++id)
        text += std::to_string(id) + ",x,1,1\n";
    EXPECT_NE(import(1, text), 0);
    EXPECT_THAT(stored(), SizeIs(200));
    ASSERT_THAT(log.notices, SizeIs(1));
    EXPECT_THAT(log.notices[0].changes, SizeIs(199));
    ASSERT_NE(model->Undo(), 0);
    ASSERT_THAT(stored(), SizeIs(1));
    ASSERT_NE(model->Redo(), 0);
    EXPECT_EQ(stored().at(199).name, "LCB200");
}

TEST_F(LcbImport, AFaultIsShownAndNothingIsStored)
{
    const CString before = model->undoName();
    zel::test::NoticeLog log;
    EXPECT_EQ(import(1, "1,x,1,1\n2,x,3,1\n"), 0);
    ASSERT_THAT(host.boxes, SizeIs(1));
    EXPECT_EQ(host.boxes[0].key, "IDS_ZEL_CMD__Error___Load_case__d_in_line__d_does_n");
    EXPECT_EQ(host.boxes[0].text, "Error : Load case 3 in line 2 does not exist.");
    EXPECT_EQ(host.boxes[0].type, MB_OK);
    EXPECT_THAT(stored(), IsEmpty());
    EXPECT_THAT(log.notices, IsEmpty());
    EXPECT_EQ(model->undoName(), before);
}

TEST_F(LcbImport, EveryFaultIsShownUnderItsKey)
{
    std::string tooMany = "1,x";
    for (int i = 0; i < 51; ++i)
        tooMany += ",1,1";
    std::string merged;
    for (int i = 0; i < 51; ++i)
        merged += "1,x,1,1\n";
    const std::pair<std::string, const char*> faults[] = {
        {std::string(1020, 'x'), "IDS_ZEL_CMD__Error___Invalid_LCB_file_format_"},
        {"1,,1,1.0", "IDS_ZEL_CMD__Error___No_load_case_and_factor_in_lin"},
        {"1,x,1,1,2", "IDS_ZEL_CMD__Error___Mismatched_load_case_and_facto"},
        {tooMany, "IDS_ZEL_CMD__Error___Number_of_load_case__d__exceed"},
        {"one,x,1,1", "IDS_ZEL_CMD__Error___Invalid_load_combination_ID__s"},
        {"1,x,DL,1", "IDS_ZEL_CMD__Error___Invalid_load_case__s__in_line_"},
        {"1,x,0,1", "IDS_ZEL_CMD__Error___Load_case__d_in_line__d_does_n"},
        {"1,x,1,one", "IDS_ZEL_CMD__Error___Invalid_load_case_factor__s__i"},
        {merged, "IDS_ZEL_CMD__Error___Number_of_load_case_exceeds_li"},
    };
    for (const auto& [text, key] : faults) {
        host.boxes.clear();
        EXPECT_EQ(import(1, text), 0) << key;
        EXPECT_THAT(host.keys(), ElementsAre(key));
    }
    EXPECT_THAT(stored(), IsEmpty());
}

TEST_F(LcbImport, AFileWithoutCombinationsChangesNothing)
{
    const CString before = model->undoName();
    zel::test::NoticeLog log;
    EXPECT_NE(import(1, "** nothing but a comment\n\n"), 0);
    EXPECT_THAT(log.notices, IsEmpty());
    EXPECT_THAT(host.boxes, IsEmpty());
    EXPECT_EQ(model->undoName(), before);
}

TEST_F(LcbImport, ANameThatTheModelHasIsLeftToTheModelToTell)
{
    ASSERT_NE(import(1, "5,x,1,1"), 0);
    EXPECT_EQ(import(1, "4,x,1,1\n5,x,2,1\n"), 0);
    EXPECT_THAT(host.boxes, SizeIs(1));
    EXPECT_TRUE(host.boxes[0].key.starts_with("IDS_DB_")) << host.boxes[0].key;
    EXPECT_THAT(stored(), SizeIs(1));
    EXPECT_NE(import(2, "5,x,1,1"), 0) << "names are a space of their own in each kind";
}

TEST_F(LcbImport, AsksForTheFile)
{
    host.file(write("tower.lcb", "1,x,1,1\n"));
    EXPECT_NE(zel::lcb::importFile(2), 0);
    EXPECT_THAT(host.fileFilters, ElementsAre("Load Combination File(*.lcb)|*.lcb|All File(*.*)|*.*||"));
    EXPECT_THAT(stored(2), SizeIs(1));
}

TEST_F(LcbImport, CancelledItDoesNothing)
{
    host.file(std::nullopt);
    EXPECT_EQ(zel::lcb::importFile(1), 0);
    EXPECT_THAT(host.boxes, IsEmpty());
    EXPECT_THAT(stored(), IsEmpty());
}

TEST_F(LcbImport, ANameWithoutExtensionGetsTheDefaultOneUnlessAFileBearsIt)
{
    write("tower.lcb", "1,x,1,1\n");
    host.file((folder / "tower").string());
    EXPECT_NE(zel::lcb::importFile(1), 0);
    host.file(write("plain", "2,x,1,1\n"));
    EXPECT_NE(zel::lcb::importFile(1), 0);
    EXPECT_THAT(stored(), SizeIs(2));
}

TEST_F(LcbImport, AFileThatCannotBeOpenedIsNamed)
{
    for (const std::string& path : {(folder / "none.lcb").string(), folder.path().string()}) {
        host.boxes.clear();
        host.file(path);
        EXPECT_EQ(zel::lcb::importFile(1), 0);
        ASSERT_THAT(host.boxes, SizeIs(1));
        EXPECT_EQ(host.boxes[0].key, "IDS_ZEL_CMD__Error___Can_t_open___s__file_");
        EXPECT_EQ(host.boxes[0].text, "Error : Can't open the file '" + path + "'.");
    }
}

}  // namespace
