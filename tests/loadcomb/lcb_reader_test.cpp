#include "loadcomb/editor/lcb_import.h"

#include "platform/modeldb/model_document.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <sstream>
#include <string>

namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using testing::SizeIs;

using Items = std::vector<T_LCOM_ITEM>;

// Keys of the three load cases of these tests, so that a place is never a key.
constexpr zel::Key first = 11;
constexpr zel::Key second = 7;
constexpr zel::Key third = 30;

zel::lcb::Contents read(const std::string& text)
{
    const auto model = zel::ModelDocument::inMemory();
    std::istringstream file(text);
    return zel::lcb::read(file, {first, second, third});
}

/// The combinations of a text without a fault.
std::vector<T_LCOM_D> combinations(const std::string& text)
{
    zel::lcb::Contents contents = read(text);
    EXPECT_FALSE(contents.fault.has_value()) << text << "\n" << contents.fault->text;
    return contents.combinations;
}

/// The items of the one combination of a text.
Items items(const std::string& text)
{
    const std::vector<T_LCOM_D> found = combinations(text);
    EXPECT_EQ(found.size(), 1U) << text;
    return found.empty() ? Items() : found[0].items;
}

struct Refused {
    CString key;
    CString text;
    bool operator==(const Refused&) const = default;
};
void PrintTo(const Refused& refused, std::ostream* out)
{
    *out << refused.key << ": " << refused.text;
}

Refused refused(const std::string& text)
{
    const zel::lcb::Contents contents = read(text);
    EXPECT_THAT(contents.combinations, IsEmpty()) << text;
    if (!contents.fault.has_value()) {
        ADD_FAILURE() << "taken: " << text;
        return {};
    }
    return {contents.fault->key, contents.fault->text};
}

std::string pairs(int count)
{
    std::string text;
    for (int i = 0; i < count; ++i)
        text += ",1,1";
    return text;
}

/// A line that is valid and as long as that.
std::string lineOfLength(std::size_t length)
{
    const std::string begin = "1,";
    const std::string end = ",1,1.5";
    return begin + std::string(length - begin.size() - end.size(), 'x') + end;
}

TEST(LcbReader, TheExampleHasTwoFactorsOnTheFirstAndSecondCase)
{
    const std::vector<T_LCOM_D> found = combinations("12, any, 1, 1.2, 2, 1.6, ** dead and live");
    ASSERT_THAT(found, SizeIs(1));
    EXPECT_EQ(found[0].name, "LCB12");
    EXPECT_EQ(found[0].number, 12);
    EXPECT_EQ(found[0].active, T_LCOM_D().active);
    EXPECT_EQ(found[0].description, "");
    EXPECT_THAT(found[0].items, ElementsAre(T_LCOM_ITEM{1, first, 1.2}, T_LCOM_ITEM{1, second, 1.6}));
}

TEST(LcbReader, ALoadCaseIsNamedByItsPlaceInTheSequence)
{
    EXPECT_THAT(items("1,x,3,1,1,2,2,3"), ElementsAre(T_LCOM_ITEM{1, third, 1.0}, T_LCOM_ITEM{1, first, 2.0}, T_LCOM_ITEM{1, second, 3.0}));
}

TEST(LcbReader, ATrailingCommaAddsNothing)
{
    EXPECT_THAT(items("1,x,1,1.0,"), ElementsAre(T_LCOM_ITEM{1, first, 1.0}));
    EXPECT_THAT(items("1,x,1,1.0, , ,\t,"), ElementsAre(T_LCOM_ITEM{1, first, 1.0}));
    EXPECT_THAT(items("1,x,1,1.0, , ** c"), ElementsAre(T_LCOM_ITEM{1, first, 1.0}));
}

TEST(LcbReader, DelimitersRunTogetherSoThatThreeFieldsAreLeft)
{
    EXPECT_EQ(refused("1,,1,1.0"), (Refused{"IDS_ZEL_CMD__Error___No_load_case_and_factor_in_lin", "Error : No load case and factor in line 1."}));
    EXPECT_THAT(items(",,1,,x,,,1,1.0"), ElementsAre(T_LCOM_ITEM{1, first, 1.0}));
    EXPECT_THAT(items("1,x\r,\r1,1.0"), ElementsAre(T_LCOM_ITEM{1, first, 1.0})) << "a carriage return is a delimiter";
}

