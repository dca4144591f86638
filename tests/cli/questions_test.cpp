#include "cli/program.h"

#include <algorithm>

#include <nlohmann/json.hpp>

namespace {

using cli_test::contents;
using cli_test::Outcome;
using cli_test::zel;
using cli_test::zelInto;
using nlohmann::json;

/// Questions about combinations, and results that do not arrive: neither changes the model.
class Questions : public cli_test::CliTest {
protected:
    void SetUp() override
    {
        CliTest::SetUp();
        model = path("four.qvx");
        ASSERT_EQ(zel({"load", "-", model},
                      R"({"STLD": [{"name": "DL", "type": "D"}, {"name": "LL", "type": "L"}, {"name": "WX", "type": "W"}, {"name": "EX", "type": "E"}]})")
                      .code,
                  0);
    }

    [[nodiscard]] Outcome generate(const std::vector<std::string>& more) const
    {
        std::vector<std::string> words{"generate", model, "--code", "AIK-USD94"};
        words.insert(words.end(), more.begin(), more.end());
        return zel(words);
    }
    [[nodiscard]] json stored() const { return json::parse(zel({"combinations", model, "--format", "json"}).out).at("rows"); }

    std::string model;
};

TEST_F(Questions, NeverStoreWhatTheyAskAbout)
{
    const std::string before = contents(model);
    EXPECT_EQ(generate({"--explain", "gLCB7"}).code, 0);
    EXPECT_EQ(generate({"--why-not"}).code, 0);
    EXPECT_EQ(generate({"--replace", "--explain", "gLCB7"}).code, 0);
    EXPECT_EQ(generate({"--replace", "--why-not"}).code, 0);
    EXPECT_EQ(contents(model), before);
    ASSERT_EQ(generate({}).code, 0);
    const std::string filled = contents(model);
    EXPECT_EQ(generate({"--replace", "--why-not", "--scale", "EX=2"}).code, 0);
    EXPECT_EQ(contents(model), filled);
}

TEST_F(Questions, AStoredCombinationIsExplainedAsItIsStored)
{
    ASSERT_EQ(generate({}).code, 0);
    ASSERT_EQ(generate({}).code, 0) << "the same again, as gLCB17 to gLCB32";
    const Outcome run = generate({"--explain", "gLCB20"});
    EXPECT_EQ(run.code, 0) << run.error;
    EXPECT_TRUE(run.out.starts_with("gLCB20: (1.0D + 1.0L + 1.0EX)/1.5\nCode       AIK-USD94, row ")) << run.out;
    EXPECT_NE(run.out.find("  EX  0.6666666667 = "), std::string::npos) << run.out;
}

TEST_F(Questions, AStoredCombinationOfUnknownOriginIsRefusedWithTheWayOut)
{
    ASSERT_EQ(generate({"--scale", "EX=2"}).code, 0);
    const Outcome run = generate({"--explain", "gLCB4"});
    EXPECT_EQ(run.code, 1);
    EXPECT_EQ(run.out, "");
    EXPECT_NE(run.error.find("--replace"), std::string::npos) << run.error;
    const Outcome anew = generate({"--replace", "--explain", "gLCB4"});
    EXPECT_TRUE(anew.out.starts_with("gLCB4: (1.0D + 1.0L + 1.0EX)/1.5\n")) << anew.out << anew.error;
    EXPECT_NE(generate({"--explain", "nobody"}).error.find("this run gives no combination \"nobody\""), std::string::npos);
}

TEST_F(Questions, SeveralNamesInAnyCaseAreExplainedInTheirOrder)
{
    const Outcome run = generate({"--explain", "GLCB7,glcb6", "--explain", "gLCB16"});
    EXPECT_EQ(run.code, 0) << run.error;
    const std::size_t seventh = run.out.find("gLCB7: ");
    const std::size_t sixth = run.out.find("\ngLCB6: ");
    const std::size_t last = run.out.find("\ngLCB16: ");
    EXPECT_EQ(seventh, 0U) << run.out;
    EXPECT_LT(seventh, sixth);
    EXPECT_LT(sixth, last);
    EXPECT_NE(last, std::string::npos);
}

TEST_F(Questions, AnswersComeAsJsonToo)
{
    const json explained = json::parse(generate({"--explain", "gLCB7", "--format", "json"}).out);
    ASSERT_EQ(explained.size(), 1U);
    EXPECT_EQ(explained[0].at("name"), "gLCB7");
    EXPECT_EQ(explained[0].at("row").at("flag"), "strength");
    EXPECT_EQ(explained[0].at("factors").size(), 3U);
    EXPECT_EQ(explained[0].at("factors")[2].at("case"), "WX");
    EXPECT_EQ(explained[0].at("factors")[2].at("product")[0].at("what"), "row");
    const json missing = json::parse(generate({"--why-not", "--format", "json"}).out);
    EXPECT_EQ(missing.at("code"), "AIK-USD94");
    EXPECT_GT(missing.at("rowsWithoutResult").size(), 0U);
    EXPECT_EQ(generate({"--why-not", "--format", "csv"}).code, 1);
}

TEST_F(Questions, TheCountsOfRowsSpeakOfTheSameRows)
{
    const json why = json::parse(generate({"--why-not", "--format", "json"}).out);
    const json codes = json::parse(zel({"codes", "--json"}).out);
    const auto code = std::find_if(codes.begin(), codes.end(), [](const json& each) { return each.at("name") == "AIK-USD94"; });
    EXPECT_EQ(why.at("printedRows"), code->at("rows"));
    EXPECT_EQ(json::parse(zel({"codes", "--rows", "AIK-USD94", "--json"}).out).at("rows").size(), code->at("rows").get<std::size_t>());
}

TEST_F(Questions, CodesListTheRowsOfACode)
{
    const Outcome run = zel({"codes", "--rows", "bs8110-97"});
    EXPECT_EQ(run.code, 0) << run.error;
    EXPECT_EQ(std::count(run.out.begin(), run.out.end(), '\n'), 13) << run.out;  // the edition, the titles and eleven rows
    EXPECT_NE(run.out.find("1.2DL + 1.2(LL+LR) + 1.2WL"), std::string::npos) << run.out;
    EXPECT_NE(run.out.find("strength"), std::string::npos);
    const Outcome unknown = zel({"codes", "--rows", "BS8110-79"});
    EXPECT_EQ(unknown.code, 1);
    EXPECT_NE(unknown.error.find("\"BS8110-97\""), std::string::npos) << unknown.error;
}

TEST_F(Questions, AResultThatDoesNotArriveLeavesTheModelAsItWas)
{
    const std::string before = zel({"dump", model}).out;
    const std::vector<std::string> job{"generate", model, "--code", "AIK-USD94"};
    EXPECT_EQ(zelInto("/dev/full", job).code, 1);
    EXPECT_EQ(zel({"dump", model}).out, before);
    EXPECT_EQ(generate({"--out", path("no/folder/x")}).code, 1);
    EXPECT_EQ(zel({"dump", model}).out, before);
    EXPECT_EQ(zel(job).code, 0) << "who runs it again has each combination once";
    EXPECT_EQ(stored().size(), 16U);
}

TEST_F(Questions, AReplacingRunThatGivesNothingLeavesWhatIsStored)
{
    ASSERT_EQ(generate({"--kind", "1"}).code, 0);
    cli_test::write(path("a.lcb"), "1,x,1,1\n");
    ASSERT_EQ(zel({"import-lcb", model, path("a.lcb"), "--kind", "2"}).code, 0);
    EXPECT_EQ(generate({"--kind", "2", "--replace"}).code, 1);
    EXPECT_EQ(stored().size(), 17U);
}

}  // namespace
