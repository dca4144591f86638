#include "build_paths.h"
#include "cli/program.h"
#include "modeldb/model_text.h"

#include <algorithm>

namespace {

using cli_test::contents;
using cli_test::Outcome;
using cli_test::zel;

class Play : public cli_test::CliTest {};

TEST_F(Play, ReadsStandardInputAndWritesOneReplyALine)
{
    const Outcome run = zel({"play"}, "# nothing\n{\"do\": \"dialogs\"}\n{\"do\": \"undo\"}\n");
    EXPECT_EQ(run.code, 0) << run.error;
    EXPECT_EQ(run.out, "{\"n\": 2, \"do\": \"dialogs\", \"result\": [], \"events\": []}\n{\"n\": 3, \"do\": \"undo\", \"result\": 0, \"events\": []}\n");
    EXPECT_EQ(run.error, "");
}

TEST_F(Play, ExitCodesTellHowTheJournalWent)
{
    EXPECT_EQ(zel({"play"}, "").code, 0);
    EXPECT_EQ(zel({"play"}, "{\"do\": \"open\", \"class\": \"CDgnGenSeisFactor\"}\n").code, 1);
    EXPECT_EQ(zel({"play"}, "nonsense\n{\"do\": \"dialogs\"}\n").code, 2);
    const Outcome strict = zel({"play", "--strict"}, "nonsense\n{\"do\": \"dialogs\"}\n");
    EXPECT_EQ(strict.code, 2);
    EXPECT_EQ(std::count(strict.out.begin(), strict.out.end(), '\n'), 1);
}

TEST_F(Play, WritesTheTranscriptToAFileButNeverOverItsInput)
{
    cli_test::write(path("j.jsonl"), "{\"do\": \"dialogs\"}\n");
    EXPECT_EQ(zel({"play", "--script", path("j.jsonl"), "--transcript", path("t.jsonl")}).code, 0);
    EXPECT_EQ(contents(path("t.jsonl")), "{\"n\": 1, \"do\": \"dialogs\", \"result\": [], \"events\": []}\n");
    EXPECT_EQ(zel({"play", "--script", path("j.jsonl"), "--transcript", path("j.jsonl")}).code, 1);
    EXPECT_EQ(contents(path("j.jsonl")), "{\"do\": \"dialogs\"}\n");
    const std::string model = modelWithTwoCases("a.qvx");
    const std::string before = contents(model);
    EXPECT_EQ(zel({"play", model, "--transcript", model}).code, 1);
    EXPECT_EQ(contents(model), before);
}

TEST_F(Play, HostCommandsAreCarriedOutOrOnlyTold)
{
    const std::string journal =
        "{\"do\": \"open\", \"class\": \"CDgnGenSeisFactor\"}\n{\"do\": \"press\", \"control\": \"...\"}\n{\"do\": \"dialogs\"}\n{\"do\": \"close\"}\n";
    EXPECT_NE(zel({"play"}, journal).out.find("[\"CCMLoadCaseDlg\", \"CDgnGenSeisFactor\"]"), std::string::npos);
    const Outcome told = zel({"play", "--host-commands", "log"}, journal);
    EXPECT_NE(told.out.find("\"number\": 32869"), std::string::npos);
    EXPECT_NE(told.out.find("[\"CDgnGenSeisFactor\"]"), std::string::npos) << told.out;
}

TEST_F(Play, ShowsMessageKeysWhenAsked)
{
    const std::string journal = "{\"do\": \"modeless\", \"id\": \"D_CMD_MODEL_LOAD_LOADCASE\"}\n{\"do\": \"press\", \"control\": \"Delete\"}\n";
    EXPECT_EQ(zel({"play"}, journal).out.find("IDS_"), std::string::npos);
    EXPECT_NE(zel({"play", "--show-keys"}, journal).out.find("[IDS_ZEL_CMD__Error___No_selected_static_load_case_]"), std::string::npos);
}

// The life of four load cases through the form, and what a later run finds in the file.
TEST_F(Play, WhatTheFormWroteIsWhatALaterDumpShows)
{
    const std::string model = path("cases.qvx");
    ASSERT_EQ(zel({"new", model}).code, 0);
    const Outcome played = zel({"play", model, "--strict", "--script", zel::test::sourceFolder() + "/tests/journals/static_load_cases.jsonl"});
    EXPECT_EQ(played.code, 0) << played.error;
    EXPECT_EQ(zel::test::withoutEmptyTables(zel({"dump", model}).out),
              R"({"format": "zel-model", "version": 1, "units": {"length": "M", "force": "KN"},
 "STLD": [
  {"key": 4, "name": "EX", "no": 1, "type": "E", "description": "", "selfWeightFactor": 0.0, "subLoadCaseCount": 0, "combinationType": 2, "majorCase": 0},
  {"key": 1, "name": "DL", "no": 2, "type": "D", "description": "Dead load with self weight", "selfWeightFactor": -1.0, "subLoadCaseCount": 0, "combinationType": 2, "majorCase": 0},
  {"key": 2, "name": "LL1", "no": 3, "type": "L", "description": "", "selfWeightFactor": 0.0, "subLoadCaseCount": 0, "combinationType": 2, "majorCase": 0},
  {"key": 3, "name": "WX", "no": 4, "type": "W", "description": "", "selfWeightFactor": 0.0, "subLoadCaseCount": 0, "combinationType": 2, "majorCase": 0}]}
)");
}

TEST_F(Play, TheExamplesPlay)
{
    const std::string examples = zel::test::sourceFolder() + "/examples/";
    ASSERT_EQ(zel({"load", examples + "first.json", path("first.qvx")}).code, 0);
    const Outcome played = zel({"play", path("first.qvx"), "--script", examples + "first.jsonl", "--strict"});
    EXPECT_EQ(played.code, 0) << played.out;
}

}  // namespace
