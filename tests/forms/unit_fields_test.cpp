#include "contract/forms/expression.h"
#include "contract/forms/forms.h"
#include "contract/units.h"
#include "platform/modeldb/model_document.h"

#include <cmath>

#include <gtest/gtest.h>

namespace {

using zel::ExpressionFault;

struct ExpressionCase {
    const char* text;
    ExpressionFault fault;
    double value;
};
void PrintTo(const ExpressionCase& row, std::ostream* out)
{
    *out << '"' << row.text << '"';
}

// clang-format off
constexpr ExpressionCase expressions[] = {
    {"2.4", ExpressionFault::none, 2.4},
    {" +3 ", ExpressionFault::none, 3.0},
    {"-.5", ExpressionFault::none, -0.5},
    {"5.", ExpressionFault::none, 5.0},
    {"1e-3", ExpressionFault::none, 0.001},
    {"2.5E+2", ExpressionFault::none, 250.0},
    {"1.2*2", ExpressionFault::none, 2.4},
    {"1 + 2 * 3", ExpressionFault::none, 7.0},
    {"(1+2)*3", ExpressionFault::none, 9.0},
    {"10/4", ExpressionFault::none, 2.5},
    {"7-2-1", ExpressionFault::none, 4.0},
    {"2^3^2", ExpressionFault::none, 512.0},
    {"2^-1", ExpressionFault::none, 0.5},
    {"-2^2", ExpressionFault::none, -4.0},
    {"-(3)", ExpressionFault::none, -3.0},
    {"1e30", ExpressionFault::none, 1e30},
    {"1e-400", ExpressionFault::none, 0.0},
    {"", ExpressionFault::formula, 0.0},
    {"   ", ExpressionFault::formula, 0.0},
    {"1.2*", ExpressionFault::formula, 0.0},
    {"*2", ExpressionFault::formula, 0.0},
    {"(1+2", ExpressionFault::formula, 0.0},
    {"1)", ExpressionFault::formula, 0.0},
    {"()", ExpressionFault::formula, 0.0},
    {"1 2", ExpressionFault::formula, 0.0},
    {"1.5.2", ExpressionFault::formula, 0.0},
    {"2(3)", ExpressionFault::formula, 0.0},
    {"e", ExpressionFault::formula, 0.0},
    {"2e", ExpressionFault::formula, 0.0},
    {"pi", ExpressionFault::character, 0.0},
    {"1,5", ExpressionFault::character, 0.0},
    {"sin(1)", ExpressionFault::character, 0.0},
    {"12mm", ExpressionFault::character, 0.0},
    {"inf", ExpressionFault::character, 0.0},
    {"0x10", ExpressionFault::character, 0.0},
    {"1=1", ExpressionFault::character, 0.0},
};
// clang-format on

class Expressions : public testing::TestWithParam<ExpressionCase> {};

TEST_P(Expressions, Evaluate)
{
    const zel::Expression result = zel::evaluateExpression(GetParam().text);
    EXPECT_EQ(static_cast<int>(result.fault), static_cast<int>(GetParam().fault));
    EXPECT_DOUBLE_EQ(result.value, GetParam().value);
}

INSTANTIATE_TEST_SUITE_P(All, Expressions, testing::ValuesIn(expressions));

TEST(Expressions, AValueAboveTheGreatestIsTooBig)
{
    for (const char* text : {"1.1e30", "-1.1e30", "1e400", "1/0", "0/0", "10^40", "1e300*1e300"})
        EXPECT_EQ(static_cast<int>(zel::evaluateExpression(text).fault), static_cast<int>(ExpressionFault::tooBig)) << text;
}

TEST(Expressions, ManyParenthesesAreNoHarm)
{
    const std::string nested = std::string(5000, '(') + "1" + std::string(5000, ')');
    EXPECT_DOUBLE_EQ(zel::evaluateExpression(nested).value, 1.0);
    EXPECT_EQ(static_cast<int>(zel::evaluateExpression(std::string(100000, '(')).fault), static_cast<int>(ExpressionFault::formula));
}

class UnitFields : public testing::Test {
protected:
    std::unique_ptr<zel::ModelDocument> model = zel::ModelDocument::inMemory({T_UNIT_INDEX::MM, T_UNIT_INDEX::KN});
    CInternationalDlg form{1, "Form"};
    CEditUnit length{form, "length", "Length :", Unit::length};
    CTextUnit lengthUnit{form, "lengthUnit", Unit::length};
    CEditUnit factor{form, "factor", "Factor :"};