TEST(LcbReader, AFieldOfBlanksInTheMiddleIsAField)
{
    EXPECT_THAT(items("1, ,1,1.0"), ElementsAre(T_LCOM_ITEM{1, first, 1.0}));
}

TEST(LcbReader, AFactorOfExactlyZeroAddsNoItem)
{
    EXPECT_THAT(items("1,x,1,0.0"), IsEmpty());
    EXPECT_THAT(items("1,x,1,0,2,-0.0,3,1e-300"), ElementsAre(T_LCOM_ITEM{1, third, 1e-300}));
}

TEST(LcbReader, LinesOfOneIdMakeOneCombination)
{
    const std::vector<T_LCOM_D> found = combinations("5,x,1,1\n6,y,2,2\n5,z,3,3,1,4\n");
    ASSERT_THAT(found, SizeIs(2));
    EXPECT_EQ(found[0].name, "LCB5");
    EXPECT_THAT(found[0].items, ElementsAre(T_LCOM_ITEM{1, first, 1.0}, T_LCOM_ITEM{1, third, 3.0}, T_LCOM_ITEM{1, first, 4.0}));
    EXPECT_EQ(found[1].name, "LCB6");
}

TEST(LcbReader, AnIdIsAnyInteger)
{
    const std::vector<T_LCOM_D> found = combinations("-3,x,1,1\n+4,x,1,1\n 007 ,x,1,1\n0,x,1,1\n2147483647,x,1,1");
    ASSERT_THAT(found, SizeIs(5));
    EXPECT_EQ(found[0].name, "LCB-3");
    EXPECT_EQ(found[1].name, "LCB4");
    EXPECT_EQ(found[2].name, "LCB7");
    EXPECT_EQ(found[3].name, "LCB0");
    EXPECT_EQ(found[4].name, "LCB2147483647");
}

TEST(LcbReader, NumbersAreReadAsInTheFieldsOfForms)
{
    EXPECT_THAT(items("1,x, +2 , 1.2*2 ,1,-(1+2)/4,3,1.5e-3"), ElementsAre(T_LCOM_ITEM{1, second, 2.4}, T_LCOM_ITEM{1, first, -0.75}, T_LCOM_ITEM{1, third, 1.5e-3}));
}

TEST(LcbReader, ACommentEndsTheLine)
{
    EXPECT_THAT(combinations("** a comment\n**\n  **  , 1, 2\n"), IsEmpty());
    EXPECT_THAT(items("1,x,1,1,**,2,oops"), ElementsAre(T_LCOM_ITEM{1, first, 1.0}));
    EXPECT_THAT(items("1,x,1,1,  ** 2, 3"), ElementsAre(T_LCOM_ITEM{1, first, 1.0}));
    EXPECT_EQ(refused("1,**,1,1").key, "IDS_ZEL_CMD__Error___No_load_case_and_factor_in_lin");
}

TEST(LcbReader, OnlyAFieldWhoseFirstWordIsTwoStarsIsAComment)
{
    EXPECT_THAT(items("1,**x,1,1"), ElementsAre(T_LCOM_ITEM{1, first, 1.0}));
    EXPECT_THAT(items("1,x ** y,1,1"), ElementsAre(T_LCOM_ITEM{1, first, 1.0}));
    EXPECT_THAT(items("1,***,1,1"), ElementsAre(T_LCOM_ITEM{1, first, 1.0}));
    EXPECT_EQ(refused("1,x,1,1,*").key, "IDS_ZEL_CMD__Error___Mismatched_load_case_and_facto");
}

TEST(LcbReader, LinesWithoutAFieldAreSkippedButCounted)
{
    EXPECT_THAT(combinations(""), IsEmpty());
    EXPECT_THAT(combinations("\n\r\n , ,\n,,,,\n\t\n"), IsEmpty());
    EXPECT_EQ(refused("\n** c\n , ,\nx,x,1,1\n").text, "Error : Invalid load combination ID (x) in line 4.");
}

