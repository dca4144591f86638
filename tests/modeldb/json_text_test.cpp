#include "platform/modeldb/json_text.h"

#include <cmath>
#include <limits>
#include <nlohmann/json.hpp>
#include <string>

#include <gtest/gtest.h>

namespace {

using zel::Json;

std::string faultOf(const std::string& text)
{
    try {
        zel::parseJson(text);
    } catch (const zel::JsonFault& fault) {
        return fault.what();
    }
    return "none";
}

TEST(JsonText, KeepsTheOrderOfMembersOnOneLine)
{
    EXPECT_EQ(zel::printJson(zel::parseJson("{\n \"b\": 1,\n \"a\": [true, null, \"x\"]}")), R"({"b": 1, "a": [true, null, "x"]})");
}

TEST(JsonText, PrintsDoublesSoThatTheyReadBackExactly)
{
    for (const double value : {0.1, 1.0 / 3.0, 1e22, 1e-300, 4.9e-324, std::numeric_limits<double>::max(), 100.0, -0.0, 0.75 * 1.4}) {
        const std::string text = zel::printJson(Json(value));
        const double back = zel::parseJson(text).get<double>();
        EXPECT_EQ(back, value) << text;
        EXPECT_EQ(std::signbit(back), std::signbit(value)) << text;
        EXPECT_TRUE(zel::parseJson(text).is_number_float()) << text;
    }
    EXPECT_EQ(zel::printJson(Json(1.0)), "1.0");
    EXPECT_EQ(zel::printJson(Json(0.1)), "0.1");
}

TEST(JsonText, NamesLineAndColumnOfASyntaxError)
{
    EXPECT_NE(faultOf("{\n\"a\": }").find("line 2, column 6"), std::string::npos) << faultOf("{\n\"a\": }");
    EXPECT_NE(faultOf("").find("unexpected end of input"), std::string::npos) << faultOf("");
    EXPECT_NE(faultOf("[1] [2]"), "none");
}

TEST(JsonText, RefusesAMemberThatStandsTwiceAndNamesItsPlace)
{
    EXPECT_EQ(faultOf(R"({"STLD": [{}, {"name": "a", "name": "b"}]})"), "STLD[1]: the member \"name\" stands here twice");
    EXPECT_EQ(faultOf(R"({"a": 1, "a": 2})"), "the member \"a\" stands here twice");
}

TEST(JsonText, RefusesDeepNestingBeforeItCostsAnything)
{
    EXPECT_EQ(faultOf(std::string(1000000, '[')), "nested deeper than 64 levels");
    std::string deep = "1";
    for (int i = 0; i < zel::jsonDepthLimit; ++i)
        deep = "[" + deep + "]";
    EXPECT_EQ(faultOf(deep), "none");
}

TEST(JsonText, RefusesNumbersBeyondADoubleAndBytesThatAreNoText)
{
    EXPECT_NE(faultOf("1e999"), "none");
    EXPECT_NE(faultOf("NaN"), "none");
    EXPECT_NE(faultOf("\"\xFF\xFE\""), "none");
    EXPECT_NE(faultOf(std::string("[1]\0x", 5)), "none");
}

TEST(JsonText, PrintsBytesThatAreNoTextAsReplacementCharacters)
{
    EXPECT_EQ(zel::printJson(Json("a\xFF")), "\"a\xEF\xBF\xBD\"");
}

TEST(JsonText, ReadsAnObjectOfManyMembersInOneGo)
{
    std::string text = "{";
    for (int i = 0; i < 200000; ++i)
        text += (i > 0 ? ",\"" : "\"") + std::to_string(i) + "\":0";
    EXPECT_EQ(zel::parseJson(text + "}").size(), 200000U);  // a search per member would take minutes
}

}  // namespace
