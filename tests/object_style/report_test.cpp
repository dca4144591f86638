#include "object_style/fixture.h"

#include <sstream>

namespace {

using zel::MessageCatalogue;
using zel::test::contentsOf;
using zel::test::Lines;
using zel::test::ObjectStyleTest;
using zel::test::writeFile;

class ObjectStyleReport : public ObjectStyleTest {
protected:
    [[nodiscard]] std::string report() const { return contentsOf(here.folder / "lcomb.out"); }

    [[nodiscard]] Lines reportLines() const
    {
        Lines lines;
        std::istringstream text(report());
        for (std::string line; std::getline(text, line);)
            lines.push_back(line);
        return lines;
    }
};

TEST_F(ObjectStyleReport, MakingTheGeneratorCreatesTheFileInTheWorkingDirectory)
{
    ASSERT_FALSE(std::filesystem::exists("lcomb.out"));
    const JhautoGenLoadcomb generator(1);
    EXPECT_EQ(generator.reportName(), "lcomb.out");
    EXPECT_TRUE(std::filesystem::exists(here.folder / "lcomb.out"));
    EXPECT_EQ(report(), "");
}

TEST_F(ObjectStyleReport, MakingTheGeneratorEmptiesAFormerReport)
{
    writeFile("lcomb.out", "former");
    const JhautoGenLoadcomb generator(1);
    EXPECT_EQ(report(), "");
}

TEST_F(ObjectStyleReport, ARunWritesNoReport)
{
    addCases("DL:D LL:L");
    {
        JhautoGenLoadcomb generator(1);
        ASSERT_EQ(generator.Run(1, "ACI318-89", addMode), 2);
    }
    EXPECT_EQ(report(), "");
}

TEST_F(ObjectStyleReport, HoldsTheTitleAndThreeSectionsUnderTheirMessages)
{
    addCases("DL:D LL:L");
    addCombination("mine");
    JhautoGenLoadcomb generator(1);
    ASSERT_EQ(generator.Run(1, "ACI318-89", addMode), 2);
    EXPECT_TRUE(generator.PrintReport());
    const Lines lines = reportLines();

    EXPECT_EQ(lines[0], "");
    EXPECT_EQ(lines[1].substr(0, lines[1].find(']') + 1), "[IDS_ZEL_CMD______AUTO_GENERATION_OF_LOAD_COMBINATIO]");
    EXPECT_EQ(lines[2], "");
    Lines outline;  // headings, names, empty lines
    for (std::size_t i = 3; i < lines.size(); ++i) {
        if (lines[i].find("[IDS_ZEL_CMD__Jhload") == 0)
            outline.push_back(lines[i].substr(0, lines[i].find(']') + 1));
        else if (lines[i].find("[IDS") == std::string::npos)
            outline.push_back(lines[i]);
    }
    Lines expected{"[IDS_ZEL_CMD__JhloadCombination_Objects_for_Code__]"};
    for (int row = 1; row <= 86; ++row)
        expected.push_back("LC" + std::to_string(row));
    for (const char* line :
         {"", "[IDS_ZEL_CMD__JhloadCombination_Objects_for_Current_]", "LC1", "", "[IDS_ZEL_CMD__JhloadCombination_Objects_for_Generate]", "LC2", "LC3", ""})
        expected.push_back(line);
    EXPECT_EQ(outline, expected);
}

TEST_F(ObjectStyleReport, LabelsAreMessages)
{
    addCases("DL:D LL:L");
    addCombination("mine");
    JhautoGenLoadcomb generator(1);
    generator.Run(1, "ACI318-89", addMode);
    EXPECT_TRUE(generator.PrintCurrentCombinations());
    EXPECT_EQ(reportLines()[2], "[IDS_ZEL_CMD__kind___]kind :     1");
    EXPECT_EQ(reportLines()[3], "[IDS_ZEL_CMD__desc___]desc : text of mine");
    EXPECT_EQ(reportLines()[4], "[IDS_ZEL_CMD__factor___]factor :     1[IDS_ZEL_CMD__Loadcase___]Loadcase :    DL[IDS_ZEL_CMD__type___]type :     D");
}

TEST_F(ObjectStyleReport, FieldsStandToTheRightAndGrowWithTheirContent)
{
    MessageCatalogue::builtIn().showKeys(false);
    addCases("DL:D LL:L Wind_along_X:W");
    addCombination("mine", 1, {{1, 1, 1.0}, {1, 3, -0.66666666666666663}});
    JhautoGenLoadcomb generator(1);
    ASSERT_EQ(generator.Run(1, "AIK-USD94", replaceMode), 8);  // 1 to 3 and 6 to 10
    EXPECT_TRUE(generator.PrintCurrentCombinations());
    const std::string current = zel::MessageCatalogue::builtIn().find("IDS_ZEL_CMD__JhloadCombination_Objects_for_Current_");
    EXPECT_EQ(report(),
              current +
                  "\n"
                  "LC1\n"
                  "   kind :     1\n"
                  "   desc : text of mine\n"
                  " factor :     1Loadcase :    DL   type :     D\n"
                  " factor : -0.666667Loadcase : Wind_along_X   type :     W\n"
                  "\n");
}

TEST_F(ObjectStyleReport, CodeRowsShowTheirLoadKinds)
{
    MessageCatalogue::builtIn().showKeys(false);
    addCases("DL:D");
    JhautoGenLoadcomb generator(1);
    generator.Run(4, "AIK-USD94", addMode);
    EXPECT_TRUE(generator.PrintCodeCombinations());
    const Lines lines = reportLines();
    EXPECT_EQ(Lines(lines.begin() + 1, lines.begin() + 6),
              (Lines{
                  "LC1",
                  "   kind :     1",
                  "   desc : 1.0DL+1.0LL",
                  " factor :     1Loadcase : Jhloadcase1   type :     D",
                  " factor :     1Loadcase : Jhloadcase2   type :     L",
              }));
    EXPECT_EQ(lines[lines.size() - 2], " factor :  -1.4Loadcase : Jhloadcase5   type :     E") << "the last row of KSCE-USD96";
    EXPECT_EQ(lines.back(), "");
}

TEST_F(ObjectStyleReport, GeneratedCombinationsShowLoadCases)
{
    MessageCatalogue::builtIn().showKeys(false);
    addCases("DL:D EX:E");
    JhautoGenLoadcomb generator(1);
    generator.SetScaleFactors({{2, 1.25}});
    ASSERT_EQ(generator.Run(5, "ACI318-89", addMode), 2);
    EXPECT_TRUE(generator.PrintGeneratedCombinations());
    const Lines lines = reportLines();
    EXPECT_EQ(Lines(lines.begin() + 1, lines.end()),
              (Lines{
                  "LC1",
                  "   kind :     1",
                  "   desc : 0.9DL+1.3(1.1*SF*EL)",
                  " factor :   0.9Loadcase :    DL   type :     D",
                  " factor : 1.7875Loadcase :    EX   type :     E",
                  "LC2",
                  "   kind :     1",
                  "   desc : 0.9DL-1.3(1.1*SF*EL)",
                  " factor :   0.9Loadcase :    DL   type :     D",
                  " factor : -1.7875Loadcase :    EX   type :     E",
                  "",
              }));
}

TEST_F(ObjectStyleReport, ALinkWithoutACaseShowsBlanks)
{
    MessageCatalogue::builtIn().showKeys(false);
    addCases("DL:D");
    addCombination("mine", 1, {{1, 99, 1.5}});
    JhautoGenLoadcomb generator(1);
    generator.Run(1, "AIK-USD94", addMode);
    EXPECT_TRUE(generator.PrintCurrentCombinations());
    EXPECT_EQ(reportLines()[4], " factor :   1.5Loadcase :         type :      ");
}

TEST_F(ObjectStyleReport, EachSectionIsInTheFileAtOnce)
{
    addCases("DL:D LL:L");
    JhautoGenLoadcomb generator(1);
    generator.Run(1, "ACI318-89", addMode);
    generator.PrintGeneratedCombinations();
    const std::size_t one = report().size();
    EXPECT_GT(one, 0U);
    generator.PrintGeneratedCombinations();
    EXPECT_EQ(report().size(), 2 * one) << "sections follow each other";
}

TEST_F(ObjectStyleReport, AFileThatCannotBeMadeIsToldByPrintingAndStopsNoRun)
{
    std::filesystem::create_directory("lcomb.out");
    addCases("DL:D LL:L");
    JhautoGenLoadcomb generator(1);
    EXPECT_EQ(generator.Run(1, "ACI318-89", addMode), 2);
    EXPECT_FALSE(generator.PrintReport());
    EXPECT_FALSE(generator.PrintCodeCombinations());
}

}  // namespace
