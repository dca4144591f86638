#include "cli/program.h"

#include "build_paths.h"

#include <algorithm>
#include <cstdlib>
#include <sstream>

#include <sys/wait.h>

namespace {

using cli_test::contents;
using cli_test::Outcome;
using cli_test::zel;

namespace fs = std::filesystem;

const fs::path source = zel::test::sourceFolder();

/// A command that a page shows behind "$ ", with its input up to the END of a here-document, and what it prints. A line "..." stands for any lines, and
/// "..." within a line for any text.
struct Shown {
    std::string command;
    std::vector<std::string> output;
};

/// README first, as a reader begins there; then the pages by name.
std::vector<fs::path> pages()
{
    std::vector<fs::path> found;
    for (const auto& entry : fs::directory_iterator(source / "docs")) {
        if (entry.path().extension() == ".md")
            found.push_back(entry.path());
    }
    std::sort(found.begin(), found.end());
    found.insert(found.begin(), source / "README.md");
    return found;
}

std::vector<Shown> commandsIn(const fs::path& page)
{
    std::vector<Shown> shown;
    std::istringstream lines(contents(page));
    bool inBlock = false;
    bool inCommand = false;
    bool inInput = false;
    for (std::string line; std::getline(lines, line);) {
        if (inInput) {
            shown.back().command += line + "\n";
            inInput = line != "END";
        } else if (line.starts_with("```")) {
            inBlock = !inBlock;
            inCommand = false;
        } else if (inBlock && line.starts_with("$ ")) {
            shown.push_back({line.substr(2) + "\n", {}});
            inCommand = true;
            inInput = line.ends_with("<<'END'");
        } else if (inCommand) {
            shown.back().output.push_back(line);
        }
    }
    return shown;
}

bool isLike(std::string_view line, std::string_view wanted)
{
    const std::size_t dots = wanted.find("...");
    if (dots == std::string_view::npos)
        return line == wanted;
    if (!line.starts_with(wanted.substr(0, dots)))
        return false;
    const std::string_view rest = wanted.substr(dots + 3);
    for (std::size_t at = dots; at <= line.size(); ++at) {
        if (isLike(line.substr(at), rest))
            return true;
    }
    return false;
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
            found = isLike(line, wanted);
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

class Documents : public cli_test::CliTest {
protected:
    /// Runs a command line of a page in the test's folder, as its reader would at the top of the source tree.
    [[nodiscard]] Outcome shell(const std::string& command) const
    {
        cli_test::write(folder / "command", command);
        const std::string line = "cd '" + folder.string() + "' && PATH='" + zel::test::programFolder() + "':\"$PATH\" sh ./command > out.txt 2>&1";
        const int status = std::system(line.c_str());
        Outcome ended;
        ended.code = WIFEXITED(status) ? WEXITSTATUS(status) : -1;
        ended.out = contents(folder / "out.txt");
        return ended;
    }
};

// One after the other in one folder: what a page makes must not stand in the way of the next one.
TEST_F(Documents, EveryCommandOfEveryPagePrintsWhatThePageShows)
{
    fs::create_directory_symlink(source / "examples", folder / "examples");
    fs::create_directories(folder / "build/release");
    fs::create_directory_symlink(zel::test::programFolder(), folder / "build/release/bin");
    std::size_t count = 0;
    for (const fs::path& page : pages()) {
        for (const Shown& shown : commandsIn(page)) {
            const Outcome run = shell(shown.command);
            const bool fails = std::any_of(shown.output.begin(), shown.output.end(),
                                           [](const std::string& line) { return line.starts_with("zel: ") || line.starts_with("{\"error\""); });
            EXPECT_EQ(run.code, fails ? 1 : 0) << page.filename() << ": " << shown.command << run.out.substr(0, 2000);
            EXPECT_TRUE(shown.output.empty() ? testing::AssertionSuccess() : agrees(run.out, shown.output)) << page.filename() << ": " << shown.command;
            ++count;
        }
    }
    EXPECT_GE(count, 20U);
}

// What stands in a block without "$ " is not run: a synopsis with its brackets, and what needs programs of other makers.
TEST_F(Documents, NoCommandOfThePagesIsLeftOut)
{
    for (const fs::path& page : pages()) {
        std::istringstream lines(contents(page));
        bool inBlock = false;
        for (std::string line; std::getline(lines, line);) {
            if (line.starts_with("```"))
                inBlock = !inBlock;
            const bool isCommand = inBlock && line.starts_with("zel ");
            EXPECT_TRUE(!isCommand || line.find('[') != std::string::npos) << page.filename() << ": write \"$ " << line << "\", so that it is run";
        }
    }
}

TEST_F(Documents, EveryCommandAndOptionStandsOnThePageOfTheCommandLine)
{
    const std::string page = contents(source / "docs/command-line.md");
    std::istringstream help(zel({"help"}).out);
    std::size_t commands = 0;
    bool listed = false;
    for (std::string line; std::getline(help, line); listed = listed && !line.empty()) {
        listed = listed || line == "Commands:";
        if (!listed || !line.starts_with("  ") || line[2] == ' ')
            continue;
        const std::string command = line.substr(2, line.find(' ', 2) - 2);
        ++commands;
        EXPECT_NE(page.find("`zel " + command), std::string::npos) << command;
        std::istringstream options(zel({"help", command}).out);
        for (std::string text; std::getline(options, text);) {
            if (!text.starts_with("  --"))
                continue;
            const std::string option = text.substr(2, text.find_first_of(" ,", 2) - 2);
            EXPECT_NE(page.find(option), std::string::npos) << command << " " << option;
        }
    }
    EXPECT_GE(commands, 12U);
}

TEST_F(Documents, JournalsShowTheTranscriptOfTheirExample)
{
    const std::string page = contents(zel::test::sourceFolder() + "/docs/journals.md");
    std::istringstream lines(page.substr(page.find("## An example")));
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
