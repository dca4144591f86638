#include "forms/grid_fixture.h"

using namespace zel::test;

namespace {

struct NumberCase {
    const char* text;
    int reason;
    const char* value;  ///< of ConvertFormulaToValue
};

void PrintTo(const NumberCase& row, std::ostream* out)
{
    *out << '"' << row.text << '"';
}

const NumberCase numbers[] = {
    // text         reason  value
    {"", 0, ""},
    {"  ", 0, "  "},
    {"1.50", 0, "1.50"},  // a plain number stays as it is typed
    {" -2 ", 0, " -2 "},
    {"1e-3", 0, "1e-3"},
    {"1.2*2", 0, "2.4"},
    {"(1+2)/4", 0, "0.75"},
    {"-2^2", 0, "-4"},
    {"2^3^2", 0, "512"},
    {"2*-3", 0, "-6"},
    {"1/3", 0, "0.333333333333333"},
    {"1e3 + 1E+2", 0, "1100"},
    {"1e30", 0, "1e30"},
    {"1e-400*1", 0, "0"},
    {"1+", 1, "1+"},
    {"(1+2", 1, "(1+2"},
    {"()", 1, "()"},
    {"1 2", 1, "1 2"},
    {"2(3)", 1, "2(3)"},
    {"1..2", 1, "1..2"},
    {"e", 1, "e"},
    {"1e", 1, "1e"},
    {"1,5", 2, "1,5"},
    {"=1+2", 2, "=1+2"},
    {"sin(1)", 2, "sin(1)"},
    {"12a", 2, "12a"},
    {"inf", 2, "inf"},
    {"\xC3\xBC", 2, "\xC3\xBC"},
    {"1.1e30", 3, "1.1e30"},
    {"-2e30", 3, "-2e30"},
    {"1e999", 3, "1e999"},
    {"1/0", 3, "1/0"},
    {"0/0", 3, "0/0"},
    {"10^31", 3, "10^31"},
};

class GridNumber : public testing::TestWithParam<NumberCase> {};

}  // namespace

TEST_P(GridNumber, IsJudgedAndConverted)
{
    int reason = 99;
    EXPECT_EQ(CTBBrowserWnd::IsValidDoubleNumber(GetParam().text, reason), GetParam().reason == 0);
    EXPECT_EQ(reason, GetParam().reason);
    EXPECT_EQ(CTBBrowserWnd::ConvertFormulaToValue(GetParam().text), GetParam().value);
}

INSTANTIATE_TEST_SUITE_P(Texts, GridNumber, testing::ValuesIn(numbers));
