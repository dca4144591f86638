#include "loadcomb/generation/combination_list.h"

#include <gtest/gtest.h>
#include <random>

namespace {

using zel::loadcomb::CombinationList;
using zel::loadcomb::combinationName;
using zel::loadcomb::highestNumber;
using zel::loadcomb::isDuplicate;

T_LCOM_D combination(std::vector<T_LCOM_ITEM> items, int active = 1, int number = 0)
{
    T_LCOM_D made;
    made.active = active;
    made.number = number;
    made.items = std::move(items);
    return made;
}

TEST(CombinationNames, FollowTheTemplateOfTheKind)
{
    EXPECT_EQ(combinationName(1, 7), "gLCB7  ");
    EXPECT_EQ(combinationName(2, 12), "sLCB12 ");
    EXPECT_EQ(combinationName(3, 123), "cLCB123");
    EXPECT_EQ(combinationName(4, 1234), "fLCB1234");
    EXPECT_EQ(combinationName(5, 1), "rLCB1  ");
    EXPECT_EQ(combinationName(0, 1), "");
    EXPECT_EQ(combinationName(6, 1), "");
}

struct Highest {
    const char* what;
    std::vector<std::string> names;
    std::int64_t number;
};
const Highest highest[] = {
    {"none", {}, 0},
    {"the highest wins", {"gLCB12 ", "gLCB7  "}, 12},
    {"the first letter does not count", {"sLCB3  ", "xLCB40"}, 40},
    {"what follows the digits is ignored", {"gLCB5a9"}, 5},
    {"blanks and a sign in front", {"gLCB  +8"}, 8},
    {"a negative number is not above 0", {"gLCB-8"}, 0},
    {"no number", {"gLCB", "gLCBx", "gLCB +-3"}, 0},
    {"other names", {"LCB9", "gLC9", "", "g", "mine 12", "gLcb9"}, 0},
};

TEST(CombinationNames, GiveTheHighestNumber)
{
    for (const Highest& row : highest)
        EXPECT_EQ(highestNumber(row.names), row.number) << row.what;
    EXPECT_GT(highestNumber({"gLCB99999999999999999999999"}), 0) << "a number beyond all range does not wrap";
}

TEST(Duplicates, AreJudgedByKindActiveNumberAndItemsInOrder)
{
    const T_LCOM_D one = combination({{1, 1, 1.4}, {1, 2, 1.7}});
    T_LCOM_D other = one;
    other.name = "another";
    other.description = "text";
    EXPECT_TRUE(isDuplicate(one, other)) << "name and description don't count";
    for (const T_LCOM_D& different : {combination({{1, 2, 1.7}, {1, 1, 1.4}}), combination({{1, 1, 1.4}}), combination({{1, 1, 1.4}, {1, 2, 1.7000000000000002}}),
                                      combination({{1, 1, 1.4}, {2, 2, 1.7}}), combination({{1, 1, 1.4}, {1, 2, 1.7}}, 0), combination({{1, 1, 1.4}, {1, 2, 1.7}}, 1, 5)})
        EXPECT_FALSE(isDuplicate(one, different));
    other.kind = 2;
    EXPECT_FALSE(isDuplicate(one, other));
}

TEST(CombinationList, NamesInOrderAndLeavesNoGapForADuplicate)
{
    CombinationList list;
    list.reset(1, 4, 12);
    EXPECT_EQ(list.store(combination({{1, 1, 1.4}})), CombinationList::stored);
    EXPECT_EQ(list.store(combination({{1, 1, 1.4}})), 0U) << "the place of the one that it repeats";
    EXPECT_EQ(list.store(combination({{1, 1, 1.2}})), CombinationList::stored);
    ASSERT_EQ(list.rows().size(), 2U);
    EXPECT_EQ(list.rows()[0].name, "gLCB13 ");
    EXPECT_EQ(list.rows()[1].name, "gLCB14 ");
    EXPECT_EQ(list.rowCount(), 6);
    EXPECT_EQ(list.lastNumber(), 14);
}

TEST(CombinationList, SetsTheKindOfARecordTo0)
{
    CombinationList list;
    list.reset(1, 0, 0);
    T_LCOM_D record = combination({{1, 1, 1.0}});
    record.kind = 7;
    list.store(std::move(record));
    EXPECT_EQ(list.rows()[0].kind, 0);
}

TEST(CombinationList, TakesZeroAndNegativeZeroForEqual)
{
    CombinationList list;
    list.reset(1, 0, 0);
    list.store(combination({{1, 1, 0.0}}));
    EXPECT_EQ(list.store(combination({{1, 1, -0.0}})), 0U);
}

TEST(CombinationList, FindsTheSameDuplicatesAsALinearSearch)
{
    std::mt19937 random(5);
    CombinationList list;
    list.reset(1, 0, 0);
    std::vector<T_LCOM_D> kept;
    for (int i = 0; i < 3000; ++i) {
        std::vector<T_LCOM_ITEM> items;
        for (unsigned n = random() % 4; n > 0; --n)
            items.push_back({1, static_cast<std::uint32_t>(random() % 4), 0.5 * static_cast<double>(random() % 4)});
        T_LCOM_D record = combination(items, static_cast<int>(random() % 2), static_cast<int>(random() % 2));
        std::size_t expected = CombinationList::stored;
        for (std::size_t k = 0; k < kept.size() && expected == CombinationList::stored; ++k) {
            if (isDuplicate(kept[k], record))
                expected = k;
        }
        if (expected == CombinationList::stored)
            kept.push_back(record);
        ASSERT_EQ(list.store(std::move(record)), expected) << "record " << i;
    }
    EXPECT_EQ(list.rows().size(), kept.size());
    EXPECT_GT(kept.size(), 500U);
}

}  // namespace
