#include "object_style/fixture.h"

namespace {

using zel::test::Lines;
using zel::test::ObjectStyleTest;
using zel::test::shortest;

/// Runs on one load case, which is enough to make the tables.
class ObjectStyleTables : public ObjectStyleTest {
protected:
    JhautoGenLoadcomb generator{1};

    void SetUp() override
    {
        addCases("DL:D");
        generator.Run(1, "AIK-USD94", addMode);
    }

    /// The rows of a code: "s | 1.0DL+1.0LL | D 1, L 1"; s for service, u for ultimate strength.
    [[nodiscard]] Lines rowsOf(const char* name) const
    {
        Lines lines;
        for (const JhcodeLoadcomb* code : generator.codes()) {
            if (code->name != name)
                continue;
            for (const JhloadCombination* row : code->combinations) {
                std::string factors;
                for (const JhassoLoadcombLoadcase* link : row->cases)
                    factors.append(factors.empty() ? "" : ", ").append(link->loadcase()->type).append(" ").append(shortest(link->factor));
                lines.push_back(std::string(row->active == 1 ? "u" : "s") + " | " + row->description + " | " + factors);
            }
        }
        return lines;
    }
};

const Lines aci318{
    "s | 1.0DL+1.0LL | D 1, L 1",
    "s | 0.75(1.0DL+1.0LL+1.0WL) | D 0.75, L 0.75, W 0.75",
    "s | 0.75(1.0DL+1.0LL-1.0WL) | D 0.75, L 0.75, W -0.75",
    "s | 0.75(1.0DL+1.0LL+1.0*SF*EL) | D 0.75, L 0.75, E 0.75",
    "s | 0.75(1.0DL+1.0LL-1.0*SF*EL) | D 0.75, L 0.75, E -0.75",
    "u | 1.4DL+1.7LL | D 1.4, L 1.7",
    "u | 0.75(1.4DL+1.7LL+1.7WL) | D 1.05, L 1.275, W 1.275",
    "u | 0.75(1.4DL+1.7LL-1.7WL) | D 1.05, L 1.275, W -1.275",
    "u | 0.9DL+1.3WL | D 0.9, W 1.3",
    "u | 0.9DL-1.3WL | D 0.9, W -1.3",
    "u | 0.75(1.4DL+1.7LL+1.7(1.1*SF*EL)) | D 1.05, L 1.275, E 1.4025",
    "u | 0.75(1.4DL+1.7LL-1.7(1.1*SF*EL)) | D 1.05, L 1.275, E -1.4025",
    "u | 0.9DL+1.3(1.1*SF*EL) | D 0.9, E 1.43",
    "u | 0.9DL-1.3(1.1*SF*EL) | D 0.9, E -1.43",
};

TEST_F(ObjectStyleTables, AikUsd94KeepsItsTwoPeculiarities)
{
    EXPECT_EQ(rowsOf("AIK-USD94"),
              (Lines{
                  "s | 1.0DL+1.0LL | D 1, L 1",
                  "s | (1.0DL+1.0LL+1.0WL)/1.5 | D 0.6666667, L 0.6666667, W 0.6666667",
                  "s | (1.0DL+1.0LL-1.0WL)/1.5 | D 0.6666667, L 0.6666667, W -0.6666667",
                  "s | (1.0DL+1.0LL+1.0*SF*EL)/1.5 | D 0.6666667, L 0.6666667, E 0.6666667",
                  "s | (1.0DL+1.0LL-1.0*SF*EL)/1.5 | D 0.6666667, L 0.6666667, E -0.6666667",
                  "u | 1.4DL+1.7LL | D 1.4, L 1.7",
                  "u | 0.75(1.4DL+1.7LL+1.7WL) | D 1.05, L 1.275, W 1.275",
                  "u | 0.75(1.4DL+1.7LL-1.7WL) | D 1.05, L 1.275, W -1.275",
                  "u | 0.9DL+1.3WL | D 0.9, W 0.3",
                  "u | 0.9DL-1.3WL | D 0.9, W -0.3",
                  "u | 0.75(1.4DL+1.7LL+1.7(1.1*SF*EL)) | D 1.05, L 1.275, E 1.4025",
                  "u | 0.75(1.4DL+1.7LL-1.7(1.1*SF*EL)) | D 1.05, L 1.275, E -1.4025",
                  "u | 0.9DL+1.3(1.1*SF*EL) | L 0.9, E 1.43",
                  "u | 0.9DL-1.3(1.1*SF*EL) | L 0.9, E -1.43",
              }));
}

TEST_F(ObjectStyleTables, TheThreeAciEditionsAreTheSame)
{
    EXPECT_EQ(rowsOf("ACI318-89"), aci318);
    EXPECT_EQ(rowsOf("ACI318-95"), aci318);
    EXPECT_EQ(rowsOf("ACI318-99"), aci318);
}

TEST_F(ObjectStyleTables, KciUsd99GoesOnFromTheFirstRowsOfAik)
{
    EXPECT_EQ(rowsOf("KCI-USD99"),
              (Lines{
                  "s | 1.0DL+1.0LL | D 1, L 1",
                  "s | (1.0DL+1.0LL+1.0WL)/1.5 | D 0.6666667, L 0.6666667, W 0.6666667",
                  "s | (1.0DL+1.0LL-1.0WL)/1.5 | D 0.6666667, L 0.6666667, W -0.6666667",
                  "s | (1.0DL+1.0LL+1.0*SF*EL)/1.5 | D 0.6666667, L 0.6666667, E 0.6666667",
                  "s | (1.0DL+1.0LL-1.0*SF*EL)/1.5 | D 0.6666667, L 0.6666667, E -0.6666667",
                  "u | 1.4DL+1.7LL | D 1.4, L 1.7",
                  "u | 0.75(1.4DL+1.7LL+1.7WL) | D 1.05, L 1.275, W 1.275",
                  "u | 0.75(1.4DL+1.7LL-1.7WL) | D 1.05, L 1.275, W -1.275",
                  "u | 0.75(1.4DL+1.7WL) | D 1.05, W 1.275",
                  "u | 0.75(1.4DL-1.7WL) | D 1.05, W -1.275",
                  "u | 0.9DL+1.3WL | D 0.9, W 1.3",
                  "u | 0.9DL-1.3WL | D 0.9, W -1.3",
                  "u | 0.75(1.4DL+1.7LL+1.8*SF*EL) | D 1.05, L 1.275, E 1.35",
                  "u | 0.75(1.4DL+1.7LL-1.8*SF*EL) | D 1.05, L 1.275, E -1.35",
                  "u | 0.9DL+1.4EL | D 0.9, E 1.4",
                  "u | 0.9DL-1.4EL | D 0.9, E -1.4",
              }));
}

TEST_F(ObjectStyleTables, KsceUsd96DividesByTwoNumbers)
{
    EXPECT_EQ(rowsOf("KSCE-USD96"),
              (Lines{
                  "s | 1.0DL+1.0LL | D 1, L 1",
                  "s | (1.0DL+1.0LL+1.0WL)/1.25 | D 0.8, L 0.8, W 0.8",
                  "s | (1.0DL+1.0LL-1.0WL)/1.25 | D 0.8, L 0.8, W -0.8",
                  "s | (1.0DL+1.0LL+1.0*SF*EL)/1.35 | D 0.7407407, L 0.7407407, E 0.7407407",
                  "s | (1.0DL+1.0LL-1.0*SF*EL)/1.35 | D 0.7407407, L 0.7407407, E -0.7407407",
                  "u | 1.5DL+1.8LL | D 1.5, L 1.8",
                  "u | 0.75(1.5DL+1.8LL+1.8WL) | D 1.125, L 1.35, W 1.35",
                  "u | 0.75(1.5DL+1.8LL-1.8WL) | D 1.125, L 1.35, W -1.35",
                  "u | 0.9DL+1.4WL | D 0.9, W 1.4",
                  "u | 0.9DL-1.4WL | D 0.9, W -1.4",
                  "u | 0.75(1.5DL+1.8LL+1.8*SF*EL) | D 1.125, L 1.35, E 1.35",
                  "u | 0.75(1.5DL+1.8LL-1.8*SF*EL) | D 1.125, L 1.35, E -1.35",
                  "u | 0.9DL+1.4EL | D 0.9, E 1.4",
                  "u | 0.9DL-1.4EL | D 0.9, E -1.4",
              }));
}

TEST_F(ObjectStyleTables, FactorsAreTheThirtyTwoBitNumbers)
{
    const JhcodeLoadcomb& ksce = **std::prev(generator.codes().end());
    const JhloadCombination& fourth = **std::next(ksce.combinations.begin(), 3);
    EXPECT_EQ((*fourth.cases.begin())->factor, static_cast<float>(0.7407407407407407));
    const JhcodeLoadcomb& aik = **generator.codes().begin();
    const JhloadCombination& second = **std::next(aik.combinations.begin());
    EXPECT_EQ((*second.cases.begin())->factor, static_cast<float>(0.6666666666666666));
}

TEST_F(ObjectStyleTables, CodesAndRowsCountFromOneOverAllCodes)
{
    Lines codes;
    for (const JhcodeLoadcomb* code : generator.codes()) {
        const JhloadCombination& first = **code->combinations.begin();
        codes.push_back(std::to_string(code->id) + " " + code->name + ": " + std::to_string(code->combinations.count()) + " rows from " + first.name);
    }
    EXPECT_EQ(codes,
              (Lines{"1 AIK-USD94: 14 rows from LC1", "2 ACI318-89: 14 rows from LC15", "3 ACI318-95: 14 rows from LC29", "4 ACI318-99: 14 rows from LC43",
                     "5 KCI-USD99: 16 rows from LC57", "6 KSCE-USD96: 14 rows from LC73"}));
    std::uint32_t number = 0;
    for (const JhloadCombination* row : generator.codeCombinations()) {
        EXPECT_EQ(row->id, ++number);
        EXPECT_EQ(row->kind, 1U);
        EXPECT_EQ(row->type, 0);
        ASSERT_NE(row->code, nullptr);
        EXPECT_TRUE(row->code->combinations.find(row->id) == row);
    }
    EXPECT_EQ(number, 86U);
}

TEST_F(ObjectStyleTables, LinksCountFromOneOverAllRows)
{
    std::uint32_t number = 0;
    for (const JhloadCombination* row : generator.codeCombinations()) {
        for (const JhassoLoadcombLoadcase* link : row->cases)
            EXPECT_EQ(link->id, ++number);
    }
    // Service rows 2 + 4*3 = 14. Strength rows of KCI 2 + 2*3 + 4*2 + 2*3 + 2*2 = 26, of the five others 2 + 2*(3 + 2 + 3 + 2) = 22.
    EXPECT_EQ(number, 5U * (14U + 22U) + 14U + 26U);
}

TEST_F(ObjectStyleTables, LoadKindsCountFromZeroAndTakeTheirTextsFromMessages)
{
    Lines kinds;
    for (const Jhloadcase* kind : generator.loadKinds())
        kinds.push_back(std::to_string(kind->id) + " " + kind->type + " " + kind->description.substr(0, kind->description.find(']') + 1));
    EXPECT_EQ(kinds,
              (Lines{
                  "0 [IDS_ZEL_CMD__USER]USER [IDS_ZEL_CMD__User_Defined_Load]",
                  "1 D [IDS_ZEL_CMD__Dead_Load]",
                  "2 L [IDS_ZEL_CMD__Live_Load]",
                  "3 LR [IDS_ZEL_CMD__Roof_Live_Load]",
                  "4 W [IDS_ZEL_CMD__Wind_Load_on_Structure]",
                  "5 E [IDS_ZEL_CMD__Earthquake]",
                  "6 S [IDS_ZEL_CMD__Snow_Load]",
                  "7 R [IDS_ZEL_CMD__Rain_Load]",
                  "8 IL [IDS_ZEL_CMD__Live_Load_Impact]",
                  "9 B [IDS_ZEL_CMD__Buoyancy]",
                  "10 WP [IDS_ZEL_CMD__Stream_Flow_Pressure]",
              }));
}

TEST_F(ObjectStyleTables, UseTheKindsOneTwoFourAndFive)
{
    for (const Jhloadcase* kind : generator.loadKinds()) {
        const bool used = kind->id == 1 || kind->id == 2 || kind->id == 4 || kind->id == 5;
        EXPECT_EQ(kind->combinations.count() > 0, used) << kind->type;
    }
}

}  // namespace
