#include "loadcomb/generation/row_text.h"

#include <gtest/gtest.h>
#include <ostream>

namespace {

using zel::loadcomb::analyseText;
using zel::loadcomb::testFeasibility;

/// Groups of a row from "DL LL- LR": a "-" behind the name is for a group without cases.
std::vector<_CCmd_Loadcase> groupsOf(std::string_view names)
{
    std::vector<_CCmd_Loadcase> groups;
    while (!names.empty()) {
        std::string_view word = names.substr(0, names.find(' '));
        names.remove_prefix(std::min(word.size() + 1, names.size()));
        _CCmd_Loadcase& made = groups.emplace_back();
        if (word.back() == '-')
            word.remove_suffix(1);
        else
            made.cases = {1};
        made.name = word;
    }
    return groups;
}

std::string marksOf(const std::vector<_CCmd_Loadcase>& groups)
{
    std::string marks;
    for (const _CCmd_Loadcase& group : groups) {
        if (group.inParentheses != 0)
            marks.append(marks.empty() ? "" : " ").append(group.name).append(" ").append(std::to_string(group.levels));
    }
    return marks;
}

struct Analysis {
    const char* what;
    const char* text;
    const char* groups;       // "-" behind a group without cases
    int level;                // final
    const char* marks;        // groups inside parentheses with their levels
    const char* left;         // text
};
void PrintTo(const Analysis& row, std::ostream* out)
{
    *out << row.what;
}

// Expected by hand: a token between blanks that holds "(" and ")" is looked at; each token in which a group was found is one level.
constexpr Analysis analyses[] = {
    {"no parentheses",              "1.4DL + 1.7LL",                      "DL LL",            1, "",                        "1.4DL + 1.7LL"},
    {"a full set",                  "1.0DL + 1.0(LL+LR)",                 "DL LL LR",         2, "LL 1 LR 1",               "1.0DL + 1.0(LL+LR)"},
    {"first member empty",          "1.0DL + 1.0(LL+LR)",                 "DL LL- LR",        2, "LL 1 LR 1",               "1.0DL + 1.0(LR)"},
    {"last member empty",           "1.0DL + 1.0(LL+LR)",                 "DL LL LR-",        2, "LL 1 LR 1",               "1.0DL + 1.0(LL+)"},
    {"both empty",                  "1.0DL + 1.0(LL+LR)",                 "DL LL- LR-",       2, "LL 1 LR 1",               "1.0DL + 1.0()"},
    {"an open token is skipped",    "0.75(1.4DL + 1.7(LL+LR) + 1.7WL)",   "DL LL LR WL",      2, "LL 1 LR 1",               "0.75(1.4DL + 1.7(LL+LR) + 1.7WL)"},
    {"two sets are two levels",     "1.2(DL+FP) + 1.6(LL+EH)",            "DL FP LL EH",      3, "DL 1 FP 1 LL 2 EH 2",     "1.2(DL+FP) + 1.6(LL+EH)"},
    {"nested sets share a level",   "1.6(LL+(EP+WP))",                    "LL EP WP",         2, "LL 1 EP 11 WP 11",        "1.6(LL+(EP+WP))"},
    {"nested, inner empty",         "1.6(LL+(EP+WP))",                    "LL EP- WP-",       2, "LL 1 EP 11 WP 11",        "1.6(LL+())"},
    {"token without a group",       "1.0(SUF)EL",                         "EL",               1, "",                        "1.0(SUF)EL"},
    {"a name in two parentheses",   "1.7(SUF)(1.1EL))",                   "EL-",              2, "EL 1",                    "1.7(SUF)(1.1))"},
    {"three nested pairs",          "1.6(LL+((APH)EV+EH))",               "LL EV- EH",        2, "LL 1 EV 11 EH 11",        "1.6(LL+((APH)EH))"},
    {"EL is found in ZEL",          "0.9DL + (SPC)(ZEL)DL",               "DL EL",            2, "EL 1",                    "0.9DL + (SPC)(ZEL)DL"},
    {"and EL is deleted where it stands first", "1.0EL + (SPC)(ZEL)(DL+EV)", "EL- DL EV",     2, "EL 1 DL 1 EV 1",          "1.0 + (SPC)(ZEL)(DL+EV)"},
    {"a sign behind goes with the name", "1.0(LL-LR)",                    "LL- LR",           2, "LL 1 LR 1",               "1.0(LR)"},
    {"two blanks make an empty token", "1.0DL  (LL+LR)",                  "DL LL LR",         2, "LL 1 LR 1",               "1.0DL  (LL+LR)"},
    {"parentheses the wrong way round", ")LL(",                           "LL",               1, "",                        ")LL("},
    {"more closing than opening",   "(LL))",                              "LL",               2, "LL 1",                    "(LL))"},
    {"empty text",                  "",                                   "LL",               1, "",                        ""},
};

class TextAnalysis : public testing::TestWithParam<Analysis> {};

TEST_P(TextAnalysis, MarksGroupsInParenthesesAndDeletesEmptyOnes)
{
    const Analysis& row = GetParam();
    std::vector<_CCmd_Loadcase> groups = groupsOf(row.groups);
    std::string text = row.text;
    EXPECT_EQ(analyseText(text, groups), row.level) << row.text;
    EXPECT_EQ(marksOf(groups), row.marks) << row.text;
    EXPECT_EQ(text, row.left) << row.text;
}

INSTANTIATE_TEST_SUITE_P(ByHand, TextAnalysis, testing::ValuesIn(analyses));

TEST(TextAnalysis, TokensAreCutBeforeAnythingIsDeleted)
{
    // Without LL the first token loses "LL+"; the second is still looked at as it was printed and loses its own.
    std::vector<_CCmd_Loadcase> groups = groupsOf("DL LL- LR");
    std::string text = "1.0(LL+LR) + 0.5(LL+LR)";
    EXPECT_EQ(analyseText(text, groups), 3);
    EXPECT_EQ(text, "1.0(LR) + 0.5(LR)");
    EXPECT_EQ(marksOf(groups), "LL 12 LR 12");
}

struct Feasible {
    const char* what;
    const char* text;
    const char* groups;
    const char* missing;    // the mandatory group without cases; "" if there is none
    int emptyLevel;         // 0 if none
    const char* left;       // text
};
void PrintTo(const Feasible& row, std::ostream* out)
{
    *out << row.what;
}

constexpr Feasible feasibilities[] = {
    {"all there",                        "1.4DL + 1.7LL",           "DL LL",      "",   0, "1.4DL + 1.7LL"},
    {"a mandatory group is missing",     "1.4DL + 1.7LL",           "DL LL-",     "LL", 0, "1.4DL + 1.7LL"},
    {"one of a set is enough",           "1.0DL + 1.0(LL+LR)",      "DL LL- LR",  "",   0, "1.0DL + 1.0(LR)"},
    {"none of a set",                    "1.0DL + 1.0(LL+LR)",      "DL LL- LR-", "",   1, "1.0DL + 1.0()"},
    {"the second set is empty",          "1.2(DL+FP) + 1.6(EP+WP)", "DL FP- EP- WP-", "", 2, "1.2(DL+) + 1.6()"},
    {"PS may be missing",                "1.4DL + 1.0PS",           "DL PS-",     "",   0, "1.4DL"},
    {"PS in front",                      "1.0PS + 1.4DL",           "PS- DL",     "",   0, "+ 1.4DL"},
    {"PS behind a minus",                "1.4DL - 1.0PS + 1.0LL",   "DL PS- LL",  "",   0, "1.4DL  + 1.0LL"},
    {"PS with cases stays",              "1.4DL + 1.0PS",           "DL PS",      "",   0, "1.4DL + 1.0PS"},
};

class Feasibility : public testing::TestWithParam<Feasible> {};

TEST_P(Feasibility, NeedsEachMandatoryGroupAndOneOfEachSet)
{
    const Feasible& row = GetParam();
    std::vector<_CCmd_Loadcase> groups = groupsOf(row.groups);
    std::string text = row.text;
    const int level = analyseText(text, groups);
    const zel::loadcomb::Feasibility found = testFeasibility(text, groups, level);
    EXPECT_EQ(found.feasible, std::string_view(row.missing).empty() && row.emptyLevel == 0);
    EXPECT_EQ(found.missing != nullptr ? found.missing->name : "", row.missing);
    EXPECT_EQ(found.emptyLevel, row.emptyLevel);
    EXPECT_EQ(text, row.left);
}

INSTANTIATE_TEST_SUITE_P(ByHand, Feasibility, testing::ValuesIn(feasibilities));

}  // namespace