TEST(LcbReader, EndsOfLinesOfAllSystemsAreTaken)
{
    EXPECT_THAT(combinations("1,x,1,1\r\n2,x,1,1\r\n"), SizeIs(2));
    EXPECT_THAT(combinations("1,x,1,1\n2,x,1,1"), SizeIs(2));
    EXPECT_THAT(combinations("\xEF\xBB\xBF" "1,x,1,1\n2,x,1,1"), SizeIs(2)) << "the mark that some editors put before the text";
}

TEST(LcbReader, ALineOf1019CharactersPassesAndOneOf1020Stops)
{
    const Refused format{"IDS_ZEL_CMD__Error___Invalid_LCB_file_format_", "Error : Invalid LCB file format."};
    for (const char* end : {"", "\n", "\r\n"}) {
        EXPECT_THAT(items(lineOfLength(1019) + end), ElementsAre(T_LCOM_ITEM{1, first, 1.5}));
        for (const std::size_t length : {1020U, 1021U, 1022U, 1023U, 1024U, 1025U, 2048U})
            EXPECT_EQ(refused(lineOfLength(length) + end), format) << length;
    }
    EXPECT_EQ(refused("2,x,1,1\n" + lineOfLength(1020) + "\n3,x,1,1\n"), format) << "the whole import stops";
    EXPECT_EQ(refused("** " + std::string(1020, '-')), format) << "a comment too";
    EXPECT_EQ(refused(std::string(1020, ',')), format) << "a line without a field too";
}

TEST(LcbReader, FewerThanFourFieldsHaveNoLoadCaseAndFactor)
{
    for (const char* line : {"1", "1,x", "1,x,1", "bad", "bad,x,bad"})
        EXPECT_EQ(refused(std::string("\n") + line), (Refused{"IDS_ZEL_CMD__Error___No_load_case_and_factor_in_lin", "Error : No load case and factor in line 2."})) << line;
}

TEST(LcbReader, AnOddNumberOfFieldsDoesNotMatch)
{
    EXPECT_EQ(refused("bad,x,bad,bad,2"), (Refused{"IDS_ZEL_CMD__Error___Mismatched_load_case_and_facto", "Error : Load cases and factors don't match in line 1."}));
    EXPECT_EQ(refused("1,x" + pairs(50) + ",1").key, "IDS_ZEL_CMD__Error___Mismatched_load_case_and_facto") << "before the pairs are counted";
}

TEST(LcbReader, FiftyPairsAreTakenAndFiftyOneAreNot)
{
    EXPECT_THAT(items("1,x" + pairs(50)), SizeIs(50));
    EXPECT_EQ(refused("bad,x" + pairs(51)),
              (Refused{"IDS_ZEL_CMD__Error___Number_of_load_case__d__exceed", "Error : The number of load cases (51) exceeds the limit (50)."}));
    EXPECT_EQ(refused("1,x" + pairs(60)).text, "Error : The number of load cases (60) exceeds the limit (50).");
}

TEST(LcbReader, AnIdThatIsNoIntegerIsNamedWithItsLine)
{
    const auto invalid = [](const char* field) {
        return Refused{"IDS_ZEL_CMD__Error___Invalid_load_combination_ID__s", "Error : Invalid load combination ID (" + CString(field) + ") in line 1."};
    };
    for (const char* id : {"x", "1.5", "1 2", "2147483648", "1*2", "0x1"})
        EXPECT_EQ(refused(CString(id) + ",x,bad,bad"), invalid(id)) << "before the pairs are read";
    EXPECT_EQ(refused(" ,x,1,1"), invalid(""));
    EXPECT_EQ(refused("%s%d%%,x,1,1"), invalid("%s%d%%")) << "a text of the file is no format";
}

TEST(LcbReader, ALoadCaseThatIsNoIntegerIsNamedWithItsLine)
{
    const auto invalid = [](const char* field) {
        return Refused{"IDS_ZEL_CMD__Error___Invalid_load_case__s__in_line_", "Error : Invalid load case (" + CString(field) + ") in line 2."};
    };
    for (const char* place : {"DL", "1.0", "9999999999"})
        EXPECT_EQ(refused("\n1,x,1,1," + CString(place) + ",bad"), invalid(place));
    EXPECT_EQ(refused("\n1,x, ,1"), invalid(""));
}

