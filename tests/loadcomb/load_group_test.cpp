#include "loadcomb/generation/load_group.h"

#include <gtest/gtest.h>

namespace {

using zel::loadcomb::LoadCase;
using zel::loadcomb::LoadGroups;
using zel::loadcomb::sortIntoGroups;

const _CCmd_Loadcase& group(const LoadGroups& groups, std::string_view name)
{
    for (const _CCmd_Loadcase& found : groups) {
        if (found.name == name)
            return found;
    }
    throw std::invalid_argument(std::string(name));
}

struct TypeOfGroup {
    const char* group;
    const char* type;
};
// The thirteen load groups, each with the type code of its load cases.
constexpr TypeOfGroup typesOfGroups[] = {
    {"DL", "D"}, {"LL", "L"}, {"LR", "LR"}, {"WL", "W"}, {"EL", "E"}, {"SL", "S"}, {"EEP", "EEP"},
    {"RL", "R"}, {"FP", "FP"}, {"EP", "EP"}, {"WP", "WP"}, {"EH", "EH"}, {"EV", "EV"},
};

TEST(LoadGroups, EachTakesTheCasesOfItsType)
{
    std::vector<LoadCase> cases;
    for (const TypeOfGroup& row : typesOfGroups)
        cases.push_back({static_cast<std::uint32_t>(cases.size() + 1), "case", row.type});
    const LoadGroups groups = sortIntoGroups(cases);
    EXPECT_EQ(groups.size(), std::size(typesOfGroups));
    for (std::size_t i = 0; i < std::size(typesOfGroups); ++i)
        EXPECT_EQ(group(groups, typesOfGroups[i].group).cases, std::vector<std::uint32_t>{static_cast<std::uint32_t>(i + 1)}) << typesOfGroups[i].group;
}

TEST(LoadGroups, CasesStandInTheSequenceOfTheModelAndNotByKey)
{
    const LoadGroups groups = sortIntoGroups({{9, "B", "D"}, {2, "L", "L"}, {4, "A", "D"}});
    EXPECT_EQ(group(groups, "DL").cases, (std::vector<std::uint32_t>{9, 4}));
}

TEST(LoadGroups, TypesAreComparedExactly)
{
    const LoadGroups groups = sortIntoGroups({{1, "a", "d"}, {2, "b", "D "}, {3, "c", "WA"}, {4, "d", "WT"}, {5, "e", ""}, {6, "f", "DL"}});
    for (const _CCmd_Loadcase& empty : groups)
        EXPECT_FALSE(empty.hasCases()) << empty.name;
}

TEST(LoadGroups, CasesOfTheOtherArrayCountAsCases)
{
    _CCmd_Loadcase other;
    EXPECT_FALSE(other.hasCases());
    other.otherCases = {3};
    EXPECT_TRUE(other.hasCases());
}

TEST(LoadGroups, ALevelIsFoundByItsDigits)
{
    _CCmd_Loadcase marked;
    marked.levels = 12;
    EXPECT_TRUE(marked.isInLevel(1));
    EXPECT_TRUE(marked.isInLevel(2));
    EXPECT_TRUE(marked.isInLevel(12));    // digits of two levels read as one: codes have fewer than ten
    EXPECT_FALSE(marked.isInLevel(3));
}

}  // namespace