    void setUnits(std::int32_t lengthIndex, std::int32_t forceIndex) const { model->GetUnitCtrl()->SetUnitIndexCurrent({lengthIndex, forceIndex}, 1); }
};

TEST_F(UnitFields, AnEmptyFieldHoldsNoNumber)
{
    double value = 17.0;
    EXPECT_EQ(length.GetEditValue(value), 0);
    EXPECT_DOUBLE_EQ(value, 17.0);
    EXPECT_DOUBLE_EQ(length.GetEditValue(), 0.0);
}

TEST_F(UnitFields, ReadNumbersAndExpressions)
{
    double value = 0.0;
    length.SetWindowText("1.2*2");
    EXPECT_NE(length.GetEditValue(value), 0);
    EXPECT_DOUBLE_EQ(value, 2.4);
    for (const char* text : {"abc", "1.2*", "1/0", "1e400", ""}) {
        length.SetWindowText(text);
        EXPECT_EQ(length.GetEditValue(value), 0) << text;
    }
    EXPECT_DOUBLE_EQ(value, 2.4);
}

TEST_F(UnitFields, WholeNumbersAreDigitsWithASign)
{
    int value = 5;
    for (const char* text : {"2.0", "1+1", "1e2", "", "x", "99999999999"}) {
        length.SetWindowText(text);
        EXPECT_EQ(length.GetEditValue(value), 0) << text;
    }
    EXPECT_EQ(value, 5);
    length.SetWindowText(" -12 ");
    EXPECT_NE(length.GetEditValue(value), 0);
    EXPECT_EQ(value, -12);
    CEdit plain{form, "plain", "Count"};
    plain.SetWindowText("+3");
    EXPECT_NE(CEditUnit::GetEditValue(&plain, value), 0);
    EXPECT_EQ(value, 3);
    EXPECT_EQ(CEditUnit::GetEditValue(static_cast<const CWnd*>(nullptr), value), 0);
}

TEST_F(UnitFields, ShowWithSixDigitsAndKeepWhatWasSet)
{
    length.SetEditUnit(1234567.891);
    EXPECT_EQ(length.GetWindowText(), "1.23457e+06");
    EXPECT_DOUBLE_EQ(length.GetEditValue(), 1234567.891);
    length.SetWindowText("1.23457e+06");
    EXPECT_DOUBLE_EQ(length.GetEditValue(), 1234570.0) << "what is written anew is what counts";
    length.SetEditText("%.2f", 2.0);
    EXPECT_EQ(length.GetWindowText(), "2.00");
}

TEST_F(UnitFields, FollowAChangeOfUnitsByThemselves)
{
    length.SetEditUnit(1000.0);
    factor.SetEditUnit(1000.0);
    EXPECT_EQ(lengthUnit.GetWindowText(), "mm");
    setUnits(T_UNIT_INDEX::M, T_UNIT_INDEX::KN);
    EXPECT_EQ(length.GetWindowText(), "1");
    EXPECT_EQ(lengthUnit.GetWindowText(), "m");
    EXPECT_EQ(factor.GetWindowText(), "1000") << "a number without a unit stays";
}

TEST_F(UnitFields, ConvertWhatTheUserHasTypedAndLeaveWhatIsNoNumber)
{
    length.SetEditUnit(1.0);
    length.SetWindowText("2*1000");
    factor.SetUnitType(Unit::force);
    factor.SetWindowText("heavy");
    setUnits(T_UNIT_INDEX::M, T_UNIT_INDEX::N);
    EXPECT_EQ(length.GetWindowText(), "2");
    EXPECT_EQ(factor.GetWindowText(), "heavy");
    setUnits(T_UNIT_INDEX::MM, T_UNIT_INDEX::KN);
    EXPECT_EQ(length.GetWindowText(), "2000");
}

TEST_F(UnitFields, AChangeOfAnotherUnitLeavesWhatIsBeingTyped)
{
    length.SetWindowText("2*1000");
    setUnits(T_UNIT_INDEX::MM, T_UNIT_INDEX::N);
    EXPECT_EQ(length.GetWindowText(), "2*1000");
    setUnits(T_UNIT_INDEX::M, T_UNIT_INDEX::N);
    EXPECT_EQ(length.GetWindowText(), "2");
}

TEST_F(UnitFields, ComeBackToTheLastDigit)
{
    length.SetEditUnit(1234.56789012345);
    setUnits(T_UNIT_INDEX::INCH, T_UNIT_INDEX::LBF);
    setUnits(T_UNIT_INDEX::FEET, T_UNIT_INDEX::KIP);
    setUnits(T_UNIT_INDEX::MM, T_UNIT_INDEX::KN);
    EXPECT_EQ(length.GetWindowText(), "1234.57");
    EXPECT_NEAR(length.GetEditValue(), 1234.56789012345, 1e-11);
}

TEST_F(UnitFields, AreNotConvertedTwiceWhenADialogWritesFromInsideTheNotice)
{
    // As in a dialog: its bases join the listeners before its members do.
    struct Dialog : CInternationalDlg, CDBUpdateConnector {
        Dialog() : CInternationalDlg(2, "Dialog") {}
        void OnUpdate(CView*, long long, CObject*) override { field.SetEditUnit(7.0); }
        CEditUnit field{*this, "field", "", Unit::length};
    };
    Dialog dialog;
    dialog.field.SetEditUnit(1000.0);
    setUnits(T_UNIT_INDEX::M, T_UNIT_INDEX::KN);
    EXPECT_EQ(dialog.field.GetWindowText(), "7");
}

TEST_F(UnitFields, UndoOfAChangeOfUnitsConvertsBack)
{
    length.SetEditUnit(1500.0);
    setUnits(T_UNIT_INDEX::M, T_UNIT_INDEX::KN);
    EXPECT_EQ(length.GetWindowText(), "1.5");
    model->Undo();
    EXPECT_EQ(length.GetWindowText(), "1500");
    EXPECT_EQ(lengthUnit.GetWindowText(), "mm");
}

TEST(UnitFieldsWithoutAModel, StillReadNumbers)
{
    CInternationalDlg form{1, "Form"};
    CEditUnit field{form, "field", "", Unit::length};
    field.SetEditUnit(2.5);
    EXPECT_DOUBLE_EQ(field.GetEditValue(), 2.5);
}

}  // namespace
