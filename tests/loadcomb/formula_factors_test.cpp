#include "loadcomb/formula_factors.h"

#include "loadcomb/tables/code_registry.h"

#include <cmath>
#include <stdexcept>

#include <gtest/gtest.h>

namespace {

using Factors = std::map<std::string, double>;

using tables::formulaFactors;

// Worked by hand with factors that binary fractions hold exactly.
TEST(FormulaFactors, FollowTheParentheses)
{
    EXPECT_EQ(formulaFactors("0.5(1.5DL + 2.5(LL+LR) - 0.5WL)"), (Factors{{"DL", 0.75}, {"LL", 1.25}, {"LR", 1.25}, {"WL", -0.25}}));
    EXPECT_EQ(formulaFactors("(1.0DL - 3(LL+0.5LR))/2"), (Factors{{"DL", 0.5}, {"LL", -1.5}, {"LR", -0.75}}));
    EXPECT_EQ(formulaFactors("DL + 1.5(SUF)(2EL) + (S)(V)DL", {{"SUF", 1.0}, {"S", 0.5}, {"V", 0.25}}),
              (Factors{{"DL", 1.125}, {"EL", 3.0}}));
    EXPECT_EQ(formulaFactors("-(VER)DL ± (SUF*EL)", {{"VER", 0.5}, {"SUF", 1.0}}), (Factors{{"DL", -0.5}, {"EL", 1.0}}));
}

TEST(FormulaFactors, RefuseWhatIsNoSumOfGroups)
{
    EXPECT_THROW(formulaFactors("1.2DL + 1.6"), std::invalid_argument);
    EXPECT_THROW(formulaFactors("1.2DL + "), std::invalid_argument);
    EXPECT_THROW(formulaFactors("1.2(DL + LL"), std::invalid_argument);
    EXPECT_THROW(formulaFactors("1.2DL)"), std::invalid_argument);
    EXPECT_THROW(formulaFactors("DL*LL"), std::invalid_argument);
}

// Rows whose formula shows other factors than their items have, as their codes print them.
bool textAndFactorsDiffer(std::string_view code, std::string_view row)
{
    return code == "BS8110-97" && (row == "2" || row == "3");
}

// The codes of this test: those that print each row on its own, with neither "±" nor an X.
struct Printed {
    std::string_view name;
    const zel::codes::CodeTable* table;
};
constexpr Printed printedCodes[] = {
    {"AIK-USD94", &zel::codes::aik_usd94},
    {"KBC-USD05", &zel::codes::kbc_usd05},
    {"KCI-USD99", &zel::codes::kci_usd99},
    {"KSCE-USD96", &zel::codes::ksce_usd96},
    {"ACI318-89", &zel::codes::aci318_89},
    {"ACI318-02", &zel::codes::aci318_02},
    {"BS8110-97", &zel::codes::bs8110_97},
    {"GB50010-02", &zel::codes::gb50010_02},
    {"CSA-A23.3-94", &zel::codes::csa_a23_3_94},
    {"first without a name", &zel::codes::unnamed_first},
    {"second without a name", &zel::codes::unnamed_second},
};

// Short-period coefficient, vertical load factor and vertical force factor of the rows that take them.
constexpr double s = 0.5;
constexpr double v = 0.3;
constexpr double vertical = 0.2;

double valueOf(const zel::codes::Pair& pair)
{
    switch (pair.with) {
    case zel::codes::plusSpectrum: return pair.factor + s * v;
    case zel::codes::minusSpectrum: return pair.factor - s * v;
    case zel::codes::verticalForce: return pair.factor * vertical;
    default: return pair.factor;
    }
}

TEST(CodeTables, TheFactorsOfARowAreThoseOfItsFormula)
{
    const Factors known{{"SUF", 1.0}, {"OMG", 1.0}, {"ZEL", s}, {"SPC", v}, {"VER", vertical}};
    for (const Printed& code : printedCodes) {
        for (const zel::codes::Part& part : code.table->parts) {
            for (const zel::codes::Row& row : part.rows) {
                SCOPED_TRACE(std::string(code.name) + " row " + std::string(row.block) + ": " + std::string(row.text));
                Factors held;
                for (const zel::codes::Pair& pair : row.pairs) {
                    if (!pair.group.name.empty())
                        held[std::string(pair.group.name)] = valueOf(pair);
                }
                const Factors shown = formulaFactors(row.text, known);
                bool equal = shown.size() == held.size();
                for (const auto& [group, factor] : shown)
                    equal = equal && held.count(group) == 1 && std::abs(held[group] - factor) < 1e-12;
                EXPECT_EQ(equal, !textAndFactorsDiffer(code.name, row.block));
            }
        }
    }
}

TEST(CodeTables, TheFactorsOfARowStandInTheOrderOfItsFormula)
{
    for (const Printed& code : printedCodes) {
        for (const zel::codes::Part& part : code.table->parts) {
            for (const zel::codes::Row& row : part.rows) {
                std::size_t last = 0;
                for (const zel::codes::Pair& pair : row.pairs) {
                    if (pair.group.name.empty())
                        continue;
                    const std::size_t place = row.text.find(pair.group.name);
                    EXPECT_GE(place, last) << code.name << " row " << row.block << ": " << pair.group.name;
                    last = place;
                }
            }
        }
    }
}

}  // namespace
