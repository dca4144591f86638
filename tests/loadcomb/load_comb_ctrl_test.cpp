#include "loadcomb/generation/load_comb_ctrl.h"

#include "contract/tables/load_combination_table.h"
#include "contract/tables/load_set_tables.h"
#include "modeldb/model_fixture.h"

namespace {

constexpr const char* noLoadCase = "IDS_QV_CMD__ADDD__No_Existing_Load_Case_";
constexpr int addMode = 0;
constexpr int replaceMode = 1;

class GenerateFromModel : public zel::test::InMemoryModel {
protected:
    CLoadCombCtrl control;

    static std::uint32_t addCase(const char* name, const char* type)
    {
        T_STLD_D record;
        record.name = name;
        record.type = type;
        EXPECT_NE(CDataStld().Add(record), 0);
        return CDataStld().GetKeyByName(name);
    }
    static void addSmallModel()
    {
        for (const auto& [name, type] : {std::pair{"DL", "D"}, std::pair{"LL", "L"}, std::pair{"WX", "W"}, std::pair{"EX", "E"}})
            addCase(name, type);
    }
    static void addCombination(const char* name, int kind = 1)
    {
        T_LCOM_D record;
        record.name = name;
        record.items = {{1, 1, 1.0}};
        EXPECT_NE(CDataLcom().Add(kind, record), 0) << name;
    }
    static std::vector<CString> names(int kind = 1)
    {
        std::vector<CString> found;
        CDataLcom().GetNameList(kind, found);
        return found;
    }
    static std::vector<T_LCOM_D> stored()
    {
        std::vector<zel::Key> keys;
        std::vector<T_LCOM_D> records;
        CDataLcom().GetList(1, keys, records);
        return records;
    }
    [[nodiscard]] std::vector<CString> messages() const { return host.keys(); }
};

TEST_F(GenerateFromModel, StoresTheCombinationsOfTheCode)
{
    addSmallModel();
    EXPECT_EQ(control.Generate(replaceMode, "AIK-USD94"), 1);
    const std::vector<T_LCOM_D> rows = stored();
    ASSERT_EQ(rows.size(), 16U);
    EXPECT_EQ(rows[0].name, "gLCB1  ");
    EXPECT_EQ(rows[0].description, "1.0D + 1.0L");
    EXPECT_EQ(rows[0].active, 0);
    EXPECT_EQ(rows[15].name, "gLCB16 ");
    EXPECT_EQ(rows[15].active, 1);
    EXPECT_TRUE(messages().empty());
    EXPECT_TRUE(control.rows().empty()) << "they went into the model";
}

TEST_F(GenerateFromModel, AddsBehindTheHighestNumberWhateverTheCount)
{
    addSmallModel();
    addCombination("gLCB7");
    addCombination("gLCB12");
    EXPECT_EQ(control.Generate(addMode, "AIK-USD94"), 1);
    EXPECT_EQ(names()[2], "gLCB13 ");
    EXPECT_EQ(names().size(), 18U);
}

TEST_F(GenerateFromModel, AddingTwiceNamesOn)
{
    addSmallModel();
    ASSERT_EQ(control.Generate(addMode, "AIK-USD94"), 1);
    ASSERT_EQ(CLoadCombCtrl().Generate(addMode, "AIK-USD94"), 1) << "what is stored does not count as a duplicate";
    EXPECT_EQ(names().size(), 32U);
    EXPECT_EQ(names()[16], "gLCB17 ");
}

TEST_F(GenerateFromModel, ReplacesTheCombinationsOfItsKindAlone)
{
    addSmallModel();
    addCombination("mine");
    addCombination("steel", 2);
    ASSERT_EQ(control.Generate(replaceMode, "AIK-USD94"), 1);
    EXPECT_EQ(names().size(), 16U);
    EXPECT_EQ(names(2), std::vector<CString>{"steel"});
}

TEST_F(GenerateFromModel, ReplacesNothingWithoutFailing)
{
    addSmallModel();
    EXPECT_EQ(control.Generate(replaceMode, "BS8110-97"), 1);
}

TEST_F(GenerateFromModel, WithoutALoadCaseTheMessageComesTwice)
{
    EXPECT_EQ(control.Generate(addMode, "AIK-USD94"), 0);
    EXPECT_EQ(messages(), (std::vector<CString>{noLoadCase, noLoadCase}));
}

TEST_F(GenerateFromModel, WithoutARowTheMessageComesOnceAndReplacingHasDeletedAlready)
{
    addCase("T", "T");
    addCombination("mine");
    EXPECT_EQ(control.Generate(addMode, "AIK-USD94"), 0);
    EXPECT_EQ(names().size(), 1U);
    EXPECT_EQ(control.Generate(replaceMode, "AIK-USD94"), 0);
    EXPECT_TRUE(names().empty());
    EXPECT_EQ(messages(), (std::vector<CString>{noLoadCase, noLoadCase}));
}

TEST_F(GenerateFromModel, KindsWithoutTablesAnswerWithTheMessage)
{
    addSmallModel();
    for (int kind : {2, 3, 4, 5}) {
        CLoadCombCtrl other;
        other.SetKind(kind);
        EXPECT_EQ(other.Generate(addMode, "AIK-USD94"), 0);
        EXPECT_TRUE(names(kind).empty());
    }
    EXPECT_EQ(messages().size(), 4U);
}

TEST_F(GenerateFromModel, ADryRunTouchesNothing)
{
    addSmallModel();
    addCombination("mine");
    EXPECT_EQ(control.Generate(replaceMode, "AIK-USD94", CLoadCombCtrl::Storing::dryRun), 1);
    EXPECT_EQ(names(), std::vector<CString>{"mine"});
    ASSERT_EQ(control.rows().size(), 16U);
    EXPECT_EQ(control.rows()[0].name, "gLCB1  ");
    EXPECT_EQ(control.rows()[0].kind, 0);
}

TEST_F(GenerateFromModel, KeepsItsRowsWhenAsked)
{
    addSmallModel();
    EXPECT_EQ(control.Generate(addMode, "AIK-USD94", CLoadCombCtrl::Storing::storeAndKeep), 1);
    EXPECT_EQ(control.rows().size(), 16U);
    EXPECT_EQ(names().size(), 16U);
}

TEST_F(GenerateFromModel, WritesALineForEachCombinationAndOneForStoring)
{
    addSmallModel();
    ASSERT_EQ(control.Generate(addMode, "AIK-USD94"), 1);
    ASSERT_EQ(host.histories.size(), 17U);
    for (std::size_t i = 0; i < 16; ++i) {
        EXPECT_EQ(host.histories[i].rfind("[IDS_CMD_MAKING_LOAD_COMBINATION]", 0), 0U) << host.histories[i];
        EXPECT_NE(host.histories[i].find("(" + std::to_string(i + 1) + "/16)"), std::string::npos) << host.histories[i];
    }
    EXPECT_EQ(host.histories[16].rfind("[IDS_CMD_LOAD_COMBINATION_WAIT]", 0), 0U) << host.histories[16];
}

TEST_F(GenerateFromModel, CutsDescriptionsOfEightyCharacters)
{
    addCase("DL", "D");
    const std::string of79 = std::string(79 - std::string("0.9D + 1.3").size(), 'w');
    addCase(of79.c_str(), "W");
    addCase((of79 + "x").c_str(), "W");
    ASSERT_EQ(control.Generate(addMode, "AIK-USD94"), 1);
    int found = 0;
    for (const T_LCOM_D& row : stored()) {
        if (row.description.rfind("0.9D + 1.3", 0) != 0)
            continue;
        EXPECT_EQ(row.description, found == 0 ? "0.9D + 1.3" + of79 : ("0.9D + 1.3" + of79).substr(0, 76) + "...");
        ++found;
    }
    EXPECT_EQ(found, 2);
}

TEST_F(GenerateFromModel, AnEccentricPartnerZeroIsNoEntry)
{
    addSmallModel();
    control.SetEccentricCases({{4, 0}});
    EXPECT_TRUE(control.options().eccentricCases.empty());
    control.SetEccentricCases({{4, 1}, {3, 0}});
    EXPECT_EQ(control.options().eccentricCases, (std::map<std::uint32_t, std::uint32_t>{{4, 1}}));
    control.SetEccentricCases({});
    EXPECT_TRUE(control.options().eccentricCases.empty()) << "a new map replaces the former one";
}

TEST_F(GenerateFromModel, StoresLoadCodeOneWhateverItIsGiven)
{
    addCase("DL", "D");
    addCase("WX", "W");
    control.SetLoadCode(0);
    ASSERT_EQ(control.Generate(addMode, "KDS 41 30 : 2018"), 1);
    EXPECT_EQ(control.options().loadCode, 1);
    EXPECT_EQ(stored()[1].description, "D + 0.85WX") << "the wind scale of load code 1";
}

TEST_F(GenerateFromModel, ReadsTheSetsOfTheModel)
{
    addCase("DL", "D");
    const std::uint32_t ex = addCase("EX", "E");
    const std::uint32_t ey = addCase("EY", "E");
    const std::uint32_t wx = addCase("WX", "W");
    T_LCOE_D orthogonal;
    orthogonal.pairs = {{ex, ey}};
    ASSERT_NE(CDataLcoe().Add(orthogonal), 0);
    T_LCWD_D wind;
    wind.sets.emplace_back().along = wx;
    ASSERT_NE(CDataLcwd().Add(wind), 0);
    T_SLCF_D seismic;
    seismic.shortPeriodCoefficient = 0.5;
    ASSERT_NE(CDataSlcf().Add(seismic), 0);
    T_SIFT_D undergroundSeismic;
    ASSERT_NE(CDataSift().Add(undergroundSeismic), 0);

    const zel::loadcomb::GeneratorModel read = zel::loadcomb::readModel();
    ASSERT_EQ(read.cases.size(), 4U);
    EXPECT_EQ(read.cases[1].name, "EX");
    EXPECT_EQ(read.orthogonal, orthogonal);
    EXPECT_EQ(read.windSets, wind);
    EXPECT_EQ(read.seismic, seismic);
    EXPECT_EQ(read.undergroundSeismic, undergroundSeismic);
    EXPECT_FALSE(read.underground.has_value());
}

TEST_F(GenerateFromModel, SpecialSeismicLoadsAreAskedForByTheirType)
{
    addCase("DL", "D");
    addCase("EX", "E");
    T_SLCF_D seismic;
    seismic.shortPeriodCoefficient = 0.5;
    ASSERT_NE(CDataSlcf().Add(seismic), 0);
    control.SetCombType(zel::codes::CombType::special);
    control.SetScaleFactors({{2, 1.25}});
    ASSERT_EQ(control.Generate(addMode, "KDS 41 20 : 2022"), 1);
    EXPECT_EQ(stored().back().description, "0.9D - 1.0(1.25)(1.0)EX - (0.2)(0.5)D");
}

}  // namespace
