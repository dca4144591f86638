#include "contract/import_file.h"
#include "contract/table.h"
#include "contract/tables/load_combination_table.h"
#include "contract/tables/load_set_tables.h"
#include "contract/tables/load_type_tables.h"
#include "contract/tables/model_tables.h"
#include "contract/tables/property_tables.h"
#include "contract/tables/static_load_case_table.h"
#include "model_fixture.h"
#include "modeldb/full_disk.h"
#include "platform/modeldb/file_format.h"
#include "platform/modeldb/flat_layout.h"
#include "platform/modeldb/record_values.h"
#include "sqlite_of_model.h"

#include <random>
#include <sqlite3.h>

namespace zel::test {

class ModelFiles : public testing::Test {
protected:
    HeadlessUserInterface host;
    Folder folder;
    std::filesystem::path path = folder / "model.qvx";

    /// Why the file can't be opened; it must stay byte for byte as it is.
    FileRefusal::Reason refusalOf(const std::filesystem::path& file, std::string* sentence = nullptr)
    {
        const bool there = std::filesystem::is_regular_file(file);
        const std::string before = there ? contentsOf(file) : "";
        try {
            ModelDocument::open(file);
        } catch (const FileRefusal& refusal) {
            if (sentence != nullptr)
                *sentence = refusal.what();
            EXPECT_NE(std::string(refusal.what()).find(file.string()), std::string::npos) << refusal.what();
            EXPECT_EQ(std::filesystem::is_regular_file(file), there);
            if (there) {
                EXPECT_EQ(contentsOf(file), before);
            }
            return refusal.reason();
        }
        ADD_FAILURE() << "opened " << file;
        return FileRefusal::Reason::failed;
    }

    std::vector<std::string> filesInFolder() const
    {
        std::vector<std::string> names;
        for (const auto& entry : std::filesystem::directory_iterator(folder.path()))
            names.push_back(entry.path().filename().string());
        return names;
    }

