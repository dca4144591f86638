#include "platform/messages/message_catalogue.h"

#include "build_paths.h"
#include "contract/messages.h"

#include <fstream>
#include <random>
#include <regex>
#include <span>
#include <string>
#include <utility>
#include <vector>

#include <gtest/gtest.h>

namespace {

using zel::MessageCatalogue;

/// A catalogue file of these keys and texts, as gettext writes it.
std::vector<unsigned char> moFile(const std::vector<std::pair<std::string, std::string>>& entries, bool bigEndian = false)
{
    std::vector<unsigned char> bytes;
    const auto word = [&](std::size_t value) {
        for (unsigned i = 0; i < 4; ++i)
            bytes.push_back(static_cast<unsigned char>(value >> (8 * (bigEndian ? 3 - i : i))));
    };
    const std::size_t count = entries.size();
    for (const std::size_t value : {std::size_t{0x950412de}, std::size_t{0}, count, std::size_t{28}, 28 + 8 * count, std::size_t{0}, std::size_t{0}})
        word(value);
    std::string texts;
    const std::size_t begin = 28 + 16 * count;
    for (const bool translation : {false, true}) {
        for (const auto& entry : entries) {
            const std::string& text = translation ? entry.second : entry.first;
            word(text.size());
            word(begin + texts.size());
            texts += text + '\0';
        }
    }
    bytes.insert(bytes.end(), texts.begin(), texts.end());
    return bytes;
}

/// Keys of en.po, read as text.
std::vector<std::string> keysOfPoFile()
{
    std::ifstream file(zel::test::sourceFolder() + "/src/platform/messages/en.po");
    std::vector<std::string> keys;
    for (std::string line; std::getline(file, line);) {
        const std::string begin = "msgid \"";
        if (line.rfind(begin, 0) == 0 && line.size() > begin.size() + 1)
            keys.push_back(line.substr(begin.size(), line.size() - begin.size() - 1));
    }
    return keys;
}

/// Puts the plain texts back whatever happens in a test.
struct ShowKeys {
    explicit ShowKeys(bool show) { MessageCatalogue::builtIn().showKeys(show); }
    ShowKeys(const ShowKeys&) = delete;
    ShowKeys& operator=(const ShowKeys&) = delete;
    ~ShowKeys() { MessageCatalogue::builtIn().showKeys(false); }
};

TEST(MessageCatalogue, ReadsBothByteOrders)
{
    for (const bool bigEndian : {false, true}) {
        MessageCatalogue catalogue(moFile({{"", "Language: en\n"}, {"IDS_A", "first"}, {"IDS_B", "second"}}, bigEndian));
        EXPECT_STREQ(catalogue.find("IDS_A"), "first") << "big endian " << bigEndian;
        EXPECT_STREQ(catalogue.find("IDS_B"), "second") << "big endian " << bigEndian;
        EXPECT_EQ(catalogue.keys(), (std::vector<std::string>{"IDS_A", "IDS_B"})) << "the header is no message";
    }
}

TEST(MessageCatalogue, GivesAnUnknownKeyBackAndKeepsItValid)
{
    MessageCatalogue catalogue(moFile({{"IDS_A", "first"}}));
    const char* text = catalogue.find(std::string("IDS_NOT_THERE"));
    EXPECT_STREQ(text, "IDS_NOT_THERE");
    for (int i = 0; i < 1000; ++i)
        (void)catalogue.find("IDS_OTHER_" + std::to_string(i));
    EXPECT_STREQ(text, "IDS_NOT_THERE");
    EXPECT_EQ(catalogue.find("IDS_NOT_THERE"), text);
}

TEST(MessageCatalogue, PutsTheKeyBeforeTheTextWhenKeysAreShown)
{
    MessageCatalogue catalogue(moFile({{"IDS_A", "first"}}));
    const char* plain = catalogue.find("IDS_A");
    catalogue.showKeys(true);
    const char* shown = catalogue.find("IDS_A");
    EXPECT_STREQ(shown, "[IDS_A]first");
    EXPECT_STREQ(catalogue.find("IDS_NOT_THERE"), "[IDS_NOT_THERE]IDS_NOT_THERE");
    catalogue.showKeys(false);
    EXPECT_STREQ(catalogue.find("IDS_A"), "first");
    EXPECT_STREQ(plain, "first");
    EXPECT_STREQ(shown, "[IDS_A]first") << "a text that was handed out stays";
}

TEST(MessageCatalogue, DropsTheBarOutsideOfALineBreakAndNoOther)
{
    MessageCatalogue catalogue(moFile({{"BEGIN", "|\nnext"}, {"END", "line\r\n|"}, {"BARS", "|a|"}}));
    EXPECT_STREQ(catalogue.find("BEGIN"), "\nnext");
    EXPECT_STREQ(catalogue.find("END"), "line\r\n");
    EXPECT_STREQ(catalogue.find("BARS"), "|a|");
}

TEST(MessageCatalogue, BytesThatAreNoCatalogueGiveAnEmptyOne)
{
    for (const std::vector<unsigned char>& bytes : {std::vector<unsigned char>{}, {0xde, 0x12}, std::vector<unsigned char>(200, 0x20)}) {
        MessageCatalogue catalogue(bytes);
        EXPECT_TRUE(catalogue.keys().empty());
        EXPECT_STREQ(catalogue.find("IDS_A"), "IDS_A");
    }
}

TEST(MessageCatalogue, LeavesOutEntriesThatLieOutsideOfTheFile)
{
    const std::vector<unsigned char> whole = moFile({{"IDS_A", "first"}, {"IDS_B", "second"}});
    for (std::size_t size = 0; size < whole.size(); ++size) {
        MessageCatalogue cut(std::span<const unsigned char>(whole.data(), size));
        for (const std::string& key : cut.keys())
            EXPECT_TRUE(key == "IDS_A" || key == "IDS_B") << "cut after " << size << " bytes: " << key;
    }
}

TEST(MessageCatalogue, SurvivesAnyDamage)
{
    const std::vector<unsigned char> whole = moFile({{"IDS_A", "first"}, {"IDS_B", "second"}, {"IDS_C", "third"}});
    std::mt19937 random(20);
    for (int round = 0; round < 20000; ++round) {
        std::vector<unsigned char> damaged = whole;
        for (unsigned n = 1 + random() % 4; n > 0; --n)
            damaged[random() % damaged.size()] = static_cast<unsigned char>(random());
        MessageCatalogue catalogue(damaged);
        EXPECT_LE(catalogue.keys().size(), whole.size() / 16) << "more entries than the file has room for";
        (void)catalogue.find("IDS_A");
    }
}

TEST(EnglishMessages, HaveATextForEveryKeyOfTheFile)
{
    const std::vector<std::string> keys = keysOfPoFile();
    ASSERT_GE(keys.size(), 459U);
    EXPECT_EQ(MessageCatalogue::builtIn().keys().size(), keys.size());
    for (const std::string& key : keys) {
        const std::string text = CMsgDll::pfuncLoadStr(key.c_str(), 0);
        EXPECT_NE(text, key);
        EXPECT_FALSE(text.empty()) << key;
    }
}

TEST(EnglishMessages, HoldOnlyPlaceholdersThatTheProgramFills)
{
    const std::regex placeholder("%(s|d|g|ld|4\\.1f)");
    for (const std::string& key : MessageCatalogue::builtIn().keys()) {
        const std::string rest = std::regex_replace(std::string(MessageCatalogue::builtIn().find(key)), placeholder, "");
        EXPECT_EQ(rest.find('%'), std::string::npos) << key << ": " << MessageCatalogue::builtIn().find(key);
    }
}

struct Filled {
    const char* key;
    const char* placeholders;
};

// Messages that are filled with values, and with what: the program passes exactly these.
constexpr Filled filled[] = {
    {"IDS_CMD_ERR_SAME_LC_SAME_DIR", "%s %s"},
    {"IDS_CMD_MAKING_LOAD_COMBINATION", "%d %d"},
    {"IDS_CMD_SPDI_x_already_exist", "%g"},
    {"IDS_ZEL_CMD__ADDD__Invalid_loadcase_key_EQ", "%s"},
    {"IDS_ZEL_CMD__Error___Invalid_load_case__s__in_line_", "%s %d"},
    {"IDS_ZEL_CMD__Error___Load_case__d_in_line__d_does_n", "%d %d"},
    {"IDS_ZEL_CMD__Error___Number_of_load_case__d__exceed", "%d %d"},
    {"IDS_ZEL_CMD__Loadcase__s_already_exist_", "%s"},
    {"IDS_ZEL_CMD___ld", "%ld"},
    {"IDS_ZEL_CMD___s_ST_", "%s"},
    {"IDS_ZEL_CMD__the_Value_must_be_less_than__4_1f", "%4.1f"},
    {"IDS_DB_REFUSE_DUPLICATE_NAME", "%s"},
    {"IDS_DB_REFUSE_NAME_TOO_LONG", "%d"},
    {"IDS_DB_REFUSE_KEY_EXISTS", "%d"},
    {"IDS_DB_REFUSE_IN_USE", "%s"},
    {"IDS_DB_REFUSE_FILE_UNSAFE", "%s"},
    {"IDS_DB_REFUSE_FILE_WRITE", "%s"},
    {"IDS_FORM_TOO_MANY_MODAL_DIALOGS", "%d"},
    {"IDS_DB_REFUSE_NO_RECORD", ""},
};

TEST(EnglishMessages, KeepThePlaceholdersOfTheirKeysInOrder)
{
    const std::regex placeholder("%[^a-z]*l?[a-z]");
    for (const Filled& row : filled) {
        const std::string text = MessageCatalogue::builtIn().find(row.key);
        std::string found;
        for (std::sregex_iterator at(text.begin(), text.end(), placeholder), end; at != end; ++at)
            found += (found.empty() ? "" : " ") + at->str();
        EXPECT_EQ(found, row.placeholders) << row.key << ": " << text;
    }
}

TEST(EnglishMessages, KeepTheBlanksAndLineBreaksThatJoinThemToOtherTexts)
{
    EXPECT_STREQ(CMsgDll::pfuncLoadStr("IDS_ZEL_CMD__Error___", 0), "Error : ");
    EXPECT_STREQ(CMsgDll::pfuncLoadStr("IDS_ZEL_CMD___has_not_been_entered_", 0), " has not been entered.");
    EXPECT_STREQ(CMsgDll::pfuncLoadStr("IDS_ZEL_CMD___n___Min__Pile_Space___2_5_Dia", 0), "\n - Min. Pile Space < 2.5 Dia");
    EXPECT_STREQ(CMsgDll::pfuncLoadStr("IDS_CMD_User_Imported_Data_rn", 0), "User Imported Data\r\n");
}

TEST(Messages, LoadTheTextOfAKeyAndGiveAnUnknownKeyBack)
{
    EXPECT_STREQ(CMsgDll::pfuncLoadStr("IDS_ZEL_CMD__Dead_Load", 0), "Dead Load");
    EXPECT_STREQ(CMsgDll::pfuncLoadStr("IDS_NOT_THERE", 0), "IDS_NOT_THERE");
    EXPECT_STREQ(CMsgDll::pfuncLoadStr("", 0), "");
    EXPECT_STREQ(CMsgDll::pfuncLoadStr(nullptr, 0), "");
}

TEST(Messages, BearTheirKeysOnRequest)
{
    const ShowKeys show(true);
    EXPECT_STREQ(CMsgDll::pfuncLoadStr("IDS_ZEL_CMD__Dead_Load", 0), "[IDS_ZEL_CMD__Dead_Load]Dead Load");
}

struct QuoteCase {
    const char* text;
    const char* without;
};

TEST(Messages, RemoveQuoteTakesOffOneEnclosingPairOnly)
{
    constexpr QuoteCase rows[] = {
        {"\"Append Row\"", "Append Row"},
        {"'Append Row'", "Append Row"},
        {"Append Row", "Append Row"},
        {"\"\"twice\"\"", "\"twice\""},
        {"\"open", "\"open"},
        {"open\"", "open\""},
        {"\"mixed'", "\"mixed'"},
        {"say \"yes\" now", "say \"yes\" now"},
        {"\"", "\""},
        {"\"\"", ""},
        {"", ""},
        {nullptr, ""},
    };
    for (const QuoteCase& row : rows)
        EXPECT_EQ(CMsgDll::RemoveQuote(row.text), row.without) << (row.text != nullptr ? row.text : "(null)");
}

}  // namespace
