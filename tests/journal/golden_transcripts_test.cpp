#include "journal/journal_fixture.h"

#include "platform/messages/message_catalogue.h"

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <iterator>

namespace {

namespace fs = std::filesystem;

const fs::path folder = fs::path(ZEL_SOURCE_DIR) / "tests" / "journals";

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

class GoldenTranscripts : public journal_test::JournalTest, public testing::WithParamInterface<std::string> {
protected:
    void SetUp() override { zel::MessageCatalogue::builtIn().showKeys(GetParam().ends_with(".keys")); }
    void TearDown() override
    {
        document.reset();    // closes the dialogs
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
        EXPECT_EQ(found, wanted) << GetParam() << ".expected, line " << line << "; tests/journals/accept shows the difference";
    }
    EXPECT_FALSE(std::getline(given, found)) << "goes on with " << found;
}

INSTANTIATE_TEST_SUITE_P(All, GoldenTranscripts, testing::ValuesIn(journals()), [](const auto& journal) {
    std::string name = journal.param;
    std::replace_if(name.begin(), name.end(), [](char letter) { return letter == '.' || letter == '-'; }, '_');
    return name;
});

}  // namespace
