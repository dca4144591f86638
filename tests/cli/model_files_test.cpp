#include "cli/program.h"
#include "modeldb/model_text.h"

namespace {

using cli_test::contents;
using cli_test::Outcome;
using cli_test::zel;

class ModelFiles : public cli_test::CliTest {};

constexpr const char* twoCases = R"({"format": "zel-model", "version": 1, "STLD": [{"name": "DL"}, {"name": "LL"}]})";

TEST_F(ModelFiles, NewMakesAnEmptyModelInTheGivenUnits)
{
    const Outcome made = zel({"new", path("a.qvx"), "--length", "m", "--force", "TON"});
    EXPECT_EQ(made.code, 0) << made.error;
    EXPECT_EQ(made.out + made.error, "");
    EXPECT_EQ(zel::test::withoutEmptyTables(zel({"dump", path("a.qvx")}).out),
              "{\"format\": \"zel-model\", \"version\": 1, \"units\": {\"length\": \"M\", \"force\": \"TON\"}}\n");
    EXPECT_EQ(std::distance(std::filesystem::directory_iterator(folder), {}), 1) << "a closed model is one file";
}

TEST_F(ModelFiles, NewLeavesAnExistingFileAlone)
{
    cli_test::write(path("a.qvx"), "mine");
    const Outcome made = zel({"new", path("a.qvx")});
    EXPECT_EQ(made.code, 1);
    EXPECT_NE(made.error.find(path("a.qvx")), std::string::npos) << made.error;
    EXPECT_EQ(contents(path("a.qvx")), "mine");
}

TEST_F(ModelFiles, InfoTellsTheFileAndWhatIsInIt)
{
    const std::string model = modelWithTwoCases("a.qvx");
    const Outcome info = zel({"info", model});
    EXPECT_EQ(info.code, 0) << info.error;
    for (const std::string& line : {"Model           " + model, "Size            " + std::to_string(std::filesystem::file_size(model)) + " bytes",
                                    std::string("Schema version  2"), std::string("Application id  0x5A454C31"), std::string("Hashes          ok"),
                                    std::string("Units           MM, KN"), std::string("  STLD           2  static load case")})
        EXPECT_NE(info.out.find(line), std::string::npos) << line << "\n" << info.out;
    const Outcome json = zel({"info", model, "--json"});
    EXPECT_NE(json.out.find(R"("tables": {"STLD": 2})"), std::string::npos) << json.out;
}

TEST_F(ModelFiles, ReadingLeavesTheFileByteForByte)
{
    const std::string model = modelWithTwoCases("a.qvx");
    const std::string before = contents(model);
    EXPECT_EQ(zel({"info", model}).code, 0);
    EXPECT_EQ(zel({"dump", model}).code, 0);
    EXPECT_EQ(zel({"play", model}, "{\"do\": \"dialogs\"}\n").code, 0);
    EXPECT_EQ(contents(model), before);
}

TEST_F(ModelFiles, WhatIsDumpedLoadsIntoTheSameModel)
{
    const std::string model = modelWithTwoCases("a.qvx");
    const std::string dump = zel({"dump", model}).out;
    cli_test::write(path("a.json"), dump);
    EXPECT_EQ(zel({"load", path("a.json"), path("b.qvx")}).code, 0);
    EXPECT_EQ(zel({"dump", path("b.qvx")}).out, dump);
}

TEST_F(ModelFiles, LoadRefusesAnExistingModelUnlessItIsToReplaceIt)
{
    const std::string model = modelWithTwoCases("a.qvx");
    const std::string before = contents(model);
    const Outcome refused = zel({"load", "-", model}, twoCases);
    EXPECT_EQ(refused.code, 1);
    EXPECT_NE(refused.error.find("--replace"), std::string::npos) << refused.error;
    EXPECT_EQ(contents(model), before);
    EXPECT_EQ(zel({"load", "-", model, "--replace"}, R"({"format": "zel-model", "version": 1})").code, 0);
    EXPECT_NE(zel({"dump", model}).out.find("\"STLD\": []"), std::string::npos);
    EXPECT_EQ(zel({"load", "-", path("new.qvx"), "--replace"}, twoCases).code, 0) << "nothing to replace is no fault";
}

TEST_F(ModelFiles, AFailingLoadLeavesTheOldFileUntouchedAndNothingBeside)
{
    const std::string model = modelWithTwoCases("a.qvx");
    const std::string before = contents(model);
    for (const char* text : {"", "{", R"({"format": "zel-model", "version": 1, "STLD": [{"name": "A"}, {"name": "a"}]})",
                             R"({"format": "zel-model", "version": 1, "STLD": [{"name": 1}]})", R"({"format": "other"})"}) {
        const Outcome failed = zel({"load", "-", model, "--replace"}, text);
        EXPECT_EQ(failed.code, 1) << text;
        EXPECT_NE(failed.error.find("standard input"), std::string::npos) << failed.error;
        EXPECT_EQ(contents(model), before) << text;
    }
    EXPECT_EQ(std::distance(std::filesystem::directory_iterator(folder), {}), 1);
    const Outcome failed = zel({"load", "-", path("fresh.qvx")}, R"({"format": "zel-model", "version": 1, "STLD": [{"name": "A"}, {"nam": "B"}]})");
    EXPECT_EQ(failed.error, "zel: standard input: STLD[1].nam: there is no such field; did you mean \"name\"? Nothing was written.\n");
    EXPECT_FALSE(std::filesystem::exists(path("fresh.qvx")));
}

TEST_F(ModelFiles, LoadReplacesModelsOnly)
{
    cli_test::write(path("drawing.dwg"), "not a model");
    const Outcome refused = zel({"load", "-", path("drawing.dwg"), "--replace"}, twoCases);
    EXPECT_EQ(refused.code, 1);
    EXPECT_EQ(contents(path("drawing.dwg")), "not a model");
}

TEST_F(ModelFiles, AFileThatCantBeReadIsNamedWithTheWayOut)
{
    for (const std::vector<std::string>& arguments : {std::vector<std::string>{"info", path("none.qvx")},
                                                      {"dump", path("none.qvx")},
                                                      {"play", path("none.qvx")},
                                                      {"load", path("none.json"), path("b.qvx")},
                                                      {"load", folder.string(), path("b.qvx")},
                                                      {"play", "--script", path("none.jsonl")},
                                                      {"new", path("no/folder/a.qvx")},
                                                      {"play", "--transcript", path("no/folder/t.jsonl")}}) {
        const Outcome run = zel(arguments);
        EXPECT_EQ(run.code, 1) << arguments[0];
        EXPECT_TRUE(run.error.starts_with("zel: ")) << run.error;
        EXPECT_NE(run.error.find(folder.string()), std::string::npos) << run.error;
        EXPECT_EQ(run.out, "") << arguments[0];
    }
    cli_test::write(path("text.qvx"), "a text");
    EXPECT_EQ(zel({"dump", path("text.qvx")}).code, 1);
    EXPECT_EQ(contents(path("text.qvx")), "a text");
}

TEST_F(ModelFiles, WrongUsageIsExitCodeTwo)
{
    for (const std::vector<std::string>& arguments : {std::vector<std::string>{},
                                                      {"nothing"},
                                                      {"new"},
                                                      {"new", "a.qvx", "--length", "YARD"},
                                                      {"dump"},
                                                      {"dump", "a", "b"},
                                                      {"load", "-"},
                                                      {"play", "--host-commands", "maybe"},
                                                      {"info", "a.qvx", "--verbose"}}) {
        const Outcome run = zel(arguments);
        EXPECT_EQ(run.code, 2) << (arguments.empty() ? "" : arguments[0]);
        EXPECT_TRUE(run.error.starts_with("zel: ")) << run.error;
        EXPECT_EQ(run.out, "");
    }
    EXPECT_FALSE(std::filesystem::exists("a.qvx"));
}

TEST_F(ModelFiles, EveryCommandHasHelpWithAnExample)
{
    const Outcome top = zel({"--help"});
    EXPECT_EQ(top.code, 0);
    for (const std::string command : {"new", "info", "load", "dump", "play"}) {
        EXPECT_NE(top.out.find(command), std::string::npos);
        const Outcome help = zel({command, "--help"});
        EXPECT_EQ(help.code, 0) << command;
        EXPECT_NE(help.out.find("Example:\n  zel " + command), std::string::npos) << help.out;
    }
    EXPECT_EQ(zel({"--version"}).out.substr(0, 4), "zel ");
}

}  // namespace
