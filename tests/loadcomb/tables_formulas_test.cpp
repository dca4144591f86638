#include "loadcomb/formula_factors.h"
#include "loadcomb/handed_rows.h"

#include <algorithm>
#include <iterator>
#include <map>

#include <gtest/gtest.h>

// What the formulas say is what the factors are, whatever groups have cases, for every code of the registry.
namespace {

using namespace handed;

// The groups that select the variants of earthquake rows, each with and without cases, and sets of the other groups.
const char* const choosing[] = {"LL", "SL", "EV", "EH"};
const char* const others[] = {"", " WL EL", " WL EL LR RL FP", " WL EL LR FP EP WP"};

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

/// Rows that are printed with other numbers in the text than in the factors.
bool isMeantSo(std::string_view code, const HandedRow& row)
{
    return (code == "BS8110-97" && row.text.find("1.2(LL+LR)") != std::string::npos && row.text.find("WL") != std::string::npos) ||
        (code == "CSA-A23.3-94" && row.text == "1.25DL + 0.7(1.5(LL+LR))");    // with a pair that has no group
}

/// Returns how many rows were compared.
std::size_t compareAll(std::string_view code, const std::string& groups)
{
    std::size_t compared = 0;
    for (const int type : {0, 1, 2}) {
        for (const HandedRow& row : rowsOf(code, groups, type)) {
            if (isMeantSo(code, row))
                continue;
            compare(row, groups, std::string(code) + ", " + groups + ": ", code == "KCI-USD12");
            ++compared;
        }
    }
    return compared;
}

// KCI-USD12 prints the increment behind DL alone and gives it to EV as well.
TEST(Formulas, ShowTheFactorsOfTheGroupsThatHaveCases)
{
    for (const zel::codes::CodeEntry& code : zel::codes::codeRegistry) {
        std::size_t compared = 0;
        for (unsigned bits = 0; bits < 16; ++bits) {
            for (const char* other : others)
                compared += compareAll(code.name, groupsOf(bits) + other);
        }
        EXPECT_GE(compared, 16U * std::size(others)) << code.name;
    }
}

/// Rows that are printed with one sign alone.
bool isOneSided(std::string_view code, int type, const HandedRow& row)
{
    return (code == "CSA-A23.3-94" && row.text == "1.25DL + 0.7(1.5WL)") ||
        (code == "KBC-USD05" && type == 2 && row.text == "0.75(1.4DL + 1.7(LL+LR) - 1.7WL)");
}

// Wind and earthquakes act in both directions.
TEST(Formulas, OfWindAndEarthquakeStandWithBothSigns)
{
    for (const zel::codes::CodeEntry& code : zel::codes::codeRegistry) {
        for (unsigned bits = 0; bits < 16; ++bits) {
            for (const char* other : others) {
                for (const int type : {0, 1, 2}) {
                    const Rows rows = rowsOf(code.name, groupsOf(bits) + other, type);
                    for (const HandedRow& row : rows) {
                        if (isOneSided(code.name, type, row))
                            continue;
                        for (std::size_t i = 0; i < row.factors.size(); ++i) {
                            if (row.factors[i].first != "WL" && row.factors[i].first != "EL")
                                continue;
                            auto opposite = row.factors;
                            opposite[i].second = -opposite[i].second;
                            EXPECT_TRUE(std::any_of(rows.begin(), rows.end(), [&](const HandedRow& each) { return each.flag == row.flag && each.factors == opposite; }))
                                << code.name << ", " << groupsOf(bits) << other << ": " << row.text;
                        }
                    }
                }
            }
        }
    }
}

// Of the codes that treat earthquakes in full, a formula tells by its first factor what it is for.
TEST(Formulas, OfStrengthBeginWithAFactorOfStrength)
{
    for (const char* code : {"KBC-USD16", "KDS 41 30 : 2018", "KDS 41 20 : 2022", "KCI-USD12", "KBC-USD09"}) {
        for (unsigned bits = 0; bits < 16; ++bits) {
            for (const char* other : others) {
                for (const int type : {0, 1, 2}) {
                    for (const HandedRow& row : rowsOf(code, groupsOf(bits) + other, type)) {
                        const std::string first = row.text.substr(0, 3);
                        EXPECT_EQ(row.flag == strength, first == "1.4" || first == "1.2" || first == "0.9" || first == "-(V") << code << ": " << row.text;
                    }
                }
            }
        }
    }
}

}  // namespace