TEST(LcbReader, ALoadCaseOutsideTheSequenceDoesNotExist)
{
    for (const char* place : {"0", "4", "-1", "2147483647"})
        EXPECT_EQ(refused("\n\n1,x," + CString(place) + ",bad"),
                  (Refused{"IDS_ZEL_CMD__Error___Load_case__d_in_line__d_does_n", "Error : Load case " + CString(place) + " in line 3 does not exist."}));
    EXPECT_THAT(items("1,x,3,1"), SizeIs(1));
    const auto model = zel::ModelDocument::inMemory();
    std::istringstream file("1,x,1,1");
    EXPECT_STREQ(zel::lcb::read(file, {}).fault->key, "IDS_ZEL_CMD__Error___Load_case__d_in_line__d_does_n") << "a model without load cases";
}

TEST(LcbReader, AFactorThatIsNoNumberIsNamedWithItsLine)
{
    const auto invalid = [](const char* field) {
        return Refused{"IDS_ZEL_CMD__Error___Invalid_load_case_factor__s__i", "Error : Invalid load case factor (" + CString(field) + ") in line 1."};
    };
    for (const char* factor : {"x", "1.2.3", "1+", "(1", "1e999", "nan", "inf", "1/0"})
        EXPECT_EQ(refused("1,x,1," + CString(factor)), invalid(factor));
    EXPECT_EQ(refused("1,x,1, ,1,1"), invalid(""));
}

TEST(LcbReader, MoreThanFiftyItemsOfOneIdAreRefused)
{
    EXPECT_THAT(items("1,x" + pairs(30) + "\n1,x" + pairs(20)), SizeIs(50));
    EXPECT_THAT(items("1,x" + pairs(50) + "\n1,x,1,0,2,0"), SizeIs(50)) << "a factor of zero is no item";
    EXPECT_EQ(refused("2,x,1,1\n1,x" + pairs(30) + "\n1,x" + pairs(21)),
              (Refused{"IDS_ZEL_CMD__Error___Number_of_load_case_exceeds_li", "Error : The number of load cases exceeds the limit (50)."}));
}

TEST(LcbReader, OnlyTheFirstFaultIsTold)
{
    EXPECT_EQ(refused("1,x,1,1\n2,x,9,1\n3,x\nbad,x,1,1").text, "Error : Load case 9 in line 2 does not exist.");
    EXPECT_EQ(refused("1,x,1,a,b,c").text, "Error : Invalid load case factor (a) in line 1.");
}

TEST(LcbReader, BytesThatAreNoTextAreFieldsLikeOthers)
{
    EXPECT_THAT(items(std::string("1,\0\xFF\x80,1,1", 9)), SizeIs(1));
    EXPECT_EQ(refused(std::string("1\0,x,1,1", 8)).key, "IDS_ZEL_CMD__Error___Invalid_load_combination_ID__s");
}

/// Breaks after its text.
class BreakingBuffer : public std::stringbuf {
public:
    using std::stringbuf::stringbuf;

protected:
    int_type underflow() override
    {
        const int_type next = std::stringbuf::underflow();
        if (traits_type::eq_int_type(next, traits_type::eof()))
            throw std::runtime_error("the disk is gone");
        return next;
    }
};

TEST(LcbReader, AFileThatBreaksOffWhileItIsReadIsRefused)
{
    const auto model = zel::ModelDocument::inMemory();
    BreakingBuffer buffer("1,x,1,1\n2,x,1,1\n");
    std::istream file(&buffer);
    const zel::lcb::Contents contents = zel::lcb::read(file, {first});
    ASSERT_TRUE(contents.fault.has_value());
    EXPECT_STREQ(contents.fault->key, "IDS_ZEL_CMD__Error___Invalid_LCB_file_format_");
    EXPECT_THAT(contents.combinations, IsEmpty());
}

}  // namespace
