#include "loadcomb/formula_factors.h"
#include "loadcomb/handed_rows.h"

#include <iterator>
#include <map>

#include <gtest/gtest.h>

// The codes with seismic increments: what the formulas say is what the factors are, whatever groups have cases.
namespace {

using namespace handed;

const char* const codes[] = {"KBC-USD16", "KDS 41 30 : 2018", "KDS 41 20 : 2022", "KCI-USD12", "KBC-USD09"};
// The groups that select the variants of earthquake rows, each with and without cases, and sets of the other groups.
const char* const choosing[] = {"LL", "SL", "EV", "EH"};
const char* const others[] = {"", " WL EL", " WL EL LR RL FP"};

/// "DL" and those of `choosing` of which the bit is set.
std::string groupsOf(unsigned bits)
{
    std::string groups = "DL";
    for (unsigned i = 0; i < std::size(choosing); ++i) {
        if ((bits >> i & 1U) != 0)
            groups += std::string(" ") + choosing[i];
    }
    return groups;
}

bool names(std::string_view groups, std::string_view group)
{
    for (const std::string_view word : words(groups)) {
        if (word == group)
            return true;
    }
    return false;
}

void compare(const HandedRow& row, const std::string& groups, const std::string& where, bool tailLeavesEvOut)
{
    const std::map<std::string, double> tokens = {{"SUF", 1.0}, {"OMG", 1.0}, {"ZEL", S}, {"SPC", V}, {"VER", verticalForceFactor}, {"APH", alphaH}};
    const std::map<std::string, double> formula = tables::formulaFactors(row.text, tokens);
    EXPECT_EQ(formula.size(), row.factors.size()) << where << row.text;
    for (const auto& [group, factor] : row.factors) {
        if (!names(groups, group))
            continue;
        double shown = formula.at(group);
        if (group == "EV" && tailLeavesEvOut) {
            if (row.text.find(" + (SPC)(ZEL)DL") != std::string::npos)
                shown += S * V;
            if (row.text.find(" - (SPC)(ZEL)DL") != std::string::npos)
                shown -= S * V;
        }
        EXPECT_NEAR(factor, shown, 1e-12) << where << row.text << ": " << group;
    }
}

void compareAll(const char* code, const std::string& groups)
{
    for (const int type : {0, 1, 2}) {
        const Rows rows = rowsOf(code, groups, type);
        EXPECT_GE(rows.size(), 2U) << code << ", " << groups;
        for (const HandedRow& row : rows)
            compare(row, groups, std::string(code) + ", " + groups + ": ", std::string_view(code) == "KCI-USD12");
    }
}

// KCI-USD12 prints the increment behind DL alone and gives it to EV as well.
TEST(SeismicFormulas, ShowTheFactorsOfTheGroupsThatHaveCases)
{
    for (const char* code : codes) {
        for (unsigned bits = 0; bits < 16; ++bits) {
            for (const char* other : others)
                compareAll(code, groupsOf(bits) + other);
        }
    }
}

}  // namespace
