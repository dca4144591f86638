#include "loadcomb/generation/description.h"
#include "loadcomb/generation/number_token.h"

#include <gtest/gtest.h>
#include <ostream>

namespace {

using namespace zel::loadcomb;

struct Rewriting {
    const char* what;
    const char* text;
    const char* rewritten;
};
void PrintTo(const Rewriting& row, std::ostream* out)
{
    *out << row.what << ": \"" << row.text << '"';
}

template <class Step> std::string after(const Step& step, std::string text)
{
    step(text);
    return text;
}

class LooseSigns : public testing::TestWithParam<Rewriting> {};
TEST_P(LooseSigns, AreDeleted) { EXPECT_EQ(after(deleteLooseSigns, GetParam().text), GetParam().rewritten); }
constexpr Rewriting looseSigns[] = {
    {"a sign soon after another",     "()+a+)",             "a)"},
    {"before a closing parenthesis",        "1.0(LL+)",            "1.0(LL)"},
    {"behind an opening parenthesis",       "1.0(+LR)",            "1.0(LR)"},
    {"with an empty pair behind",           "1.6(LL+())",          "1.6(LL)"},
    {"with an empty pair in front",         "1.6(()+LL)",          "1.6(LL)"},
    {"between blanks it stays",             "1.0D + 1.0L - 1.0W",  "1.0D + 1.0L - 1.0W"},
    {"minus like plus",                     "(LL-)(-LR)(a-())(()-b)", "(LL)(LR)(a)(b)"},
    {"a minus at the start stays",          "-(VER)DL",            "-(VER)DL"},
    {"even before a closing parenthesis",   "-)a",                 "-)a"},
    {"a plus at the start does not",        "+)a",                 ")a"},
    {"the sign of a number stays",          "-(-0.2)D",            "-(-0.2)D"},
    {"but not that of a name",              "(-A)",                "(A)"},
    {"and a plus before a number goes",     "(+0.2)",              "(0.2)"},
    {"the first test that holds acts",      "(+())",               "(())"},
    {"the scan goes on where it deleted",   "(++a)",               "(a)"},
    {"and does not go back",                "(a++)",               "(a+)"},
    {"every plus before any minus",         "(a-+)",               "(a)"},
    {"empty",                               "",                    ""},
    {"a sign alone",                        "+",                   "+"},
};
INSTANTIATE_TEST_SUITE_P(ByHand, LooseSigns, testing::ValuesIn(looseSigns));

class ShortParentheses : public testing::TestWithParam<Rewriting> {};
TEST_P(ShortParentheses, AreTakenOff) { EXPECT_EQ(after(deleteShortParentheses, GetParam().text), GetParam().rewritten); }
constexpr Rewriting shortParentheses[] = {
    {"two characters inside",            "(DL)",         "DL"},
    {"three inside stay",                "(1.0)",        "(1.0)"},
    {"nothing inside",                   "a()b",         "ab"},
    {"the inner first, then the outer",  "1.6((WP))",    "1.6WP"},
    {"the outer as it then stands",      "((a)(b))",     "ab"},
    {"an outer pair that stays long",    "(DL+(EV))",    "(DL+EV)"},
    {"an opening alone",                 "(DL",          "(DL"},
    {"a closing alone",                  "DL)",          "DL)"},
    {"a closing alone does not pair",    ")(ab)",        ")ab"},
};
INSTANTIATE_TEST_SUITE_P(ByHand, ShortParentheses, testing::ValuesIn(shortParentheses));

class GroupNames : public testing::TestWithParam<Rewriting> {};
TEST_P(GroupNames, AreShortened) { EXPECT_EQ(after(shortenGroupNames, GetParam().text), GetParam().rewritten); }
constexpr Rewriting groupNames[] = {
    {"the five names",                       "DL LL SL RL TL",   "D L S R T"},
    {"LR and WL are none of them",           "LR WL EL",         "LR WL EL"},
    {"in the name of a load case",           "1.4WDL",           "1.4WD"},
    {"one name after the other",             "SLL",              "S"},       // LL first: SL, then S
    {"what an earlier one leaves is missed", "DLL",              "D" "L"},   // DL first: DL stays, LL is not there any more
    {"left to right",                        "LLL",              "LL"},
};
INSTANTIATE_TEST_SUITE_P(ByHand, GroupNames, testing::ValuesIn(groupNames));

class WholeRewriting : public testing::TestWithParam<Rewriting> {};
TEST_P(WholeRewriting, TakesTheStepsInOrder) { EXPECT_EQ(after(rewriteDescription, GetParam().text), GetParam().rewritten); }
constexpr Rewriting wholeRewritings[] = {
    {"only LR",                       "1.0DL + 1.0(LR)",                        "1.0D + 1.0LR"},
    {"only LL",                       "1.0DL + 1.0(LL+)",                       "1.0D + 1.0L"},
    {"both",                          "1.0DL + 1.0(LL+LR)",                     "1.0D + 1.0(L+LR)"},
    {"dead load in parentheses",      "1.4(DL)",                                "1.4D"},
    {"alpha without a value",         "1.2(DL+) + 1.6(LL+((APH)EH)) + 0.5SL",   "1.2D + 1.6(L+EH) + 0.5S"},
    {"nothing of it",                 "1.0WX + 1.0EX",                          "1.0WX + 1.0EX"},
    {"negative vertical force",       "-(-0.2)DL + 1.0EX",                      "-(-0.2)D + 1.0EX"},
    {"only WP of two levels",         "1.6((WP))",                              "1.6WP"},
    {"every group name that is shortened", "1.0DL + 1.6LL + 0.5SL + 0.2RL + 0.1TL", "1.0D + 1.6L + 0.5S + 0.2R + 0.1T"},
    {"no other letter before an L",   "1.0WL + 1.0EL + 1.0AL + L",              "1.0WL + 1.0EL + 1.0AL + L"},
    {"names inside names",            "1.0DLL + 1.0RSL + 1.0TLL",               "1.0DL + 1.0RS + 1.0T"},
    {"wind by one short name",        "0.9(DL+) + 1.3(WX)",                     "0.9D + 1.3WX"},
    {"wind by a long name",           "0.9(DL+) + 1.3(WEST)",                   "0.9D + 1.3(WEST)"},
};
INSTANTIATE_TEST_SUITE_P(ByHand, WholeRewriting, testing::ValuesIn(wholeRewritings));

TEST(Rewriting, OfManyFormulasOfARowIsThatOfEachByItself)
{
    const std::string shared[][3] = {
        {"1.2(DL+) + 1.3(WX1) + 1.0LL", "1.2(DL+) + 1.3(1.0WX2 - 0.8DL2) + 1.0LL", "1.2(DL+) + 1.3WX3 + 1.0LL"},
        {"-(DL) + 1", "-(DL) + 22", "no part of it"},
        {"1.0WX", "1.0WY", "1.0WZ"},
        {"(a + b) + (+c)", "(a + d) + (+c)", "(a + (e) + (+c)"},
        {"a) + x (b", "a) + y (b", "a) + z (b"},
        {"same", "same", "same"},
    };
    for (const auto& texts : shared) {
        const SharedRewriting rewriting(texts[0], texts[1]);
        for (const std::string& text : texts) {
            std::string expected = text;
            rewriteDescription(expected);
            EXPECT_EQ(after([&](std::string& t) { rewriting.rewrite(t); }, text), expected) << text;
        }
    }
}

TEST(Rewriting, CutsNoSharedPartInsideParentheses)
{
    // A pair three characters apart goes, wherever the formulas begin to differ.
    const struct {
        std::string first, second, rewritten;
    } rows[] = {
        {"( 1) + W1", "( 2) + W2", " 1 + W1"},
        {"W1 + (1 )", "W2 + (2 )", "W1 + 1 "},
        {"D + (+ 1) + W1", "D + (+ 2) + W2", "D +  1 + W1"},
    };
    for (const auto& row : rows) {
        std::string text = row.first;
        SharedRewriting(row.first, row.second).rewrite(text);
        EXPECT_EQ(text, after(rewriteDescription, row.first)) << row.first;
        EXPECT_EQ(text, row.rewritten);
    }
}

TEST(DescriptionLength, SeventyNineCharactersStayAndEightyAreCut)
{
    const std::string longest(79, 'x');
    EXPECT_EQ(after(cutDescription, longest), longest);
    EXPECT_EQ(after(cutDescription, longest + "x"), std::string(76, 'x') + "...");
}

TEST(DescriptionLength, CountsCharactersAndSplitsNone)
{
    std::string wide;    // a character of three bytes each
    for (int i = 0; i < 79; ++i)
        wide += "\xED\x92\x8D";
    EXPECT_EQ(after(cutDescription, wide), wide);
    EXPECT_EQ(after(cutDescription, wide + "x"), wide.substr(0, std::size_t{76} * 3) + "...");
}

struct Number {
    double value;
    const char* text;
};
// One decimal, or as many as are not 0, up to three.
constexpr Number tokenNumbers[] = {
    {1.0, "1.0"}, {1.25, "1.25"}, {1.125, "1.125"}, {1.5, "1.5"}, {0.0, "0.0"}, {-0.2, "-0.2"}, {12.0, "12.0"}, {1.0004, "1.0"}, {1.105, "1.105"}, {2.75, "2.75"},
};

TEST(NumberOfAToken, HasOneToThreeDecimals)
{
    for (const Number& row : tokenNumbers)
        EXPECT_EQ(tokenNumber(row.value), row.text);
}

TEST(NumberOfAWindFactor, IsShortUnlessItIsWhole)
{
    for (const Number& row : {Number{1.0, "1.0"}, Number{0.4, "0.4"}, Number{0.4 + 0.6 / 2.2, "0.672727"}, Number{1.00000001, "1.0"}, Number{-2.0, "-2.0"}, Number{1e-9, "0.0"}})
        EXPECT_EQ(windFactorText(row.value), row.text);
}

TEST(TokenReplacement, TakesEveryOccurrenceAndDoesNotLookAtWhatWasPutIn)
{
    std::string text = "1.0EL + (ZEL)";
    replaceAll(text, "EL", "EL+EL");
    EXPECT_EQ(text, "1.0EL+EL + (ZEL+EL)");
    replaceAll(text, "", "x");
    EXPECT_EQ(text, "1.0EL+EL + (ZEL+EL)");
    replaceAll(text, "EL", "100%d");
    EXPECT_EQ(text, "1.0100%d+100%d + (Z100%d+100%d)");
}

}  // namespace