    std::string query(const std::string& sql) const { return zel::test::query(path, sql); }
};

TEST_F(ModelFiles, KeepWhatWasWritten)
{
    {
        const auto model = ModelDocument::create(path, {T_UNIT_INDEX::M, T_UNIT_INDEX::TON});
        CDataStld().Add({loadCase("DL"), loadCase("LL", "L"), loadCase("바람", "W")});
        CDataStld().ChangeSequence({3}, 0);
        T_LCOM_D combination;
        combination.name = "gLCB1  ";
        combination.items = {{1, 1, 1.2}, {1, 2, 0.1 + 0.2}};
        CDataLcom().Add(1, combination);
        T_LCUG_D underground;
        underground.groups.resize(2);
        underground.groups[1].seismicKeys = {4, 5};
        underground.groups[1].staticKeys = {6};
        CDataLcug().Add(underground);
    }
    const auto model = ModelDocument::open(path);
    EXPECT_EQ(model->units(), (T_UNIT_INDEX{T_UNIT_INDEX::M, T_UNIT_INDEX::TON}));
    std::vector<CString> names;
    CDataStld().GetNameList(names);
    EXPECT_EQ(names, (std::vector<CString>{"바람", "DL", "LL"}));
    CDataLcom combinations;
    ASSERT_NE(combinations.Get(1, "gLCB1  "), 0);
    ASSERT_EQ(combinations.currentRecord.items.size(), 2U);
    EXPECT_EQ(combinations.currentRecord.items[1].factor, 0.1 + 0.2);
    T_LCUG_D underground;
    ASSERT_NE(CDataLcug().Get(underground), 0);
    ASSERT_EQ(underground.groups.size(), 2U);
    EXPECT_EQ(underground.groups[1].seismicKeys, (std::vector<std::uint32_t>{4, 5}));
    EXPECT_EQ(underground.groups[1].staticKeys, (std::vector<std::uint32_t>{6}));
}

/// Gives every field of a record a value that is not its default.
void fill(const FlatLayout& layout, void* record, int& next)
{
    for (const FlatColumn& column : layout.columns) {
        ++next;
        switch (column.type) {
        case FieldType::int32:
            column.in<std::int32_t>(record) = next;
            break;
        case FieldType::uint32:
            column.in<std::uint32_t>(record) = static_cast<std::uint32_t>(next);
            break;
        case FieldType::real:
            column.in<double>(record) = next + 0.125;
            break;
        case FieldType::text:
            column.in<CString>(record) = "text " + std::to_string(next);
            break;
        case FieldType::record:
            break;
        }
    }
    for (const FlatList& list : layout.lists) {
        list.operations->resize(list.in(record), 3);
        for (std::size_t i = 0; i < 3; ++i)
            fill(*list.element, list.operations->edit(list.in(record), i), next);
    }
}

TEST_F(ModelFiles, EveryFieldOfEveryRecordSurvives)
{
    std::vector<RecordPtr> written(tableList().size());
    {
        const auto model = ModelDocument::create(path);
        int next = 0;
        for (const TableInfo& table : tableList()) {
            const std::shared_ptr<void> record = table.record->create();
            fill(flatLayout(*table.record), record.get(), next);
            const int kind = table.shape == TableShape::kinded ? 4 : 0;
            ASSERT_NE(model->table(table.table).add(kind, {1}, {record}, false), 0) << table.code;
            written[static_cast<std::size_t>(table.table)] = model->table(table.table).find(kind, 1);
        }
    }
    const auto model = ModelDocument::open(path);
    for (const TableInfo& table : tableList()) {
        const RecordPtr read = model->table(table.table).find(table.shape == TableShape::kinded ? 4 : 0, 1);
        ASSERT_TRUE(read) << table.code;
        EXPECT_TRUE(table.record->equal(written[static_cast<std::size_t>(table.table)].get(), read.get())) << table.code;
    }
}

TEST_F(ModelFiles, HoldNoRowsOfListsOfDeletedRecords)
{
    {
        const auto model = ModelDocument::create(path);
        CDataStld().Add(loadCase("DL"));
        std::vector<T_LCOM_D> combinations(5);
        for (std::size_t i = 0; i < combinations.size(); ++i) {
            combinations[i].name = "C" + std::to_string(i + 1);
            combinations[i].items.resize(i + 1, {1, 1, 1.0});
        }
        CDataLcom().Add(1, combinations);
        T_LCUG_D sets;
        sets.groups.resize(2);
        sets.groups[1].seismicKeys = {4, 5};
        CDataLcug().Add(sets);
        ASSERT_NE(CDataLcom().Del(1, std::vector<CString>{"C5", "C2", "C1"}), 0);
        ASSERT_NE(model->table(Table::LCUG).remove(0, {1}), 0);
    }
    EXPECT_EQ(query("select parent, count(*) from LCOM_items group by 1"), "3|3\n4|4\n");
    EXPECT_EQ(query("select count(*) from LCUG_groups"), "0\n");
    EXPECT_EQ(query("select count(*) from LCUG_groups_seismicKeys"), "0\n");
    ModelDocument::open(path);
}

TEST_F(ModelFiles, ThatNeedMoreMemoryThanThereIsSayThatAndStayAsTheyWere)
{
    {
        const auto model = ModelDocument::create(path);
        ASSERT_NE(CDataStld().Add(loadCase("DL")), 0);
        sqlite3_hard_heap_limit64(sqlite3_memory_used() + 1000);
        EXPECT_EQ(CDataLcom().Add(1, std::vector<T_LCOM_D>(1)), 0);
        sqlite3_hard_heap_limit64(0);
        ASSERT_FALSE(host.boxes.empty());
        EXPECT_NE(host.boxes.back().text.find("needs more memory than there is"), std::string::npos) << host.boxes.back().text;
        EXPECT_EQ(CDataLcom().GetCount(1), 0);
    }
    const auto model = ModelDocument::open(path);
    EXPECT_EQ(CDataStld().GetCount(), 1);
    EXPECT_EQ(CDataLcom().GetCount(1), 0);
}

TEST_F(ModelFiles, WithATriggerUnderANameOfTheDatabaseItselfAreRefused)
{
    ModelDocument::create(path);
    query("create trigger innocent after insert on STLD begin delete from LCOM; end; PRAGMA writable_schema=ON; "
          "update sqlite_schema set name='sqlite_stat9', sql=replace(sql, 'innocent', 'sqlite_stat9') where name='innocent'");
    ASSERT_EQ(query("select name from sqlite_schema where type='trigger'"), "sqlite_stat9\n");
    std::string sentence;
    EXPECT_EQ(refusalOf(path, &sentence), FileRefusal::Reason::damaged);
    EXPECT_NE(sentence.find("it holds \"sqlite_stat9\", which is not of a model"), std::string::npos) << sentence;
}

TEST_F(ModelFiles, AreOneFileWhenClosedAndAnswerPlainSql)
{
    {
        const auto model = ModelDocument::create(path);
        CDataStld().Add({loadCase("DL"), loadCase("LL", "L")});
        T_LCOM_D combination;
        combination.name = "C1";
        combination.description = "1.4D";
        combination.items = {{1, 1, 1.4}};
        CDataLcom().Add(1, combination);
    }
    EXPECT_EQ(filesInFolder(), (std::vector<std::string>{"model.qvx"}));
    EXPECT_EQ(query("select name, description from LCOM"), "C1|1.4D\n");
    EXPECT_EQ(query("select key, no, name, type from STLD order by no"), "1|1|DL|D\n2|2|LL|L\n");
    EXPECT_EQ(query("select parent_kind, parent, seq, type, key, factor from LCOM_items"), "1|1|0|1|1|1.4\n");
    EXPECT_EQ(query("PRAGMA integrity_check"), "ok\n");
    EXPECT_EQ(query("PRAGMA foreign_key_check"), "");
    EXPECT_EQ(query("PRAGMA user_version"), std::to_string(schemaVersion) + "\n");
    EXPECT_EQ(query("PRAGMA application_id"), std::to_string(applicationId) + "\n");
    EXPECT_EQ(query("PRAGMA journal_mode"), "wal\n");
}

TEST_F(ModelFiles, OpeningAndClosingWithoutAChangeLeavesTheBytes)
{
    ModelDocument::create(path);
    const std::string before = contentsOf(path);
    for (int i = 0; i < 3; ++i)
        ModelDocument::open(path);
    EXPECT_EQ(contentsOf(path), before);
    EXPECT_EQ(filesInFolder(), (std::vector<std::string>{"model.qvx"}));
}

TEST_F(ModelFiles, EachActionIsInTheFileWhenItReturns)
{
    const auto model = ModelDocument::create(path);
    CDataStld().Add(loadCase("DL"));
    const std::filesystem::path copy = folder / "crashed.qvx";  // what a crash at this moment would leave
    std::filesystem::copy_file(path, copy);
    std::filesystem::copy_file(path.string() + "-wal", copy.string() + "-wal");
    const auto reopened = ModelDocument::open(copy);
    EXPECT_NE(CDataStld().Get("DL"), 0);
}

TEST_F(ModelFiles, AreNotMadeOverAnother)
{
    writeFile(path, "precious");
    EXPECT_THROW(ModelDocument::create(path), FileRefusal);
    EXPECT_EQ(contentsOf(path), "precious");
    EXPECT_EQ(filesInFolder(), (std::vector<std::string>{"model.qvx"}));
    EXPECT_THROW(ModelDocument::create(folder / "missing/model.qvx"), FileRefusal);
}

TEST_F(ModelFiles, ACopyHasEverythingAndReplacesOnlyWhenAsked)
{
    const auto model = ModelDocument::create(path);
    CDataStld().Add(loadCase("DL"));
    const std::filesystem::path copy = folder / "copy.qvx";
    model->saveCopy(copy, false);
    CDataStld().Add(loadCase("LL"));
    EXPECT_THROW(model->saveCopy(copy, false), FileRefusal);
    EXPECT_THROW(model->saveCopy(path, true), FileRefusal) << "its own file is open";
    model->saveCopy(copy, true);
    const auto reopened = ModelDocument::open(copy);
    EXPECT_EQ(CDataStld().GetCount(), 2);
}

// ---- files that are refused ----

TEST_F(ModelFiles, AMissingFileAndAMissingFolderAreRefused)
{
    std::string sentence;
    EXPECT_EQ(refusalOf(folder / "none.qvx", &sentence), FileRefusal::Reason::missing);
    EXPECT_EQ(refusalOf(folder / "none/none.qvx", &sentence), FileRefusal::Reason::missing);
    EXPECT_NE(sentence.find("folder"), std::string::npos);
    EXPECT_EQ(refusalOf(folder.path()), FileRefusal::Reason::notAModel);
}

TEST_F(ModelFiles, AnEmptyFileAndATextFileAreRefused)
{
    writeFile(path, "");
    EXPECT_EQ(refusalOf(path), FileRefusal::Reason::notAModel);
    writeFile(path, "SQLite format 3 is what this text speaks of\n");
    EXPECT_EQ(refusalOf(path), FileRefusal::Reason::notAModel);
    writeFile(path, std::string(5000, 'x'));
    EXPECT_EQ(refusalOf(path), FileRefusal::Reason::notAModel);
}

TEST_F(ModelFiles, ADatabaseOfAnotherProgramIsRefused)
{
    query("create table t(x); insert into t values(1)");
    std::string sentence;
    EXPECT_EQ(refusalOf(path, &sentence), FileRefusal::Reason::notAModel);
    EXPECT_NE(sentence.find("another program"), std::string::npos);
}

TEST_F(ModelFiles, ANewerSchemaIsRefused)
{
    ModelDocument::create(path);
    query("PRAGMA user_version=99");
    std::string sentence;
    EXPECT_EQ(refusalOf(path, &sentence), FileRefusal::Reason::newer);
    EXPECT_NE(sentence.find("newer version"), std::string::npos);
}

TEST_F(ModelFiles, AReadOnlyFileIsRefused)
{
    ModelDocument::create(path);
    std::filesystem::permissions(path, std::filesystem::perms::owner_read);
    EXPECT_EQ(refusalOf(path), FileRefusal::Reason::readOnly);
}

TEST_F(ModelFiles, ASecondOpenerIsRefusedAndSoIsAForeignWriter)
{
    const auto model = ModelDocument::create(path);
    CDataStld().Add(loadCase("DL"));
    std::string sentence;
    EXPECT_EQ(refusalOf(path, &sentence), FileRefusal::Reason::locked);
    EXPECT_NE(sentence.find("Close it there"), std::string::npos);
    sqlite3* other = nullptr;
    sqlite3_open(path.c_str(), &other);
    EXPECT_EQ(sqlite3_exec(other, "delete from STLD", nullptr, nullptr, nullptr), SQLITE_BUSY);
    sqlite3_close(other);
    EXPECT_NE(CDataStld().Add(loadCase("LL")), 0);
}

TEST_F(ModelFiles, AFileThatAnotherProgramHoldsIsRefused)
{
    ModelDocument::create(path);
    sqlite3* other = nullptr;
    sqlite3_open(path.c_str(), &other);
    sqlite3_exec(other, "begin immediate", nullptr, nullptr, nullptr);
    EXPECT_EQ(refusalOf(path), FileRefusal::Reason::locked);
    sqlite3_close(other);
    EXPECT_NE(ModelDocument::open(path), nullptr);
}

TEST_F(ModelFiles, ATruncatedFileIsRefused)
{
    {
        const auto model = ModelDocument::create(path);
        CDataStld().Add(loadCase("DL"));
    }
    const std::string whole = contentsOf(path);
    for (const std::size_t size : {whole.size() / 2, whole.size() - 1, whole.size() - 4096, std::size_t{100}, std::size_t{4096}}) {
        writeFile(path, whole.substr(0, size));
        EXPECT_EQ(refusalOf(path), FileRefusal::Reason::damaged) << size;
    }
}

TEST_F(ModelFiles, AValueChangedBehindTheProgramsBackIsNoticed)
{
    {
        const auto model = ModelDocument::create(path);
        CDataStld().Add({loadCase("DL"), loadCase("LL")});
    }
    const std::string whole = contentsOf(path);
    for (const char* change : {"update STLD set selfWeightFactor=1 where key=2", "update STLD set name='XX' where key=1", "delete from STLD where key=2",
                               "insert into LCOM_items values(1,1,0,1,1,1)", "update zel_setting set value='M' where name='length'",
                               "update zel_check set row_hash=row_hash+1 where code='MATL'", "create table extra(x)", "drop table WDIR"}) {
        writeFile(path, whole);
        query(std::string("PRAGMA foreign_keys=OFF; ") + change);
        EXPECT_EQ(refusalOf(path), FileRefusal::Reason::damaged) << change;
    }
}

TEST_F(ModelFiles, AFlippedBitIsReportedOrHarmless)
{
    {
        const auto model = ModelDocument::create(path);
        for (int i = 0; i < 40; ++i) {
            T_LCOM_D combination;
            combination.name = "C" + std::to_string(i);
            combination.items = {{1, 1, 1.2}, {1, 2, 1.6}};
            CDataLcom().Add(1, combination);
        }
        CDataStld().Add({loadCase("DL"), loadCase("LL", "L")});
    }
    const auto everything = [](ModelDocument& model) {
        std::uint64_t sum = static_cast<std::uint64_t>(model.units().length) * 10 + static_cast<std::uint64_t>(model.units().force);
        for (const TableInfo& table : tableList()) {
            for (const int kind : {0, 1, 2, 3, 4, 5}) {
                for (const Key key : model.table(table.table).keys(kind))
                    sum += rowHash(table, kind, key, model.table(table.table).find(kind, key).get());
            }
        }
        return sum;
    };
    const std::uint64_t stored = everything(*ModelDocument::open(path));
    const std::string whole = contentsOf(path);
    std::mt19937 random(1);
    int reported = 0;
    for (int i = 0; i < 300; ++i) {
        std::string flipped = whole;
        const std::size_t bit = random() % (whole.size() * 8);
        flipped[bit / 8] = static_cast<char>(flipped[bit / 8] ^ (1 << (bit % 8)));
        const std::filesystem::path copy = folder / "flipped.qvx";
        std::filesystem::remove(copy);
        writeFile(copy, flipped);
        try {
            EXPECT_EQ(everything(*ModelDocument::open(copy)), stored) << "bit " << bit;
        } catch (const FileRefusal&) {
            ++reported;
            EXPECT_EQ(contentsOf(copy), flipped) << "bit " << bit;
        }
        EXPECT_FALSE(std::filesystem::exists(copy.string() + "-wal"));
    }
    EXPECT_GT(reported, 0);
}

TEST_F(ModelFiles, AWriteThatTheFileRefusesChangesNothing)
{
    const auto model = ModelDocument::create(path);
    CDataStld().Add(loadCase("DL"));
    T_LCOM_D combination;
    combination.description = std::string(1 << 20, 'x');
    const NoticeLog log;
    {
        const FullDisk full(1 << 18);
        EXPECT_EQ(CDataLcom().Add(1, combination), 0);
    }
    ASSERT_EQ(host.boxes.size(), 1U);
    EXPECT_NE(host.boxes[0].text.find("nothing was changed"), std::string::npos);
    EXPECT_EQ(CDataLcom().GetCount(1), 0);
    EXPECT_TRUE(log.notices.empty());
    EXPECT_NE(CDataStld().Add(loadCase("LL")), 0);
    model->Undo();
    model->Undo();
    EXPECT_EQ(CDataStld().GetCount(), 0);
}

// ---- import ----

TEST_F(ModelFiles, AnotherFileIsReadInTheUnitsOfTheOpenModelWithoutBeingTouched)
{
    {
        const auto other = ModelDocument::create(path, {T_UNIT_INDEX::M, T_UNIT_INDEX::KN});
        T_LNLD_D type;
        type.name = "wall";
        type.loadCase1 = 1;
        type.load1 = 5.0;  // kN/m
        CDataStld().Add(loadCase("DL"));
        CDataLnld().Add(type);
    }
    const std::string before = contentsOf(path);
    const auto model = ModelDocument::inMemory({T_UNIT_INDEX::MM, T_UNIT_INDEX::N});
    CImportFile file;
    ASSERT_NE(file.ImportLnld(path.string()), 0);
    std::vector<Key> keys;
    std::vector<T_LNLD_D> types;
    ASSERT_NE(file.GetLnldList(keys, types), 0);
    EXPECT_EQ(keys, (std::vector<Key>{1}));
    EXPECT_DOUBLE_EQ(types.at(0).load1, 5.0);  // N/mm
    std::vector<T_STLD_D> cases;
    ASSERT_NE(file.GetStldList(keys, cases), 0);
    EXPECT_EQ(cases.at(0).name, "DL");
    std::vector<T_MATL_D> materials;
    EXPECT_EQ(file.GetMatlList(keys, materials), 0) << "not read";
    EXPECT_EQ(contentsOf(path), before);
    EXPECT_EQ(filesInFolder(), (std::vector<std::string>{"model.qvx"}));
    EXPECT_EQ(CDataStld().GetCount(), 0);
}

TEST_F(ModelFiles, AFileThatCantBeImportedGives0AndAReason)
{
    const auto model = ModelDocument::inMemory();
    CImportFile file;
    EXPECT_EQ(file.ImportMatl((folder / "none.qvx").string()), 0);
    ASSERT_EQ(host.boxes.size(), 1U);
    EXPECT_NE(host.boxes[0].text.find("does not exist"), std::string::npos);
}

TEST_F(ModelFiles, AReadOnlyFileCanBeImported)
{
    ModelDocument::create(path);
    std::filesystem::permissions(path, std::filesystem::perms::owner_read);
    const auto model = ModelDocument::inMemory();
    EXPECT_NE(CImportFile().ImportMatl(path.string()), 0);
}

}  // namespace zel::test
