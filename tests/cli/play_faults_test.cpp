#include "cli/program.h"

#include <algorithm>

namespace {

using cli_test::Outcome;
using cli_test::zel;
using cli_test::zelWithSmallFiles;

constexpr std::size_t smallFile = 100 << 10;

/// Journals whose end is not the end of the matter.
class PlayFaults : public cli_test::CliTest {
protected:
    /// Adds a load case with a description that a file of `smallFile` bytes can't take up, then asks twice what is open.
    static std::string journal()
    {
        return R"({"do": "db", "op": "add", "table": "STLD", "record": {"name": "BIG", "description": ")" + std::string(3 * smallFile, 'x') +
            "\"}}\n{\"do\": \"dialogs\"}\n{\"do\": \"dialogs\"}\n";
    }
    static long lines(const std::string& text) { return std::count(text.begin(), text.end(), '\n'); }
};

TEST_F(PlayFaults, AWriteThatTheFileRefusesIsExitCodeTwoAndASentence)
{
    const std::string model = modelWithTwoCases("a.qvx");
    const Outcome run = zelWithSmallFiles(smallFile, {"play", model}, journal());
    EXPECT_EQ(run.code, 2);
    EXPECT_EQ(lines(run.out), 3) << "the journal goes on";
    EXPECT_NE(run.out.find("could not be written"), std::string::npos) << run.out;
    EXPECT_TRUE(run.error.starts_with("zel: the model's file refused a write")) << run.error;
    EXPECT_EQ(zel({"dump", model}).out.find("BIG"), std::string::npos);
}

TEST_F(PlayFaults, AStrictJournalStopsAtAWriteThatTheFileRefuses)
{
    const std::string model = modelWithTwoCases("a.qvx");
    const Outcome run = zelWithSmallFiles(smallFile, {"play", model, "--strict"}, journal());
    EXPECT_EQ(run.code, 2);
    EXPECT_EQ(lines(run.out), 1) << run.out;
}

TEST_F(PlayFaults, AScriptThatCannotBeReadIsNotAtItsEnd)
{
    const Outcome run = zel({"play", "--script", "/proc/self/mem"});  // opens, and can't be read at its beginning
    EXPECT_EQ(run.code, 1);
    EXPECT_NE(run.error.find("can't be read to its end"), std::string::npos) << run.error;
    EXPECT_EQ(zel({"load", "/proc/self/mem", path("b.qvx")}).code, 1);
    EXPECT_EQ(zel({"import-lcb", modelWithTwoCases("c.qvx"), "/proc/self/mem"}).code, 1);
}

TEST_F(PlayFaults, AHundredNestedModalDialogsAreTheLimit)
{
    std::string journal;
    for (int i = 0; i < 3000; ++i)
        journal += "{\"do\": \"open\", \"class\": \"CDgnGenSeisFactor\"}\n";
    const Outcome run = zel({"play"}, journal + "{\"do\": \"dialogs\"}\n");
    EXPECT_EQ(run.code, 1) << "they were open at the end";
    const std::string last = run.out.substr(run.out.rfind("{\"n\": 3001"));
    long open = 0;
    for (std::size_t at = last.find("CDgnGenSeisFactor"); at != std::string::npos; at = last.find("CDgnGenSeisFactor", at + 1))
        ++open;
    EXPECT_EQ(open, 100);
    EXPECT_NE(run.out.find("100 dialogs wait inside each other"), std::string::npos);
}

}  // namespace
