#include "journal/journal_fixture.h"

#include "build_paths.h"
#include "platform/messages/message_catalogue.h"

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <iterator>

namespace {

namespace fs = std::filesystem;

const fs::path folder = fs::path(zel::test::sourceFolder()) / "tests" / "journals";

std::string contents(const fs::path& path)
{
    std::ifstream file(path, std::ios::binary);
    EXPECT_TRUE(file) << path << " is missing";
    return {std::istreambuf_iterator<char>(file), {}};
}

std::vector<std::string> journals()
{
    std::vector<std::string> names;
    for (const fs::directory_entry& entry : fs::directory_iterator(folder)) {
        if (entry.path().extension() == ".jsonl")
            names.push_back(entry.path().stem().string());
    }
    std::sort(names.begin(), names.end());
    return names;
}

/// The surroundings of the first place where two lines differ.
std::string difference(const std::string& found, const std::string& wanted)
{
    const auto place = std::mismatch(found.begin(), found.end(), wanted.begin(), wanted.end()).first - found.begin();
    const auto from = static_cast<std::size_t>(std::max<std::ptrdiff_t>(0, place - 60));
    return "  wanted ..." + (from < wanted.size() ? wanted.substr(from, 160) : "") + "\n  found  ..." + (from < found.size() ? found.substr(from, 160) : "") +
        "\n";
}

class GoldenTranscripts : public journal_test::JournalTest, public testing::WithParamInterface<std::string> {
protected:
    void SetUp() override { zel::MessageCatalogue::builtIn().showKeys(GetParam().ends_with(".keys")); }
    void TearDown() override
    {
        document.reset();  // closes the dialogs
        zel::MessageCatalogue::builtIn().showKeys(false);
    }
};

TEST_P(GoldenTranscripts, AJournalGivesTheTranscriptThatWasReviewed)
{
    const journal_test::Played played = play(contents(folder / (GetParam() + ".jsonl")));
    std::istringstream expected(contents(folder / (GetParam() + ".expected")));
    std::istringstream given(played.transcript);
    std::string wanted;
    std::string found;
    for (int line = 1; std::getline(expected, wanted); ++line) {
        ASSERT_TRUE(std::getline(given, found)) << "ends before line " << line;
        EXPECT_TRUE(found == wanted) << GetParam() << ".expected, line " << line << ":\n"
                                     << difference(found, wanted) << "tests/journals/accept shows all of it";
    }
    EXPECT_FALSE(std::getline(given, found)) << "goes on with " << found;
}

INSTANTIATE_TEST_SUITE_P(All, GoldenTranscripts, testing::ValuesIn(journals()), [](const auto& journal) {
    std::string name = journal.param;
    std::replace_if(
        name.begin(), name.end(), [](char letter) { return letter == '.' || letter == '-'; }, '_');
    return name;
});

}  // namespace
