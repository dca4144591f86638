#include "contract/records/all.h"
#include "contract/table.h"
#include "contract/tables/load_combination_table.h"
#include "contract/tables/static_load_case_table.h"
#include "model_fixture.h"

namespace zel::test {

/// Three load cases: 1 DL, 2 LL and 3 the target.
class LoadsByCombination : public InMemoryModel {
protected:
    LoadsByCombination()
    {
        std::vector<T_STLD_D> cases{loadCase("DL"), loadCase("LL", "L"), loadCase("T", "USER")};
        cases[0].selfWeightFactor = -1.0;
        cases[1].selfWeightFactor = -0.5;
        cases[2].selfWeightFactor = 2.0;
        CDataStld().Add(cases);
        combination.items = {{1, 1, 1.2}, {1, 2, 1.6}};
    }

    template <class Record> void add(Table table, const Record& record) { ASSERT_NE(model->table(table).add(0, {0}, {share(record)}, false), 0); }
    template <class Record> std::vector<Record> all(Table table)
    {
        std::vector<Record> records;
        for (const Key key : model->table(table).keys(0))
            records.push_back(*static_cast<const Record*>(model->table(table).find(0, key).get()));
        return records;
    }
    int make(const T_LOAD_ATTR& attributes, bool deleteOwn = false)
    {
        return CDataLcom().MakeLoadsByCombination(combination, 3, attributes, deleteOwn ? 1 : 0);
    }

