#include "contract/key_text.h"

#include <algorithm>
#include <iterator>
#include <numeric>
#include <random>

#include <gtest/gtest.h>

namespace {

using Keys = CArray<std::uint32_t>;

struct KeyTextCase {
    Keys keys;
    const char* text;
};

TEST(KeyText, WritesRunsOfThreeOrMoreAsRanges)
{
    const KeyTextCase rows[] = {
        {{}, ""},
        {{7}, "7"},
        {{1, 2}, "1,2"},
        {{1, 2, 3}, "1-3"},
        {{3, 1, 2, 2}, "1-3"},
        {{1, 4, 5, 6, 9}, "1,4-6,9"},
        {{10, 15, 20}, "10-20:5"},
        {{1, 3, 4, 5}, "1,3-5"},
        {{1, 3, 5, 6, 7}, "1-5:2,6,7"},
        {{1, 2, 4, 8}, "1,2,4,8"},
        {{4294967293U, 4294967294U, 4294967295U}, "4294967293-4294967295"},
    };
    for (const KeyTextCase& row : rows)
        EXPECT_EQ(CNumericOptimizer::Optimize(row.keys), row.text);
}

TEST(KeyText, ReadsNumbersRangesAndSteps)
{
    Keys keys(30);
    std::iota(keys.begin(), keys.end(), 1U);
    const KeyTextCase rows[] = {
        {{1, 4, 5, 6}, "1,4-6"},
        {{1, 4, 5, 6}, " 4-6  1 ,, 5 "},
        {{20, 25, 30}, "20-30:5"},
        {{2, 5, 8}, "2 - 9 : 3"},
        {{29, 30}, "29-99999999999999"},
        {{3}, "3-3"},
        {{}, "31 400"},
        {{}, ""},
        {{}, " , "},
    };
    for (const KeyTextCase& row : rows) {
        Keys result{99};
        EXPECT_NE(CNumericOptimizer::SelectNumByStr(keys, row.text, result), 0) << '"' << row.text << '"';
        EXPECT_EQ(result, row.keys) << '"' << row.text << '"';
    }
}

TEST(KeyText, GivesTheKeysThatExistInTheirOwnOrder)
{
    Keys result;
    ASSERT_NE(CNumericOptimizer::SelectNumByStr({40, 7, 12, 9}, "1-12,40", result), 0);
    EXPECT_EQ(result, (Keys{40, 7, 12, 9}));
}

TEST(KeyText, RefusesAStrayCharacterAndSelectsNothing)
{
    for (const char* text : {"a", "1a", "1;2", "1-", "-1", "1--2", "1-2-3", "5-1", "1-9:0", "1-9:", "1:2", "1-9:2:3", "1.5", "+1", "1,x"}) {
        Keys result{99};
        EXPECT_EQ(CNumericOptimizer::SelectNumByStr({1, 2, 3, 4, 5, 6, 7, 8, 9}, text, result), 0) << '"' << text << '"';
        EXPECT_TRUE(result.empty()) << '"' << text << '"';
    }
}

TEST(KeyText, ReadsBackWhatItWrote)
{
    std::mt19937 random(7);
    for (int round = 0; round < 500; ++round) {
        Keys all(60);
        std::iota(all.begin(), all.end(), 1U);
        Keys some;
        std::copy_if(all.begin(), all.end(), std::back_inserter(some), [&random](std::uint32_t) { return random() % 3 != 0; });
        const CString text = CNumericOptimizer::Optimize(some);
        Keys result;
        ASSERT_NE(CNumericOptimizer::SelectNumByStr(all, text, result), 0) << text;
        ASSERT_EQ(result, some) << text;
    }
}

}  // namespace
