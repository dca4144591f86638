#include "contract/number_text.h"

#include <clocale>
#include <cmath>
#include <limits>

#include <gtest/gtest.h>

namespace {

using zel::number::read;
using zel::number::readInteger;

struct NumberCase {
    const char* text;
    double value;
};

TEST(NumberText, ReadsTheWholeTextWithBlanksAroundIt)
{
    // clang-format off
    constexpr NumberCase rows[] = {
        {"0", 0.0},       {"12", 12.0},    {"-1.5", -1.5},  {"+2.25", 2.25},    {" 3 ", 3.0},       {"\t4\r\n", 4.0}, {".5", 0.5},
        {"-.5", -0.5},    {"+.5", 0.5},    {"5.", 5.0},     {"1e3", 1000.0},    {"1E-3", 0.001},    {"1.5e+2", 150.0}, {"007", 7.0},
        {"1e308", 1e308}, {"0.1", 0.1},    {"123456789012345678", 123456789012345678.0},
    };
    // clang-format on
    for (const NumberCase& row : rows) {
        ASSERT_TRUE(read(row.text).has_value()) << '"' << row.text << '"';
        EXPECT_EQ(*read(row.text), row.value) << '"' << row.text << '"';
    }
}

TEST(NumberText, RefusesEverythingElse)
{
    // clang-format off
    for (const char* text : {"", " ", "+", "-", ".", "e5", "1e", "1e+", "1 2", "1,5", "1x", "x1", "--1", "+-1", "-+1", "++1", "+ 1", "1.2.3", "0x10", "inf", "-inf",
                             "nan", "NAN", "infinity", "1e999", "-1e999", "1e5.5", "1_000", "1'000", "\u00A01"})
        // clang-format on
        EXPECT_FALSE(read(text).has_value()) << '"' << text << '"';
}

TEST(NumberText, ReadsIntegersOfDigitsOnly)
{
    EXPECT_EQ(readInteger(" -12 "), -12);
    EXPECT_EQ(readInteger("+7"), 7);
    EXPECT_EQ(readInteger("2147483647"), std::numeric_limits<int>::max());
    EXPECT_EQ(readInteger("-2147483648"), std::numeric_limits<int>::min());
    for (const char* text : {"", "1.0", "1e2", "2147483648", "-2147483649", "1 2", "+-1", "0x1", "a"})
        EXPECT_FALSE(readInteger(text).has_value()) << '"' << text << '"';
}

TEST(NumberText, DoesNotFollowTheLocale)
{
    const char* chosen = nullptr;
    for (const char* name : {"de_DE.UTF-8", "fr_FR.UTF-8", "de_DE", ""}) {
        if (chosen == nullptr)
            chosen = std::setlocale(LC_NUMERIC, name);
    }
    EXPECT_EQ(read("1.5"), 1.5) << "locale " << (chosen != nullptr ? chosen : "C");
    EXPECT_FALSE(read("1,5").has_value());
    std::setlocale(LC_NUMERIC, "C");
}

TEST(NumberText, TrimsBlanksAtTheEndsOnly)
{
    EXPECT_EQ(zel::number::trim("  a b\t"), "a b");
    EXPECT_EQ(zel::number::trim(" \n "), "");
    EXPECT_EQ(zel::number::trim(""), "");
}

TEST(StrParser, LeavesTheValueAloneWhenTheTextIsNoNumber)
{
    double value = 7.0;
    EXPECT_EQ(CStrParser::GetFloatNumber("1.2x", value), 0);
    EXPECT_EQ(value, 7.0);
    EXPECT_NE(CStrParser::GetFloatNumber(" 1.2 ", value), 0);
    EXPECT_EQ(value, 1.2);
}

TEST(NumberList, GivesItsNumbersOneByOne)
{
    MyParser parser;
    ASSERT_EQ(parser.ParsingNumberArg(" 1.5, -2;3e2\t4 "), 4);
    double value = 0.0;
    for (const double expected : {1.5, -2.0, 300.0, 4.0}) {
        ASSERT_NE(parser.GetNumberData(value), 0);
        EXPECT_EQ(value, expected);
    }
    EXPECT_EQ(parser.GetNumberData(value), 0);
    EXPECT_EQ(value, 4.0);
}

TEST(NumberList, IsRefusedAsAWholeWhenAPartIsNoNumber)
{
    MyParser parser;
    ASSERT_EQ(parser.ParsingNumberArg("1 2"), 2);
    EXPECT_EQ(parser.ParsingNumberArg("1 two 3"), 0);
    double value = 9.0;
    EXPECT_EQ(parser.GetNumberData(value), 0) << "nothing is left of the list before";
    EXPECT_EQ(value, 9.0);
    EXPECT_EQ(parser.ParsingNumberArg(""), 0);
    EXPECT_EQ(parser.ParsingNumberArg(" , "), 0);
}

TEST(NumberList, KeepsNumbersAndWholeNumbersApart)
{
    MyParser parser;
    ASSERT_EQ(parser.ParsingINumberArg("3, 4"), 2);
    ASSERT_EQ(parser.ParsingNumberArg("0.5"), 1);
    EXPECT_EQ(parser.ParsingINumberArg("3.5"), 0);
    ASSERT_EQ(parser.ParsingINumberArg("-8 9"), 2);
    int whole = 0;
    ASSERT_NE(parser.GetINumberData(whole), 0);
    EXPECT_EQ(whole, -8);
    ASSERT_NE(parser.GetINumberData(whole), 0);
    EXPECT_EQ(whole, 9);
    EXPECT_EQ(parser.GetINumberData(whole), 0);
    double value = 0.0;
    ASSERT_NE(parser.GetNumberData(value), 0);
    EXPECT_EQ(value, 0.5);
}

}  // namespace
