#include "loadcomb/tables/code_registry.h"

#include "build_paths.h"
#include "contract/design_codes.h"
#include "loadcomb/generation/code_rows.h"
#include "loadcomb/generator_fixture.h"

#include <filesystem>
#include <fstream>
#include <iterator>
#include <regex>
#include <set>
#include <sstream>

#include <gtest/gtest.h>

// The one list of design codes, and all that is read from it.
namespace {

using namespace zel::codes;
using generated::model;
using generated::run;

using Names = CArray<CString, CString&>;

Names namesWhere(bool (*test)(const CodeEntry&))
{
    Names names;
    for (const CodeEntry& entry : codeRegistry) {
        if (test(entry))
            names.emplace_back(entry.name);
    }
    return names;
}

/// What the documents say of a code. A code that comes later stands behind these and needs no line here.
struct DocumentedCode {
    std::string_view name;
    bool wind, seismic, underground, alphaH;
};
constexpr DocumentedCode documented[] = {
    // code               wind   seismic underground alpha_H
    {"AIK-USD94",         false, false,  false,      false},
    {"KBC-USD16",         true,  true,   false,      false},
    {"KDS 41 30 : 2018",  true,  true,   true,       false},
    {"KDS 41 20 : 2022",  true,  true,   true,       false},
    {"KCI-USD12",         false, true,   false,      true},
    {"KBC-USD09",         false, true,   false,      true},
    {"KBC-USD05",         false, true,   false,      false},
    {"KCI-USD99",         false, false,  false,      false},
    {"KSCE-USD96",        false, false,  false,      false},
    {"ACI318-89",         false, false,  false,      false},
    {"ACI318-95",         false, false,  false,      false},
    {"ACI318-99",         false, false,  false,      false},
    {"ACI318-02",         false, false,  false,      false},
    {"BS8110-97",         false, false,  false,      false},
    {"GB50010-02",        false, false,  false,      false},
    {"CSA-A23.3-94",      false, false,  false,      false},
};

TEST(CodeRegistry, BeginsWithTheDocumentedCodesAndTheirTablesReadWhatIsDocumented)
{
    ASSERT_GE(std::size(codeRegistry), std::size(documented));
    for (std::size_t i = 0; i < std::size(documented); ++i) {
        const DocumentedCode& expected = documented[i];
        const CodeTable& table = *codeRegistry[i].table;
        EXPECT_EQ(codeRegistry[i].name, expected.name);
        EXPECT_EQ(readsOf(table, Reads::windSets), expected.wind) << expected.name;
        EXPECT_EQ(readsOf(table, Reads::seismicFactors), expected.seismic) << expected.name;
        EXPECT_EQ(readsOf(table, Reads::undergroundSets), expected.underground) << expected.name;
        EXPECT_EQ(takesAlphaH(table), expected.alphaH) << expected.name;
    }
}

TEST(CodeRegistry, IsWhatTheCatalogueOffers)
{
    const Names all = namesWhere([](const CodeEntry&) { return true; });
    Names offered;
    CDBLib::GetConLcomCodeNameList(offered);
    EXPECT_EQ(offered, all);
    CDBLib::GetConCodeNameList(offered);
    EXPECT_EQ(offered, all);
    for (const CodeEntry& entry : codeRegistry) {
        const CString name(entry.name);
        EXPECT_TRUE(CDBLib::IsConCodeName(name)) << name;
        EXPECT_EQ(CDBLib::IsConCode_WindLcom(name), readsOf(*entry.table, Reads::windSets)) << name;
        EXPECT_EQ(CDBLib::IsConCode_SeisLcom(name), readsOf(*entry.table, Reads::seismicFactors)) << name;
        EXPECT_EQ(CDBLib::IsConCode_Ortho(name), readsOf(*entry.table, Reads::seismicFactors)) << name;
        EXPECT_EQ(CDBLib::IsConCode_UnderGroundLcom(name), readsOf(*entry.table, Reads::undergroundSets)) << name;
    }
}

TEST(CodeRegistry, ACodeThatIsOfferedGeneratesCombinations)
{
    const auto full = model("DL:D LL:L LR:LR WX:W EX:E SL:S RL:R FP:FP EP:EP WP:WP EH:EH EV:EV");
    Names offered;
    CDBLib::GetConLcomCodeNameList(offered);
    ASSERT_FALSE(offered.empty());
    for (const CString& name : offered)
        EXPECT_GT(run(full, name).size(), 5U) << name;
}

TEST(CodeRegistry, ANameIsFoundAsItStandsOnly)
{
    for (const CodeEntry& entry : codeRegistry)
        EXPECT_EQ(findCode(entry.name), &entry) << entry.name;
    for (const char* name : {"", "aik-usd94", "AIK-USD94 ", "KDS 41 20: 2022", "KBC"})
        EXPECT_EQ(findCode(name), nullptr) << name;
}

/// Rows that a table file prints with both signs and X written out, counted in the documents.
TEST(CodeRegistry, TheListOfACodesRowsHoldsEveryPrintedRow)
{
    const struct {
        std::string_view name;
        std::size_t rows;
    } printed[] = {
        {"AIK-USD94", 24}, {"KSCE-USD96", 24}, {"KBC-USD05", 80}, {"KCI-USD99", 47},  {"ACI318-89", 28}, {"ACI318-95", 28},
        {"ACI318-99", 28}, {"ACI318-02", 52},  {"BS8110-97", 11}, {"GB50010-02", 58}, {"CSA-A23.3-94", 14},
    };
    for (const auto& expected : printed)
        EXPECT_EQ(zel::loadcomb::listRows(*findCode(expected.name)->table).size(), expected.rows) << expected.name;
}

std::string contentsOf(const std::filesystem::path& path)
{
    std::ostringstream text;
    text << std::ifstream(path).rdbuf();
    return text.str();
}

TEST(CodeRegistry, EveryTableFileIsIncludedAndEveryTableHasItsLine)
{
    const std::filesystem::path folder = std::filesystem::path(zel::test::sourceFolder()) / "src" / "loadcomb" / "tables";
    const std::string registry = contentsOf(folder / "code_registry.h");
    const std::regex table(R"(inline constexpr CodeTable (\w+)\{)");
    const std::set<std::string> withoutName{"unnamed_first", "unnamed_second"};
    std::size_t found = 0;
    for (const auto& file : std::filesystem::directory_iterator(folder)) {
        const std::string text = contentsOf(file.path());
        for (std::sregex_iterator at(text.begin(), text.end(), table), end; at != end; ++at, ++found) {
            const std::string name = (*at)[1];
            EXPECT_NE(registry.find("#include \"loadcomb/tables/" + file.path().filename().string() + "\""), std::string::npos)
                << file.path().filename() << " is not included in code_registry.h";
            EXPECT_TRUE(withoutName.contains(name) || std::regex_search(registry, std::regex("&" + name + "\\b"))) << "no line of codeRegistry leads to " << name;
        }
    }
    EXPECT_GE(found, 16U) << "tables are no longer recognised";
}

}  // namespace
