#include "object_style/fixture.h"

#include "contract/tables/static_load_case_table.h"

namespace {

using zel::test::Lines;
using zel::test::ObjectStyleTest;
using zel::test::shortest;

class ObjectStyleGenerator : public ObjectStyleTest {
protected:
    JhautoGenLoadcomb generator{3};
};

TEST_F(ObjectStyleGenerator, IsNamedByItsNumberAndStartsAtKindOne)
{
    EXPECT_EQ(generator.id, 3U);
    EXPECT_EQ(generator.name, "JhautoGenLoadcomb3");
    EXPECT_EQ(generator.designKind(), 1U);
    EXPECT_EQ(generator.generatedCombinations().count(), 0U);
}

TEST_F(ObjectStyleGenerator, StoresTheRowsOfTheCodeOverOneCaseOfEachKind)
{
    addCases("DL:D LL:L WX:W EX:E");
    EXPECT_EQ(generator.Run(1, "AIK-USD94", replaceMode), 14);
    EXPECT_EQ(stored(),
              (Lines{
                  "LC1 | 0 | 1.0DL+1.0LL | DL 1, LL 1",
                  "LC2 | 0 | (1.0DL+1.0LL+1.0WL)/1.5 | DL 0.6666667, LL 0.6666667, WX 0.6666667",
                  "LC3 | 0 | (1.0DL+1.0LL-1.0WL)/1.5 | DL 0.6666667, LL 0.6666667, WX -0.6666667",
                  "LC4 | 0 | (1.0DL+1.0LL+1.0*SF*EL)/1.5 | DL 0.6666667, LL 0.6666667, EX 0.6666667",
                  "LC5 | 0 | (1.0DL+1.0LL-1.0*SF*EL)/1.5 | DL 0.6666667, LL 0.6666667, EX -0.6666667",
                  "LC6 | 1 | 1.4DL+1.7LL | DL 1.4, LL 1.7",
                  "LC7 | 1 | 0.75(1.4DL+1.7LL+1.7WL) | DL 1.05, LL 1.275, WX 1.275",
                  "LC8 | 1 | 0.75(1.4DL+1.7LL-1.7WL) | DL 1.05, LL 1.275, WX -1.275",
                  "LC9 | 1 | 0.9DL+1.3WL | DL 0.9, WX 0.3",
                  "LC10 | 1 | 0.9DL-1.3WL | DL 0.9, WX -0.3",
                  "LC11 | 1 | 0.75(1.4DL+1.7LL+1.7(1.1*SF*EL)) | DL 1.05, LL 1.275, EX 1.4025",
                  "LC12 | 1 | 0.75(1.4DL+1.7LL-1.7(1.1*SF*EL)) | DL 1.05, LL 1.275, EX -1.4025",
                  "LC13 | 1 | 0.9DL+1.3(1.1*SF*EL) | LL 0.9, EX 1.43",
                  "LC14 | 1 | 0.9DL-1.3(1.1*SF*EL) | LL 0.9, EX -1.43",
              }));
    EXPECT_TRUE(host.boxes.empty());
}

TEST_F(ObjectStyleGenerator, DeadLoadAloneGivesNothing)
{
    addCases("DL:D D2:D");
    EXPECT_EQ(generator.Run(1, "AIK-USD94", addMode), 0);
    EXPECT_EQ(stored(), Lines{});
    EXPECT_TRUE(host.boxes.empty()) << "a model with cases needs no message";
}

TEST_F(ObjectStyleGenerator, ARowSurvivesOnlyIfEachOfItsKindsHasACase)
{
    addCases("DL:D WX:W");
    EXPECT_EQ(generator.Run(1, "KCI-USD99", addMode), 4);
    EXPECT_EQ(stored(),
              (Lines{
                  "LC1 | 1 | 0.75(1.4DL+1.7WL) | DL 1.05, WX 1.275",
                  "LC2 | 1 | 0.75(1.4DL-1.7WL) | DL 1.05, WX -1.275",
                  "LC3 | 1 | 0.9DL+1.3WL | DL 0.9, WX 1.3",
                  "LC4 | 1 | 0.9DL-1.3WL | DL 0.9, WX -1.3",
              }));
}

TEST_F(ObjectStyleGenerator, TypesAreComparedExactly)
{
    addCases("DL:D LR:LR EEP:EEP WP:WP w:W");
    EXPECT_EQ(generator.Run(1, "ACI318-89", addMode), 2) << "LR is no L, EEP no E, WP no W";
    EXPECT_EQ(stored(), (Lines{"LC1 | 1 | 0.9DL+1.3WL | DL 0.9, w 1.3", "LC2 | 1 | 0.9DL-1.3WL | DL 0.9, w -1.3"}));
}

TEST_F(ObjectStyleGenerator, ASimpleRowTakesAllCasesOfItsKindsInOneCombination)
{
    addCases("D1:D L1:L D2:D L2:L");
    EXPECT_EQ(generator.Run(1, "KSCE-USD96", addMode), 2);
    EXPECT_EQ(stored(), (Lines{"LC1 | 0 | 1.0DL+1.0LL | D1 1, D2 1, L1 1, L2 1", "LC2 | 1 | 1.5DL+1.8LL | D1 1.5, D2 1.5, L1 1.8, L2 1.8"}));
}

TEST_F(ObjectStyleGenerator, EachWindCaseMakesACombinationOfItsOwnInModelOrder)
{
    addCases("WY:W D1:D L1:L WX:W D2:D L2:L");
    EXPECT_EQ(generator.Run(1, "AIK-USD94", addMode), 14);
    const Lines lines = stored();
    ASSERT_EQ(lines.size(), 14U);
    EXPECT_EQ(Lines(lines.begin(), lines.begin() + 5),
              (Lines{
                  "LC1 | 0 | 1.0DL+1.0LL | D1 1, D2 1, L1 1, L2 1",
                  "LC2 | 0 | (1.0DL+1.0LL+1.0WL)/1.5 | D1 0.6666667, D2 0.6666667, L1 0.6666667, L2 0.6666667, WY 0.6666667",
                  "LC3 | 0 | (1.0DL+1.0LL+1.0WL)/1.5 | D1 0.6666667, D2 0.6666667, L1 0.6666667, L2 0.6666667, WX 0.6666667",
                  "LC4 | 0 | (1.0DL+1.0LL-1.0WL)/1.5 | D1 0.6666667, D2 0.6666667, L1 0.6666667, L2 0.6666667, WY -0.6666667",
                  "LC5 | 0 | (1.0DL+1.0LL-1.0WL)/1.5 | D1 0.6666667, D2 0.6666667, L1 0.6666667, L2 0.6666667, WX -0.6666667",
              }));
}

TEST_F(ObjectStyleGenerator, EachEarthquakeCaseMakesACombinationWithItsOwnScaleFactor)
{
    addCases("LL:L EX:E EY:E");
    generator.SetScaleFactors({{2, 1.25}, {3, 2.0}});
    EXPECT_EQ(generator.Run(1, "AIK-USD94", addMode), 4);
    // 1.43 is 1.42999994754... in 32 bits; times 1.25 that is 1.787499934..., between 1.78749990463 and 1.78750002384.
    EXPECT_EQ(stored(),
              (Lines{
                  "LC1 | 1 | 0.9DL+1.3(1.1*SF*EL) | LL 0.9, EX 1.7874999",
                  "LC2 | 1 | 0.9DL+1.3(1.1*SF*EL) | LL 0.9, EY 2.86",
                  "LC3 | 1 | 0.9DL-1.3(1.1*SF*EL) | LL 0.9, EX -1.7874999",
                  "LC4 | 1 | 0.9DL-1.3(1.1*SF*EL) | LL 0.9, EY -2.86",
              }));
}

TEST_F(ObjectStyleGenerator, ScaleFactorsReachEarthquakeAlone)
{
    addCases("DL:D LL:L WX:W");
    generator.SetScaleFactors({{1, 2.0}, {2, 2.0}, {3, 2.0}});
    EXPECT_EQ(generator.Run(1, "ACI318-95", addMode), 8);
    EXPECT_EQ(stored()[1], "LC2 | 0 | 0.75(1.0DL+1.0LL+1.0WL) | DL 0.75, LL 0.75, WX 0.75");
    EXPECT_EQ(stored()[6], "LC7 | 1 | 0.9DL+1.3WL | DL 0.9, WX 1.3");
}

TEST_F(ObjectStyleGenerator, ScaleFactorsReplaceFormerOnesAndPassOverUnknownCases)
{
    addCases("DL:D EX:E");
    generator.SetScaleFactors({{2, 3.0}});
    generator.SetScaleFactors({{99, 2.0}});
    EXPECT_EQ(generator.Run(1, "KSCE-USD96", addMode), 2);
    EXPECT_EQ(stored()[0], "LC1 | 1 | 0.9DL+1.4EL | DL 0.9, EX 1.4");
}

TEST_F(ObjectStyleGenerator, AddModeNumbersOnFromTheCountOfExistingCombinations)
{
    addCases("DL:D LL:L");
    addCombination("mine");
    addCombination("gLCB40");
    EXPECT_EQ(generator.Run(1, "ACI318-99", addMode), 2);
    EXPECT_EQ(names(), (std::vector<CString>{"mine", "gLCB40", "LC3", "LC4"}));
}

TEST_F(ObjectStyleGenerator, ReplaceModeNumbersFromOneAndDeletesWhatWasThere)
{
    addCases("DL:D LL:L");
    addCombination("mine");
    addCombination("LC2");
    EXPECT_EQ(generator.Run(1, "ACI318-99", replaceMode), 2);
    EXPECT_EQ(names(), (std::vector<CString>{"LC1", "LC2"}));
}

TEST_F(ObjectStyleGenerator, ReplaceModeDeletesEvenIfNothingTakesThePlace)
{
    addCases("DL:D");
    addCombination("mine");
    EXPECT_EQ(generator.Run(1, "AIK-USD94", replaceMode), 0);
    EXPECT_EQ(names(), std::vector<CString>{});
}

TEST_F(ObjectStyleGenerator, ReplaceModeLeavesOtherKindsAlone)
{
    addCases("DL:D LL:L");
    addCombination("mine", 1);
    addCombination("concrete", 3);
    EXPECT_EQ(generator.Run(3, "ACI318-99", replaceMode), 2);
    EXPECT_EQ(names(1), (std::vector<CString>{"mine"}));
    EXPECT_EQ(names(3), (std::vector<CString>{"LC1", "LC2"}));
}

TEST_F(ObjectStyleGenerator, ANameThatIsTakenIsRefusedAndTheOthersAreStored)
{
    addCases("DL:D LL:L");
    addCombination("LC3");
    addCombination("x");
    EXPECT_EQ(generator.Run(1, "ACI318-99", addMode), 1);
    EXPECT_EQ(names(), (std::vector<CString>{"LC3", "x", "LC4"}));
    EXPECT_EQ(host.boxes.size(), 1U) << "the model says so";
}

TEST_F(ObjectStyleGenerator, TakesTheKindsTwoToFiveAndReadsOneForAnyOther)
{
    addCases("DL:D LL:L");
    for (const int kind : {1, 2, 3, 4, 5})
        addCombination("old", kind);
    for (const int kind : {2, 3, 4, 5}) {
        JhautoGenLoadcomb other(1);
        EXPECT_EQ(other.Run(kind, "ACI318-99", addMode), 2);
        EXPECT_EQ(other.designKind(), static_cast<std::uint32_t>(kind));
        EXPECT_EQ(names(kind), (std::vector<CString>{"old", "LC2", "LC3"}));
        EXPECT_EQ((*other.currentCombinations().begin())->kind, static_cast<std::uint32_t>(kind));
        EXPECT_EQ((*other.generatedCombinations().begin())->kind, 1U) << "that of the table row";
    }
    for (const int kind : {1, 0, 6, -1}) {
        JhautoGenLoadcomb other(1);
        other.Run(kind, "no code", addMode);
        EXPECT_EQ(other.designKind(), 1U) << kind;
        EXPECT_EQ(other.currentCombinations().count(), 1U) << kind;
    }
    EXPECT_EQ(names(1), (std::vector<CString>{"old"}));
}

TEST_F(ObjectStyleGenerator, AKindThatIsNoneIsReadAsOneAndRefusedByTheModel)
{
    addCases("DL:D LL:L");
    addCombination("mine", 1);
    EXPECT_EQ(generator.Run(6, "ACI318-99", replaceMode), 0);
    EXPECT_EQ(generator.designKind(), 1U);
    EXPECT_EQ(generator.generatedCombinations().count(), 2U);
    EXPECT_EQ(host.boxes.size(), 2U) << "one refusal a combination";
    EXPECT_EQ(names(1), (std::vector<CString>{"mine"})) << "what is replaced is the kind as passed";
}

TEST_F(ObjectStyleGenerator, ARunInsideAChangeIsTakenBackWithIt)
{
    addCases("DL:D LL:L");
    addCombination("mine");
    model->beginChange("outer");
    EXPECT_EQ(generator.Run(1, "ACI318-99", replaceMode), 2);
    model->endChange(0);
    EXPECT_EQ(names(), (std::vector<CString>{"mine"}));
}

TEST_F(ObjectStyleGenerator, WithoutALoadCaseItShowsAMessageAndWritesNothing)
{
    addCombination("mine", 1, {});
    EXPECT_EQ(generator.Run(1, "AIK-USD94", replaceMode), 0);
    EXPECT_EQ(host.keys(), (std::vector<CString>{"IDS_ZEL_CMD__No_Existing_Any_Load_Case____"}));
    EXPECT_EQ(names(), (std::vector<CString>{"mine"}));
    EXPECT_EQ(generator.codes().count(), 0U);
}

TEST_F(ObjectStyleGenerator, ACodeThatIsNotInTheListGeneratesNothing)
{
    addCases("DL:D LL:L WX:W EX:E");
    for (const char* code : {"ACI318-02", "aik-usd94", "AIK-USD94 ", ""}) {
        EXPECT_EQ(JhautoGenLoadcomb(1).Run(1, code, addMode), 0) << code;
        EXPECT_EQ(names(), std::vector<CString>{}) << code;
    }
}

TEST_F(ObjectStyleGenerator, ReadsTheLoadCasesAsObjects)
{
    T_STLD_D record = zel::test::loadCase("EX", "E");
    record.description = "Earthquake along X";
    ASSERT_NE(CDataStld().Add(record), 0);
    addCases("DL:D");
    generator.SetScaleFactors({{1, 1.1}});
    generator.Run(1, "AIK-USD94", addMode);
    ASSERT_EQ(generator.currentLoadcases().count(), 2U);
    const Jhloadcase& ex = **generator.currentLoadcases().begin();
    EXPECT_EQ(ex.id, 1U);
    EXPECT_EQ(ex.name, "EX");
    EXPECT_EQ(ex.type, "E");
    EXPECT_EQ(ex.description, "Earthquake along X");
    EXPECT_EQ(ex.factor, 1.1F);
    EXPECT_EQ((*std::next(generator.currentLoadcases().begin()))->factor, 1.0F);
}

TEST_F(ObjectStyleGenerator, ReadsTheCombinationsAsObjectsWithLinks)
{
    addCases("DL:D LL:L");
    addCombination("mine", 1, {{1, 1, 1.2}, {1, 2, -0.5}}, 0);
    addCombination("other", 1, {{1, 2, 1.6}}, 2);
    addCombination("third", 1, {}, 1);
    generator.Run(1, "no code", addMode);
    Lines read;
    for (const JhloadCombination* combination : generator.currentCombinations()) {
        std::string line =
            std::to_string(combination->id) + " " + combination->name + " " + std::to_string(combination->active) + " " + combination->description;
        for (const JhassoLoadcombLoadcase* link : combination->cases)
            line += "; " + std::to_string(link->id) + " " + link->loadcase()->name + " " + shortest(link->factor) + " of type " + std::to_string(link->type);
        read.push_back(line);
        EXPECT_EQ(combination->code, nullptr);
    }
    EXPECT_EQ(read,
              (Lines{"1 LC1 0 text of mine; 1 DL 1.2 of type 1; 2 LL -0.5 of type 1", "2 LC2 0 text of other; 3 LL 1.6 of type 1", "3 LC3 1 text of third"}))
        << "only the flag 1 is active";
    EXPECT_EQ((*generator.currentLoadcases().begin())->combinations.count(), 1U);
    EXPECT_EQ((*std::next(generator.currentLoadcases().begin()))->combinations.count(), 2U);
}

TEST_F(ObjectStyleGenerator, AnItemOfAnUnknownCaseStaysALinkWithoutACase)
{
    addCases("DL:D LL:L");
    addCombination("mine", 1, {{2, 99, 1.5}, {1, 1, 1.0}});
    EXPECT_EQ(generator.Run(1, "ACI318-89", addMode), 2);
    const JhloadCombination& mine = **generator.currentCombinations().begin();
    ASSERT_EQ(mine.cases.count(), 2U);
    const JhassoLoadcombLoadcase& link = **mine.cases.begin();
    EXPECT_EQ(link.loadcase(), nullptr);
    EXPECT_EQ(link.combination(), &mine);
    EXPECT_EQ(link.type, 2);
    EXPECT_EQ(link.factor, 1.5F);
}

TEST_F(ObjectStyleGenerator, GeneratedObjectsCountFromOneAndNamesCountApart)
{
    addCases("DL:D LL:L");
    addCombination("mine", 1, {{1, 1, 1.0}, {1, 2, 1.0}});
    generator.Run(1, "ACI318-89", addMode);
    Lines made;
    for (const JhloadCombination* combination : generator.generatedCombinations()) {
        std::string line = std::to_string(combination->id) + " " + combination->name;
        for (const JhassoLoadcombLoadcase* link : combination->cases)
            line += ", link " + std::to_string(link->id);
        made.push_back(line);
    }
    EXPECT_EQ(made, (Lines{"1 LC2, link 3, link 4", "2 LC3, link 5, link 6"}));
}

TEST_F(ObjectStyleGenerator, ARunIsOneStepToUndo)
{
    addCases("DL:D LL:L");
    addCombination("mine");
    ASSERT_EQ(generator.Run(1, "ACI318-89", replaceMode), 2);
    ASSERT_NE(model->Undo(), 0);
    EXPECT_EQ(names(), (std::vector<CString>{"mine"}));
}

TEST_F(ObjectStyleGenerator, SharesNothingWithTheModelAfterItsRun)
{
    addCases("DL:D LL:L");
    ASSERT_EQ(generator.Run(1, "ACI318-89", addMode), 2);
    ASSERT_EQ(JhautoGenLoadcomb(4).Run(1, "ACI318-89", addMode), 2) << "what is stored does not count as a duplicate";
    EXPECT_EQ(names(), (std::vector<CString>{"LC1", "LC2", "LC3", "LC4"}));
    EXPECT_EQ(generator.generatedCombinations().count(), 2U);
}

}  // namespace
