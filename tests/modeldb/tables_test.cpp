#include "contract/record.h"
#include "contract/table.h"
#include "contract/tables/displacement_table.h"
#include "contract/tables/dynamic_tables.h"
#include "contract/tables/envelope_table.h"
#include "contract/tables/load_combination_table.h"
#include "contract/tables/load_set_tables.h"
#include "contract/tables/model_tables.h"
#include "contract/tables/property_tables.h"
#include "contract/tables/static_load_case_table.h"
#include "contract/tables/support_tables.h"
#include "model_fixture.h"

#include <limits>
#include <type_traits>

namespace zel::test {

using Tables = InMemoryModel;

using Keys = std::vector<Key>;
using Names = std::vector<CString>;

Names namesInSequence()
{
    Names names;
    CDataStld().GetNameList(names);
    return names;
}

TEST_F(Tables, ARecordWrittenThroughOneHandleIsSeenThroughAnotherAtOnce)
{
    CDataStld reader;
    CDataStld writer;
    ASSERT_NE(writer.Add(loadCase("DL")), 0);
    ASSERT_NE(reader.Get("DL"), 0);
    EXPECT_EQ(reader.currentKey, 1U);
    EXPECT_EQ(reader.currentRecord.no, 1);
}

TEST_F(Tables, GetOfADeletedKeyGives0)
{
    CDataStld cases;
    cases.Add(loadCase("DL"));
    cases.Del(CString("DL"));
    EXPECT_EQ(cases.Get(1), 0);
    EXPECT_EQ(cases.Get("DL"), 0);
    T_STLD_D record;
    EXPECT_EQ(cases.Get(1, record), 0);
}

TEST_F(Tables, KeysAreNotDenseAndANewKeyIsAboveTheHighest)
{
    CDataMatl materials;
    ASSERT_NE(materials.Add(3, T_MATL_D{}), 0);
    ASSERT_NE(materials.Add(5, T_MATL_D{}), 0);
    ASSERT_NE(materials.Add(0, T_MATL_D{}), 0);
    EXPECT_EQ(materials.GetLargeKey(), 6U);
    EXPECT_EQ(materials.GetNewKey(), 7U);
    EXPECT_EQ(materials.GetNewKey(2), 4U);
    EXPECT_EQ(materials.GetNewKey(3), 4U);
    EXPECT_EQ(materials.GetNewKey(4), 7U);
    Keys keys;
    std::vector<T_MATL_D> records;
    materials.GetList(keys, records);
    EXPECT_EQ(keys, (Keys{3, 5, 6}));
}

TEST_F(Tables, TheNewKeyOfAnEmptyTableIs1)
{
    EXPECT_EQ(CDataMatl().GetNewKey(), 1U);
    EXPECT_EQ(CDataMatl().GetLargeKey(), 0U);
}

TEST_F(Tables, AddUnderAKeyInUseIsRefusedAsAWholeUnlessItMayReplace)
{
    CDataMatl materials;
    T_MATL_D steel;
    steel.name = "steel";
    materials.Add(2, steel);
    EXPECT_EQ(materials.Add(2, T_MATL_D{}), 0);
    EXPECT_EQ(materials.Add(Keys{1, 2}, {T_MATL_D{}, T_MATL_D{}}, 0), 0);
    EXPECT_EQ(materials.GetCount(), 1);
    EXPECT_EQ(host.keys(), (Names{"IDS_DB_REFUSE_KEY_EXISTS", "IDS_DB_REFUSE_KEY_EXISTS"}));
    EXPECT_NE(materials.Add(Keys{1, 2}, {T_MATL_D{}, T_MATL_D{}}, 1), 0);
    EXPECT_EQ(materials.GetCount(), 2);
    materials.Get(2);
    EXPECT_EQ(materials.currentRecord.name, "");
}

TEST_F(Tables, ModifyWithAChangedKeyMovesTheRecord)
{
    CDataMatl materials;
    materials.Add(2, T_MATL_D{});
    materials.Get(2);
    materials.currentKey = 9;
    ASSERT_NE(materials.Modify(2), 0);
    EXPECT_EQ(materials.Get(2), 0);
    EXPECT_NE(materials.Get(9), 0);
}

TEST_F(Tables, ARenameGoesByTheOldNameAndKeepsKeyAndPlace)
{
    CDataStld cases;
    cases.Add({loadCase("A"), loadCase("B"), loadCase("C")});
    cases.Get("B");
    cases.currentRecord.name = "X";
    cases.currentRecord.no = 77;
    ASSERT_NE(cases.Modify(CString("B")), 0);
    EXPECT_EQ(namesInSequence(), (Names{"A", "X", "C"}));
    cases.Get("X");
    EXPECT_EQ(cases.currentKey, 2U);
    EXPECT_EQ(cases.currentRecord.no, 2);
    EXPECT_EQ(cases.Get("B"), 0);
}

TEST_F(Tables, TwoRecordsMayExchangeTheirNamesInOneChange)
{
    CDataStld cases;
    cases.Add({loadCase("A"), loadCase("B")});
    std::vector<T_STLD_D> records;
    cases.GetDataList(records);
    std::swap(records[0].name, records[1].name);
    ASSERT_NE(cases.Modify(Names{"A", "B"}, records), 0);
    EXPECT_EQ(cases.GetKeyByName("A"), 2U);
    EXPECT_EQ(cases.GetKeyByName("B"), 1U);
    model->Undo();
    EXPECT_EQ(cases.GetKeyByName("A"), 1U);
}

TEST_F(Tables, NamesAreUniqueWithoutRegardToCase)
{
    CDataStld cases;
    cases.Add(loadCase("Dead"));
    EXPECT_EQ(cases.Add(loadCase("DEAD")), 0);
    EXPECT_EQ(cases.Add({loadCase("x"), loadCase("X")}), 0);
    EXPECT_EQ(cases.GetCount(), 1);
    EXPECT_EQ(host.keys(), (Names{"IDS_DB_REFUSE_DUPLICATE_NAME", "IDS_DB_REFUSE_DUPLICATE_NAME"}));
    EXPECT_NE(cases.Get("dEAD"), 0);
    EXPECT_NE(cases.Add(loadCase("Dead ")), 0) << "trailing blanks count";
}

TEST_F(Tables, AnEmptyOrBlankNameIsRefusedWhereNamesMustBeFilled)
{
    CDataStld cases;
    EXPECT_EQ(cases.Add(loadCase("")), 0);
    EXPECT_EQ(cases.Add(loadCase("  ")), 0);
    EXPECT_EQ(host.keys(), (Names{"IDS_DB_REFUSE_EMPTY_NAME", "IDS_DB_REFUSE_EMPTY_NAME"}));
    CDataEnvl envelopes;
    T_ENVL_D envelope;
    EXPECT_EQ(envelopes.Add(envelope), 0);
    envelope.name = " ";
    EXPECT_NE(envelopes.Add(envelope), 0) << "an envelope may be called by blanks";
    EXPECT_NE(CDataLcom().Add(1, T_LCOM_D{}), 0) << "a combination may have no name";
}

TEST_F(Tables, ANameHasAtMost80Characters)
{
    CDataStld cases;
    EXPECT_NE(cases.Add(loadCase(std::string(80, 'x').c_str())), 0);
    EXPECT_EQ(cases.Add(loadCase(std::string(81, 'y').c_str())), 0);
    EXPECT_EQ(host.keys(), (Names{"IDS_DB_REFUSE_NAME_TOO_LONG"}));
    std::string korean;
    for (int i = 0; i < 80; ++i)
        korean += "하";  // three bytes each
    EXPECT_NE(cases.Add(loadCase(korean.c_str())), 0);
}

TEST_F(Tables, NumbersThatAreNotFiniteAreRefused)
{
    T_STLD_D record = loadCase("DL");
    record.selfWeightFactor = std::numeric_limits<double>::quiet_NaN();
    EXPECT_EQ(CDataStld().Add(record), 0);
    T_LCOM_D combination;
    combination.items.push_back({1, 1, std::numeric_limits<double>::infinity()});
    EXPECT_EQ(CDataLcom().Add(1, combination), 0);
    EXPECT_EQ(host.keys(), (Names{"IDS_DB_REFUSE_NOT_FINITE", "IDS_DB_REFUSE_NOT_FINITE"}));
}

TEST_F(Tables, AWriteToARecordThatIsNotThereIsRefused)
{
    CDataStld cases;
    EXPECT_EQ(cases.Modify(CString("DL")), 0);
    EXPECT_EQ(cases.Del(CString("DL")), 0);
    EXPECT_EQ(CDataMatl().Del(7), 0);
    EXPECT_EQ(host.keys(), (Names{"IDS_DB_REFUSE_NO_RECORD", "IDS_DB_REFUSE_NO_RECORD", "IDS_DB_REFUSE_NO_RECORD"}));
}

TEST_F(Tables, ChangeSequencePutsTheRecordsInTheirGivenOrderBehindTheKey)
{
    CDataStld cases;
    cases.Add({loadCase("A"), loadCase("B"), loadCase("C"), loadCase("D"), loadCase("E")});
    ASSERT_NE(cases.ChangeSequence({5, 1}, 3), 0);
    EXPECT_EQ(namesInSequence(), (Names{"B", "C", "E", "A", "D"}));
    ASSERT_NE(cases.ChangeSequence({4}, 0), 0);
    EXPECT_EQ(namesInSequence(), (Names{"D", "B", "C", "E", "A"}));
    std::vector<T_STLD_D> records;
    cases.GetDataList(records);
    for (std::size_t i = 0; i < records.size(); ++i)
        EXPECT_EQ(records[i].no, static_cast<int>(i) + 1);
    EXPECT_EQ(cases.ChangeSequence({4}, 4), 0);
    EXPECT_EQ(cases.ChangeSequence({4}, 99), 0);
    EXPECT_EQ(cases.ChangeSequence({99}, 0), 0);
}

TEST_F(Tables, DeletionClosesTheGapInTheSequence)
{
    CDataStld cases;
    cases.Add({loadCase("A"), loadCase("B"), loadCase("C")});
    cases.Del(Names{"A", "B"});
    cases.Get("C");
    EXPECT_EQ(cases.currentRecord.no, 1);
    EXPECT_EQ(cases.currentKey, 3U);
}

TEST_F(Tables, IterationWalksTheSequence)
{
    CDataSpdi lines;
    for (const std::uint32_t point : {10U, 20U, 30U}) {
        T_SPDI_D line;
        line.point1 = point;
        lines.Add(line);
    }
    lines.Del(2);
    std::vector<std::uint32_t> points;
    TablePosition position = lines.GetStart();
    while (position != 0) {
        ASSERT_NE(lines.GetNext(position), 0);
        points.push_back(lines.currentRecord.point1);
    }
    EXPECT_EQ(points, (std::vector<std::uint32_t>{10, 30}));
}

TEST_F(Tables, ATableOfOneRecordGives0UntilItIsWrittenAndReplacesAfterwards)
{
    CDataSlcf factors;
    T_SLCF_D record;
    EXPECT_EQ(factors.Get(record), 0);
    record.verticalLoadFactor = 0.3;
    EXPECT_NE(factors.Add(record), 0);
    record.verticalLoadFactor = 0.4;
    EXPECT_NE(factors.Add(record), 0);
    T_SLCF_D read;
    EXPECT_NE(factors.Get(read), 0);
    EXPECT_EQ(read.verticalLoadFactor, 0.4);
    CDataLtom masses;
    EXPECT_EQ(masses.GetCount(), 0);
    masses.Add(T_LTOM_D{});
    EXPECT_EQ(masses.GetCount(), 1);
    EXPECT_NE(masses.Del(), 0);
    EXPECT_EQ(masses.GetCount(), 0);
}

TEST_F(Tables, ModifyOfOneRecordThatWasNeverWrittenStoresIt)
{
    CDataCsdd control;
    EXPECT_EQ(control.Get(), 0);
    control.Initialize();
    control.currentRecord.factorX = 7.0;
    ASSERT_NE(control.Modify(), 0);
    CDataCsdd again;
    ASSERT_NE(again.Get(), 0);
    EXPECT_EQ(again.currentRecord.factorX, 7.0);
}

TEST_F(Tables, DefaultsWithUnitsComeInCurrentUnits)
{
    model->GetUnitCtrl()->SetUnitIndexCurrent({T_UNIT_INDEX::M, T_UNIT_INDEX::KN}, 1);
    CDataMctl control;
    control.Initialize();
    EXPECT_DOUBLE_EQ(control.currentRecord.maxMeshDimension, 1.0);
}

TEST_F(Tables, CombinationsOfEachKindHaveKeysNamesAndASequenceOfTheirOwn)
{
    CDataLcom combinations;
    T_LCOM_D record;
    record.name = "LCB1";
    record.number = 55;
    ASSERT_NE(combinations.Add(1, record), 0);
    ASSERT_NE(combinations.Add(3, record), 0);
    ASSERT_NE(combinations.Get(3, "LCB1"), 0);
    EXPECT_EQ(combinations.currentKey, 1U);
    EXPECT_EQ(combinations.currentRecord.kind, 3);
    EXPECT_EQ(combinations.currentRecord.number, 1);
    EXPECT_EQ(combinations.GetCount(2), 0);
    EXPECT_EQ(combinations.Add(0, record), 0);
    EXPECT_EQ(combinations.Add(6, record), 0);
    EXPECT_EQ(host.keys(), (Names{"IDS_DB_REFUSE_BAD_KIND", "IDS_DB_REFUSE_BAD_KIND"}));
}

TEST_F(Tables, MergeAppendsItemsUpTo50)
{
    CDataLcom combinations;
    T_LCOM_D target;
    T_LCOM_D source;
    target.items.resize(30);
    source.items.resize(20, {1, 7, 2.0});
    EXPECT_NE(combinations.Merge(target, source), 0);
    ASSERT_EQ(target.items.size(), 50U);
    EXPECT_EQ(target.items.back().key, 7U);
    source.items.resize(1);
    EXPECT_EQ(combinations.Merge(target, source), 0);
    EXPECT_EQ(target.items.size(), 50U);
}

// ---- records in use ----

TEST_F(Tables, ALoadCaseInUseCantBeDeletedAndTheRefusalNamesThreeUsersAndCountsTheOthers)
{
    CDataStld cases;
    cases.Add({loadCase("DL"), loadCase("LL", "L")});
    CDataLcom combinations;
    for (int i = 1; i <= 5; ++i) {
        T_LCOM_D record;
        record.name = "C" + std::to_string(i);
        record.items.push_back({1, 1, 1.0});
        combinations.Add(2, record);
    }
    EXPECT_EQ(cases.Del(CString("DL")), 0);
    ASSERT_EQ(host.boxes.size(), 1U);
    EXPECT_EQ(
        host.boxes[0].text,
        "It can't be deleted or given another key, as it is used by load combination \"C1\", load combination \"C2\", load combination \"C3\" and 2 more.");
    EXPECT_EQ(cases.Del(Names{"LL", "DL"}), 0) << "all or nothing";
    EXPECT_EQ(cases.GetCount(), 2);
    EXPECT_NE(cases.Del(CString("LL")), 0);
}

TEST_F(Tables, AnItemOfAnotherTypeIsNoUseOfALoadCase)
{
    CDataStld cases;
    cases.Add(loadCase("DL"));
    T_LCOM_D record;
    record.items.push_back({2, 1, 1.0});
    CDataLcom().Add(1, record);
    EXPECT_NE(cases.Del(CString("DL")), 0);
}

TEST_F(Tables, SetsAndEnvelopesDoNotKeepALoadCase)
{
    CDataStld cases;
    cases.Add(loadCase("WX", "W"));
    T_LCWD_D wind;
    wind.sets.push_back({});
    wind.sets.back().along = 1;
    CDataLcwd().Add(wind);
    T_ENVL_D envelope;
    envelope.name = "E";
    envelope.items.push_back({0, 1});
    CDataEnvl().Add(envelope);
    EXPECT_NE(cases.Del(CString("WX")), 0);
}

struct Use {
    Table target;
    Table user;
    const char* field;
};
void PrintTo(const Use& use, std::ostream* out)
{
    *out << tableInfo(use.target).code << " in " << tableInfo(use.user).code << "." << use.field;
}

class RecordsInUse : public InMemoryModel, public testing::WithParamInterface<Use> {};

TEST_P(RecordsInUse, AreNotDeleted)
{
    const Use& use = GetParam();
    ITable& target = model->table(use.target);
    const TableInfo& info = target.info();
    const std::shared_ptr<void> record = info.record->create();
    if (info.names != NameRule::none)
        *static_cast<CString*>(info.record->find("name")->in(record.get())) = "target";
    ASSERT_NE(target.add(0, {7}, {record}, false), 0);

    ITable& users = model->table(use.user);
    const std::shared_ptr<void> user = users.info().record->create();
    Key userKey = 1;
    if (*use.field == '\0')
        userKey = 7;
    else
        *static_cast<Key*>(users.info().record->find(use.field)->in(user.get())) = 7;
    if (users.info().names != NameRule::none)
        *static_cast<CString*>(users.info().record->find("name")->in(user.get())) = "user";
    ASSERT_NE(users.add(0, {userKey}, {user}, false), 0);

    EXPECT_EQ(target.remove(0, {7}), 0);
    EXPECT_EQ(target.modify(0, {7}, {8}, {record}), 0) << "nor given another key";
    EXPECT_EQ(host.keys(), (Names{"IDS_DB_REFUSE_IN_USE", "IDS_DB_REFUSE_IN_USE"}));
    ASSERT_NE(users.remove(0, {userKey}), 0);
    EXPECT_NE(target.remove(0, {7}), 0);
}

INSTANTIATE_TEST_SUITE_P(
    References, RecordsInUse,
    testing::Values(Use{Table::STLD, Table::LNLD, "loadCase1"}, Use{Table::STLD, Table::LNLD, "loadCase2"}, Use{Table::STLD, Table::LNLD, "loadCase3"},
                    Use{Table::STLD, Table::ARLD, "loadCase1"}, Use{Table::STLD, Table::ARLD, "loadCase2"}, Use{Table::STLD, Table::ARLD, "loadCase3"},
                    Use{Table::STLD, Table::PTLA, "loadCaseKey"}, Use{Table::STLD, Table::SPDP, "loadCaseKey"}, Use{Table::STLD, Table::SPDI, "loadCaseKey"},
                    Use{Table::LNLD, Table::LNLA, "typeKey"}, Use{Table::ARLD, Table::ARLA, "typeKey"}, Use{Table::MATL, Table::BEAM, "materialKey"},
                    Use{Table::MATL, Table::SLAB, "materialKey"}, Use{Table::SECT, Table::BEAM, "sectionKey"}, Use{Table::SECT, Table::SECF, ""},
                    Use{Table::THIK, Table::SLAB, "thicknessKey"}, Use{Table::THIK, Table::THKF, ""}, Use{Table::COSD, Table::COSA, "typeKey"},
                    Use{Table::PISD, Table::PISA, "typeKey"}, Use{Table::WASD, Table::WASA, "typeKey"}, Use{Table::SOSD, Table::SOSA, "typeKey"}));

TEST_F(Tables, TheLoadsToMassesRecordKeepsItsLoadCases)
{
    CDataStld cases;
    cases.Add(loadCase("DL"));
    T_LTOM_D masses;
    masses.cases.push_back({1, 1.0});
    CDataLtom().Add(masses);
    EXPECT_EQ(cases.Del(CString("DL")), 0);
    EXPECT_EQ(host.keys(), (Names{"IDS_DB_REFUSE_IN_USE"}));
}

// ---- what a handle offers ----

template <class Handle>
concept DeletesByKey = requires(Handle handle)
{
    handle.Del(Key{1});
};
template <class Handle>
concept Reorders = requires(Handle handle)
{
    handle.ChangeSequence({}, 0);
};
template <class Handle>
concept AddsCurrent = requires(Handle handle)
{
    handle.Add();
};

TEST(TableHandles, OfferTheirOwnOperationsAndNoOthers)
{
    static_assert(!DeletesByKey<CDataStld> && Reorders<CDataStld>);
    static_assert(DeletesByKey<CDataMatl> && !Reorders<CDataMatl>);
    static_assert(AddsCurrent<CDataMctl> && !AddsCurrent<CDataSlcf>);
}

TEST(TableHandles, HaveTheUpdateCodesOfTheirPlace)
{
    EXPECT_EQ(CDataStld::UR_STLD_ADD, 1000);
    EXPECT_EQ(CDataStld::UR_STLD_DEL, 1001);
    EXPECT_EQ(CDataStld::UR_STLD_MFD, 1002);
    EXPECT_EQ(CDataStld::UR_STLD_MFS, 1003);
    EXPECT_EQ(CDataLcom::UR_LCOM_ADD, 1004);
    EXPECT_EQ(CDataSift::UR_SIFT_DEL, 1085);
    EXPECT_EQ(CDataGrup::UR_GRUP_MFS, 1199);
}

TEST(TableList, KeepsThePlacesThatFilesAndJournalsRelyOn)
{
    const std::vector<std::string_view> places{
        "STLD", "LCOM", "ENVL", "SPDI", "LNLD", "ARLD", "THFC", "THLD", "MATL", "SECT", "THIK", "SECF", "THKF", "COSD", "PISD",
        "WASD", "SOSD", "GSPD", "WKAR", "WDIR", "SLCF", "SIFT", "LCUG", "LCWD", "LCOE", "SURS", "LTOM", "EIGV", "MCTL", "ACTL",
        "CSDD", "PJCF", "PONT", "LINE", "AREA", "BEAM", "SLAB", "OPEN", "MSLN", "COSA", "PISA", "WASA", "SOSA", "BRLS", "OFFS",
        "SRLS", "COIF", "GDLN", "NUCS", "GRUP", "OMAS", "PTLA", "SPDP", "LNLA", "ARLA", "THPL", "NODE", "ELEM",
    };
    ASSERT_GE(tableList().size(), places.size());
    for (std::size_t i = 0; i < places.size(); ++i) {
        EXPECT_EQ(tableList()[i].code, places[i]);
        EXPECT_EQ(static_cast<std::size_t>(tableList()[i].table), i) << places[i];
    }
}

TEST(TableList, KnowsTheFieldsThatTheTablesKeep)
{
    const auto name = [](const FieldInfo* field) { return field != nullptr ? field->name : std::string_view(); };
    EXPECT_EQ(name(tableInfo(Table::STLD).nameField), "name");
    EXPECT_EQ(name(tableInfo(Table::STLD).sequenceField), "no");
    EXPECT_EQ(name(tableInfo(Table::LCOM).sequenceField), "number");
    EXPECT_EQ(name(tableInfo(Table::LCOM).kindField), "kind");
    EXPECT_EQ(name(tableInfo(Table::WKAR).keyField), "key");
    EXPECT_EQ(name(tableInfo(Table::PONT).nameField), "");
    for (const TableInfo& table : tableList())
        EXPECT_EQ(table.names == NameRule::none, table.nameField == nullptr) << table.code;
}

}  // namespace zel::test
