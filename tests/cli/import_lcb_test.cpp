#include "cli/program.h"

#include <nlohmann/json.hpp>

namespace {

using cli_test::contents;
using cli_test::Outcome;
using cli_test::zel;
using nlohmann::json;

/// Files of load combinations into a model with the load cases DL and LL.
class ImportLcb : public cli_test::CliTest {
protected:
    void SetUp() override
    {
        CliTest::SetUp();
        model = modelWithTwoCases("two.qvx");
        file = path("tower.lcb");
    }

    [[nodiscard]] json stored(const char* kind = "1") const
    {
        return json::parse(zel({"combinations", model, "--kind", kind, "--format", "json"}).out).at("rows");
    }

    std::string model;
    std::string file;
};

TEST_F(ImportLcb, StoresTheCombinationsAndTellsHowMany)
{
    cli_test::write(file, "12, any, 1, 1.2, 2, 1.6, ** dead and live\n7, any, 2, 1\n12, more, 2, 0.5\n");
    const Outcome run = zel({"import-lcb", model, file});
    EXPECT_EQ(run.code, 0) << run.error;
    EXPECT_EQ(run.out, "2 load combinations imported\n");
    EXPECT_EQ(run.error, "");
    const json rows = stored();
    ASSERT_EQ(rows.size(), 2U);
    EXPECT_EQ(rows[0].at("name"), "LCB12");
    EXPECT_EQ(rows[0].at("items"),
              json::parse(R"([{"type": 1, "key": 1, "factor": 1.2}, {"type": 1, "key": 2, "factor": 1.6}, {"type": 1, "key": 2, "factor": 0.5}])"));
    EXPECT_EQ(rows[1].at("name"), "LCB7");
}

TEST_F(ImportLcb, TheKindIsChosen)
{
    cli_test::write(file, "1,x,1,1\n");
    EXPECT_EQ(zel({"import-lcb", model, file, "--kind", "4"}).out, "1 load combination imported\n");
    EXPECT_EQ(stored("4").size(), 1U);
    EXPECT_EQ(stored("1").size(), 0U);
}

TEST_F(ImportLcb, ReadsStandardInput)
{
    EXPECT_EQ(zel({"import-lcb", model, "-"}, "1,x,1,1\n2,x,2,1\n").out, "2 load combinations imported\n");
    EXPECT_EQ(stored().size(), 2U);
    const Outcome bad = zel({"import-lcb", model, "-"}, "1,x\n");
    EXPECT_EQ(bad.code, 1);
    EXPECT_EQ(bad.error, "zel: standard input: Error : No load case and factor in line 1. Nothing was imported.\n");
}

TEST_F(ImportLcb, AFaultIsToldWithItsLineAndLeavesTheModelByteForByte)
{
    const std::string before = contents(model);
    cli_test::write(file, "1,x,1,1\n2,x,3,1\n");
    const Outcome run = zel({"import-lcb", model, file});
    EXPECT_EQ(run.code, 1);
    EXPECT_EQ(run.out, "");
    EXPECT_EQ(run.error, "zel: \"" + file + "\": Error : Load case 3 in line 2 does not exist. Nothing was imported.\n");
    EXPECT_EQ(contents(model), before);
}

TEST_F(ImportLcb, ANameThatTheModelHasIsRefusedWithItsReason)
{
    cli_test::write(file, "1,x,1,1\n");
    ASSERT_EQ(zel({"import-lcb", model, file}).code, 0);
    const Outcome again = zel({"import-lcb", model, file});
    EXPECT_EQ(again.code, 1);
    EXPECT_NE(again.error.find("LCB1"), std::string::npos) << again.error;
    EXPECT_TRUE(again.error.ends_with(" Nothing was imported.\n")) << again.error;
    EXPECT_EQ(stored().size(), 1U);
}

TEST_F(ImportLcb, AFileWithoutCombinationsIsNoFault)
{
    const std::string before = contents(model);
    cli_test::write(file, "** nothing\n");
    const Outcome run = zel({"import-lcb", model, file});
    EXPECT_EQ(run.code, 0);
    EXPECT_EQ(run.out, "0 load combinations imported\n");
    EXPECT_EQ(contents(model), before);
}

TEST_F(ImportLcb, WhatCombinationsExportComesBackTheSame)
{
    cli_test::write(file, "1,x,1,1.25,2,-0.1\n2,y,2,0.6666666666666666\n");
    ASSERT_EQ(zel({"import-lcb", model, file}).code, 0);
    ASSERT_EQ(zel({"combinations", model, "--format", "lcb", "--out", path("out.lcb")}).code, 0);
    ASSERT_EQ(zel({"import-lcb", model, path("out.lcb"), "--kind", "2"}).code, 0);
    json there = stored("2");
    for (json& row : there)
        row["kind"] = 1;
    EXPECT_EQ(there, stored("1"));
}

TEST_F(ImportLcb, FilesThatCannotBeReadAndWrongUsageAreTold)
{
    const Outcome missing = zel({"import-lcb", model, path("none.lcb")});
    EXPECT_EQ(missing.code, 1);
    EXPECT_NE(missing.error.find(path("none.lcb")), std::string::npos) << missing.error;
    EXPECT_EQ(zel({"import-lcb", model, folder.string()}).code, 1);
    cli_test::write(file, "1,x,1,1\n");
    EXPECT_EQ(zel({"import-lcb", path("none.qvx"), file}).code, 1);
    EXPECT_EQ(zel({"import-lcb", model}).code, 2);
    EXPECT_EQ(zel({"import-lcb", model, file, "--kind", "6"}).code, 2);
    EXPECT_EQ(stored().size(), 0U);
}

TEST_F(ImportLcb, ALineWhoseFactorsAreAllZeroIsRefusedWithItsNumber)
{
    const std::string before = contents(model);
    cli_test::write(file, "1,x,1,1\n2,x,1,0.0,2,0\n");
    const Outcome run = zel({"import-lcb", model, file});
    EXPECT_EQ(run.code, 1);
    EXPECT_EQ(run.error, "zel: \"" + file + "\": All factors in line 2 are 0. Nothing was imported.\n");
    EXPECT_EQ(contents(model), before);
}

TEST_F(ImportLcb, HelpHoldsAnExampleAndTheExitCodes)
{
    const Outcome help = zel({"import-lcb", "--help"});
    EXPECT_EQ(help.code, 0);
    for (const char* part : {"zel import-lcb tower.qvx tower.lcb", "12, any, 1, 1.2, 2, 1.6, ** dead and live", "Exit status: 0", "--kind"})
        EXPECT_NE(help.out.find(part), std::string::npos) << part << "\n" << help.out;
}

}  // namespace
