#include "cli/program.h"

#include <algorithm>
#include <cstdlib>
#include <sstream>

namespace {

using cli_test::Outcome;
using cli_test::zel;
using cli_test::zelInto;

const std::vector<std::string> commands{"new", "info", "load", "dump", "play", "generate", "combinations", "import-lcb", "envelopes", "codes", "batch", "help"};

class CommandLine : public cli_test::CliTest {};

TEST_F(CommandLine, AMistypedCommandOrOptionIsAnsweredWithTheNearest)
{
    const Outcome command = zel({"geenrate", "tower.qvx"});
    EXPECT_EQ(command.code, 2);
    EXPECT_EQ(command.error, "zel: there is no command \"geenrate\"; did you mean \"generate\"? \"zel help\" tells more.\n");
    const Outcome option = zel({"generate", "tower.qvx", "--code", "AIK-USD94", "--orthogonel"});
    EXPECT_EQ(option.code, 2);
    EXPECT_EQ(option.error, "zel: \"zel generate\" has no option --orthogonel; did you mean \"--orthogonal\"? \"zel help generate\" tells more.\n");
    EXPECT_EQ(zel({"--replace", "info"}).error, "zel: there is no option --replace in front of a command. \"zel help\" tells more.\n");
}

TEST_F(CommandLine, WhatIsWrongWithAnOptionIsToldInPlainWords)
{
    const std::vector<std::pair<std::vector<std::string>, std::string>> faults{
        {{"combinations", "a", "--format", "xml"}, "--format must be table, json, csv or lcb, not \"xml\"."},
        {{"combinations", "a", "--format", "jsn"}, "--format must be table, json, csv or lcb, not \"jsn\"; did you mean \"json\"?"},
        {{"combinations", "a", "--format"}, "--format needs a value: --format table|json|csv|lcb."},
        {{"combinations", "a", "--kind", "6"}, "--kind must be a whole number from 1 to 5, not \"6\"."},
        {{"generate", "a", "--code", "x", "--alpha-h", "high"}, "--alpha-h must be a number, not \"high\"."},
        {{"generate", "a"}, "\"zel generate\" needs --code: name of the design code; \"zel codes\" lists them."},
        {{"generate", "a", "--code", "x", "--code", "y"}, "--code is given 2 times; give it once."},
        {{"generate", "a", "--code", "x", "--add", "--replace"}, "--add and --replace can't stand beside each other."},
        {{"info", "a", "--json=yes"}, "--json takes no value."},
        {{"info"}, "\"zel info\" needs MODEL: the model file."},
        {{"dump", "a", "b"}, "\"zel dump\" takes no further argument \"b\"."},
    };
    for (const auto& [arguments, sentence] : faults) {
        const Outcome run = zel(arguments);
        EXPECT_EQ(run.code, 2) << sentence;
        EXPECT_EQ(run.error, "zel: " + sentence + " \"zel help " + arguments[0] + "\" tells more.\n");
        EXPECT_EQ(run.out, "");
    }
}

TEST_F(CommandLine, ANumberIsNoNameOfAFormat)
{
    const std::string model = modelWithTwoCases("a.qvx");
    for (const std::vector<std::string>& arguments : {std::vector<std::string>{"combinations", model, "--format", "1"},
                                                      {"generate", model, "--code", "AIK-USD94", "--type", "1"},
                                                      {"new", path("b.qvx"), "--length", "2"}}) {
        const Outcome run = zel(arguments);
        EXPECT_EQ(run.code, 2) << arguments[0];
        EXPECT_NE(run.error.find("must be "), std::string::npos) << run.error;
    }
    EXPECT_EQ(zel({"combinations", model, "--format", "JSON"}).code, 0) << "case does not count";
}

TEST_F(CommandLine, HelpAndVersionAreReachedByTheirUsualNames)
{
    EXPECT_EQ(zel({"help"}).out, zel({"--help"}).out);
    for (const std::string& command : commands) {
        const Outcome help = zel({"help", command});
        EXPECT_EQ(help.code, 0) << command;
        EXPECT_EQ(help.out, zel({command, "--help"}).out);
        EXPECT_EQ(help.out, zel({command, "-h"}).out);
        EXPECT_NE(help.out.find("Example:\n  zel " + command), std::string::npos) << help.out;
        EXPECT_NE(zel({"--help"}).out.find("\n  " + command + " "), std::string::npos) << command;
    }
    EXPECT_EQ(zel({"-V"}).out, zel({"--version"}).out);
    EXPECT_TRUE(zel({"-V"}).out.starts_with("zel "));
    const Outcome unknown = zel({"help", "dmup"});
    EXPECT_EQ(unknown.code, 2);
    EXPECT_NE(unknown.error.find("did you mean \"dump\"?"), std::string::npos) << unknown.error;
}

TEST_F(CommandLine, HelpKeepsWithinTheWidthOfTheTerminal)
{
    for (const int width : {50, 80, 132}) {
        setenv("COLUMNS", std::to_string(width).c_str(), 1);
        for (const std::string& command : commands) {
            std::istringstream lines(zel({"help", command}).out);
            for (std::string line; std::getline(lines, line);) {
                const std::size_t words = line.find_first_not_of(' ') == std::string::npos
                    ? 0
                    : std::count(line.begin() + static_cast<long>(line.find_first_not_of(' ')), line.end(), ' ');
                EXPECT_TRUE(line.size() <= static_cast<std::size_t>(width) || words == 0) << command << " at " << width << ":\n" << line;
            }
        }
    }
    unsetenv("COLUMNS");
}

TEST_F(CommandLine, EveryCommandFailsWhenItsStandardOutputCannotBeWritten)
{
    const std::string model = modelWithTwoCases("a.qvx");
    cli_test::write(path("a.lcb"), "1,x,1,1\n");
    const std::string job = R"({"model": {"STLD": [{"name": "DL"}]}, "options": {"code": "AIK-USD94"}})";
    const std::vector<std::pair<std::vector<std::string>, std::string>> jobs{{{"info", model}, ""},
                                                                             {{"info", model, "--json"}, ""},
                                                                             {{"dump", model}, ""},
                                                                             {{"play", model}, "{\"do\": \"dialogs\"}\n"},
                                                                             {{"generate", model, "--code", "AIK-USD94"}, ""},
                                                                             {{"combinations", model}, ""},
                                                                             {{"import-lcb", model, path("a.lcb")}, ""},
                                                                             {{"codes"}, ""},
                                                                             {{"batch"}, job + "\n"},
                                                                             {{"help"}, ""},
                                                                             {{"--help"}, ""},
                                                                             {{"--version"}, ""},
                                                                             {{"generate", model, "--code", "AIK-USD94", "--why-not"}, ""}};
    for (const auto& [arguments, input] : jobs) {
        const Outcome run = zelInto("/dev/full", arguments, input);
        EXPECT_EQ(run.code, 1) << arguments[0];
        EXPECT_TRUE(run.error.starts_with("zel: ")) << arguments[0] << ": " << run.error;
    }
}

}  // namespace
