#include "cli/program.h"

#include "build_paths.h"

#include <sstream>

namespace {

using cli_test::contents;
using cli_test::Outcome;
using cli_test::zel;

/// A command that a document shows after "$ zel", with what it prints. A line "..." stands for any lines.
struct Shown {
    std::vector<std::string> words;
    std::vector<std::string> output;
};

/// The words of a command line; quotes keep blanks together.
std::vector<std::string> wordsOf(const std::string& command)
{
    std::vector<std::string> words(1);
    bool quoted = false;
    for (const char letter : command) {
        if (letter == '"')
            quoted = !quoted;
        else if (letter == ' ' && !quoted)
            words.emplace_back();
        else
            words.back() += letter;
    }
    return words;
}

std::vector<Shown> commandsIn(const std::string& document)
{
    std::vector<Shown> shown;
    std::istringstream lines(contents(zel::test::sourceFolder() + "/docs/" + document));
    bool inBlock = false;
    bool inCommand = false;
    for (std::string line; std::getline(lines, line);) {
        if (line.starts_with("```")) {
            inBlock = !inBlock;
            inCommand = false;
        } else if (inBlock && line.starts_with("$ zel ")) {
            shown.push_back({wordsOf(line.substr(6)), {}});
            inCommand = true;
        } else if (inCommand) {
            shown.back().output.push_back(line);
        }
    }
    return shown;
}

/// Whether the printed lines are the shown ones.
testing::AssertionResult agrees(const std::string& printed, const std::vector<std::string>& shown)
{
    std::istringstream lines(printed);
    std::string line;
    bool any = false;
    for (const std::string& wanted : shown) {
        if (wanted == "...") {
            any = true;
            continue;
        }
        bool found = false;
        while (!found && std::getline(lines, line)) {
            found = line == wanted;
            if (!found && !any)
                return testing::AssertionFailure() << "shown:   " << wanted << "\nprinted: " << line;
        }
        if (!found)
            return testing::AssertionFailure() << "not printed: " << wanted << "\nin\n" << printed;
        any = false;
    }
    if (!any && std::getline(lines, line))
        return testing::AssertionFailure() << "not shown: " << line;
    return testing::AssertionSuccess();
}

class Documents : public cli_test::CliTest {};

TEST_F(Documents, CombinationsShowWhatTheCommandsPrint)
{
    ASSERT_EQ(zel({"load", "-", path("nowind.qvx")},
                  R"({"format": "zel-model", "version": 1, "STLD": [{"name": "DL"}, {"name": "LL", "type": "L"}, {"name": "TEMP", "type": "USER"}]})")
                  .code,
              0);
    const std::vector<Shown> commands = commandsIn("combinations.md");
    ASSERT_GE(commands.size(), 8U);
    for (Shown shown : commands) {
        std::string whole;
        for (std::string& word : shown.words) {
            whole += " " + word;
            if (word.ends_with(".json"))
                word = zel::test::sourceFolder() + "/" + word;
            else if (word.ends_with(".qvx"))
                word = path(word);
        }
        const Outcome run = zel(shown.words);
        EXPECT_EQ(run.code, 0) << whole << "\n" << run.error;
        if (!shown.output.empty()) {
            EXPECT_TRUE(agrees(run.out, shown.output)) << whole;
        }
    }
}

TEST_F(Documents, JournalsShowTheTranscriptOfTheirExample)
{
    std::istringstream lines(contents(zel::test::sourceFolder() + "/docs/journals.md"));
    std::string journal;
    std::string transcript;
    for (std::string line; std::getline(lines, line);) {
        if (line.starts_with("{\"do\": "))
            journal += line + "\n";
        else if (line.starts_with("{\"n\": "))
            transcript += line + "\n";
    }
    EXPECT_FALSE(journal.empty());
    EXPECT_EQ(zel({"play"}, journal).out, transcript);
}

}  // namespace