    T_LCOM_D combination;
};

TEST_F(LoadsByCombination, AddUpTheSelfWeightFactors)
{
    ASSERT_NE(make({.selfWeight = 1}), 0);
    CDataStld cases;
    cases.Get(3);
    EXPECT_DOUBLE_EQ(cases.currentRecord.selfWeightFactor, 2.0 - 1.2 - 0.8);
    ASSERT_NE(make({.selfWeight = 1}, true), 0);
    cases.Get(3);
    EXPECT_DOUBLE_EQ(cases.currentRecord.selfWeightFactor, -2.0);
}

TEST_F(LoadsByCombination, AddUpPointLoadsAtThePlaceAndSubLoadCaseAndCopyTheOthers)
{
    add(Table::PTLA, T_PTLA_D{10, 1, 0, {1, 0, 0, 0, 0, 0}});
    add(Table::PTLA, T_PTLA_D{10, 2, 0, {10, 0, 0, 0, 0, 5}});
    add(Table::PTLA, T_PTLA_D{10, 2, 1, {7, 0, 0, 0, 0, 0}});
    add(Table::PTLA, T_PTLA_D{10, 3, 0, {100, 0, 0, 0, 0, 0}});
    add(Table::PTLA, T_PTLA_D{11, 3, 0, {3, 0, 0, 0, 0, 0}});
    ASSERT_NE(make({.pointLoad = 1}), 0);
    const auto loads = all<T_PTLA_D>(Table::PTLA);
    ASSERT_EQ(loads.size(), 6U);
    EXPECT_DOUBLE_EQ(loads[3].value[0], 100 + 1.2 + 16);
    EXPECT_DOUBLE_EQ(loads[3].value[5], 8);
    EXPECT_EQ(loads[4].value[0], 3) << "a load of the target where the combination has none";
    EXPECT_EQ(loads[5].loadCaseKey, 3U);
    EXPECT_EQ(loads[5].subLoadCaseNo, 1);
    EXPECT_DOUBLE_EQ(loads[5].value[0], 11.2);
}

TEST_F(LoadsByCombination, AreOneChangeThatCanBeTakenBack)
{
    add(Table::PTLA, T_PTLA_D{10, 1, 0, {1, 0, 0, 0, 0, 0}});
    const NoticeLog log;
    ASSERT_NE(make({.selfWeight = 1, .pointLoad = 1}), 0);
    EXPECT_EQ(log.notices.size(), 1U);
    EXPECT_EQ(model->undoName(), "Create the loads of static load case \"T\"");
    model->Undo();
    EXPECT_EQ(all<T_PTLA_D>(Table::PTLA).size(), 1U);
    CDataStld cases;
    cases.Get(3);
    EXPECT_EQ(cases.currentRecord.selfWeightFactor, 2.0);
}

TEST_F(LoadsByCombination, RemoveTheTargetsOwnLoadsOfTheTickedKindsFirst)
{
    add(Table::PTLA, T_PTLA_D{11, 3, 0, {3, 0, 0, 0, 0, 0}});
    add(Table::SPDP, T_SPDP_D{11, 3, 0, "100000", {3, 0, 0, 0, 0, 0}});
    ASSERT_NE(make({.pointLoad = 1}, true), 0);
    EXPECT_TRUE(all<T_PTLA_D>(Table::PTLA).empty());
    EXPECT_EQ(all<T_SPDP_D>(Table::SPDP).size(), 1U) << "not ticked";
}

TEST_F(LoadsByCombination, MayContainTheTargetItself)
{
    combination.items = {{1, 3, 2.0}};
    add(Table::PTLA, T_PTLA_D{10, 3, 0, {1, 0, 0, 0, 0, 0}});
    ASSERT_NE(make({.selfWeight = 1, .pointLoad = 1}), 0);
    EXPECT_DOUBLE_EQ(all<T_PTLA_D>(Table::PTLA).at(0).value[0], 3.0);
    CDataStld cases;
    cases.Get(3);
    EXPECT_DOUBLE_EQ(cases.currentRecord.selfWeightFactor, 6.0);
    ASSERT_NE(make({.pointLoad = 1}, true), 0);
    EXPECT_DOUBLE_EQ(all<T_PTLA_D>(Table::PTLA).at(0).value[0], 6.0) << "read before its own loads are removed";
}

TEST_F(LoadsByCombination, JoinSpecifiedDisplacements)
{
    add(Table::SPDP, T_SPDP_D{10, 1, 0, "100000", {1, 0, 0, 0, 0, 0}});
    add(Table::SPDP, T_SPDP_D{10, 2, 0, "001000", {0, 0, 2, 0, 0, 0}});
    ASSERT_NE(make({.specifiedDisplacement = 1}), 0);
    const auto made = all<T_SPDP_D>(Table::SPDP).at(2);
    EXPECT_EQ(made.dofFlags, "101000");
    EXPECT_DOUBLE_EQ(made.value[0], 1.2);
    EXPECT_DOUBLE_EQ(made.value[2], 3.2);
}

TEST_F(LoadsByCombination, AddUpInterpolationsAtEveryPositionOfEither)
{
    T_SPDI_D first;
    first.loadCaseKey = 1;
    first.point1 = 5;
    first.point2 = 6;
    first.rows = {{0.0, {0, 0, 0, 0, 0, 0}}, {1.0, {10, 0, 0, 0, 0, 0}}};
    T_SPDI_D second = first;
    second.loadCaseKey = 2;
    second.rows = {{0.5, {1, 0, 0, 0, 0, 0}}};
    add(Table::SPDI, first);
    add(Table::SPDI, second);
    ASSERT_NE(make({.specifiedDisplacement = 1}), 0);
    const auto made = all<T_SPDI_D>(Table::SPDI).at(2);
    ASSERT_EQ(made.rows.size(), 3U);
    EXPECT_DOUBLE_EQ(made.rows[0].value[0], 0 + 1.6);
    EXPECT_DOUBLE_EQ(made.rows[1].value[0], 6 + 1.6);
    EXPECT_DOUBLE_EQ(made.rows[2].value[0], 12 + 1.6);
}

TEST_F(LoadsByCombination, MakeANewTypeOfEachAssignedTypeThatHoldsACase)
{
    T_ARLD_D type;
    type.name = "floor";
    type.loadCase1 = 2;
    type.load1 = 5.0;
    type.loadCase2 = 1;
    type.load2 = 3.0;
    type.includeWeight2 = 1;
    add(Table::ARLD, type);
    type.name = "FLOOR-1";
    add(Table::ARLD, type);  // not assigned
    add(Table::ARLA, T_ARLA_D{20, 1});
    add(Table::ARLA, T_ARLA_D{21, 1});
    ASSERT_NE(make({.areaLoad = 1}), 0);
    const auto types = all<T_ARLD_D>(Table::ARLD);
    ASSERT_EQ(types.size(), 4U);
    EXPECT_EQ(types[2].name, "floor-2") << "floor-1 is taken, without regard to case";
    EXPECT_EQ(types[2].loadCase1, 3U);
    EXPECT_DOUBLE_EQ(types[2].load1, 8.0);
    EXPECT_EQ(types[2].includeWeight1, 0);
    EXPECT_EQ(types[3].name, "floor-3");
    EXPECT_DOUBLE_EQ(types[3].load1, 3.6);
    EXPECT_EQ(types[3].includeWeight1, 1);
    const auto assigned = all<T_ARLA_D>(Table::ARLA);
    ASSERT_EQ(assigned.size(), 6U);
    EXPECT_EQ(assigned[2], (T_ARLA_D{20, 3}));
    EXPECT_EQ(assigned[5], (T_ARLA_D{21, 4}));
}

TEST_F(LoadsByCombination, RemoveTheTargetFromTheTypesThatHoldIt)
{
    T_LNLD_D type;
    type.name = "wall";
    type.loadCase1 = 1;
    type.load1 = 5.0;
    type.loadCase2 = 3;
    type.load2 = 7.0;
    add(Table::LNLD, type);
    add(Table::LNLA, T_LNLA_D{20, 1});
    ASSERT_NE(make({.lineLoad = 1}, true), 0);
    const auto types = all<T_LNLD_D>(Table::LNLD);
    ASSERT_EQ(types.size(), 2U);
    EXPECT_EQ(types[0].loadCase2, 0U);
    EXPECT_EQ(types[0].load2, 0.0);
    EXPECT_DOUBLE_EQ(types[1].load1, 6.0);
}

TEST_F(LoadsByCombination, WithNoKindTickedCopyNothing)
{
    const NoticeLog log;
    EXPECT_NE(make({}), 0);
    EXPECT_EQ(model->undoName(), "Add 3 static load cases");
}

TEST_F(LoadsByCombination, PassACaseOverThatIsGoneAndNameIt)
{
    combination.items = {{1, 77, 1.0}, {1, 1, 1.0}};
    add(Table::PTLA, T_PTLA_D{10, 77, 0, {5, 0, 0, 0, 0, 0}});
    add(Table::PTLA, T_PTLA_D{10, 1, 0, {1, 0, 0, 0, 0, 0}});
    ASSERT_NE(make({.pointLoad = 1}), 0);
    EXPECT_DOUBLE_EQ(all<T_PTLA_D>(Table::PTLA).at(2).value[0], 1.0);
    ASSERT_EQ(host.outputs.size(), 1U);
    EXPECT_NE(host.outputs[0].find("77"), std::string::npos);
}

TEST_F(LoadsByCombination, AreRefusedForATargetThatIsNotThere)
{
    EXPECT_EQ(CDataLcom().MakeLoadsByCombination(combination, 99, {.selfWeight = 1}, 0), 0);
    EXPECT_EQ(host.keys(), (std::vector<CString>{"IDS_DB_REFUSE_NO_RECORD"}));
}

}  // namespace zel::test
