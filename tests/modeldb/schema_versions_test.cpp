#include "build_paths.h"
#include "contract/tables/load_combination_table.h"
#include "failing_disk.h"
#include "model_fixture.h"
#include "platform/modeldb/file_format.h"
#include "platform/modeldb/model_json.h"
#include "platform/modeldb/schema_steps.h"
#include "sqlite_of_model.h"

#include <algorithm>
#include <sstream>

namespace zel::test {

class SchemaVersions : public testing::Test {
protected:
    /// A file as a version of the program wrote it.
    std::filesystem::path oldFile(int version)
    {
        const std::filesystem::path copy = folder / ("schema_" + std::to_string(version) + ".qvx").c_str();
        std::filesystem::copy_file(data("schema_" + std::to_string(version) + ".qvx"), copy, std::filesystem::copy_options::overwrite_existing);
        return copy;
    }
    static std::filesystem::path data(const std::string& name) { return sourceFolder() + "/tests/modeldb/data/" + name; }

    static std::vector<std::string> statements(const std::string& text)
    {
        std::vector<std::string> found;
        for (std::size_t from = 0, end = 0; (end = text.find(";\n", from)) != std::string::npos; from = end + 2)
            found.push_back(text.substr(from, end - from));
        std::sort(found.begin(), found.end());
        return found;
    }
    static std::vector<std::string> schemaOf(const std::filesystem::path& file) { return statements(query(file, "select sql || ';' from sqlite_schema")); }
    static std::string dumpOf(ModelDocument& model)
    {
        std::ostringstream text;
        printModelJson(model, text);
        return text.str();
    }

    HeadlessUserInterface host;
    Folder folder;
};

TEST_F(SchemaVersions, TheNamesOfTablesAndColumnsAreThoseOfTheirVersion)
{
    const std::filesystem::path file = folder / "new.qvx";
    ModelDocument::create(file);
    const std::string golden = "schema_" + std::to_string(schemaVersion) + ".sql";
    ASSERT_TRUE(std::filesystem::exists(data(golden))) << "a new version keeps the text of its schema in the tests";
    EXPECT_EQ(schemaOf(file), statements(contentsOf(data(golden))))
        << "files hold these names: a table or column that is added, renamed or removed needs the next version and the step to it";
    EXPECT_EQ(schemaOf(oldFile(1)), statements(contentsOf(data("schema_1.sql"))));
}

TEST_F(SchemaVersions, AFileOfEveryEarlierVersionOpensAndHoldsWhatItHeld)
{
    for (int version = 1; version < schemaVersion; ++version) {
        const std::filesystem::path file = oldFile(version);
        const std::string before = contentsOf(file);
        const std::string dump = contentsOf(data("schema_" + std::to_string(version) + ".json"));
        EXPECT_EQ(dumpOf(*ModelDocument::open(file, ModelFile::Access::readOnly)), dump);
        EXPECT_EQ(dumpOf(*ModelDocument::open(file)), dump);
        EXPECT_EQ(contentsOf(file), before) << "a look at an older file leaves it to the program that made it";
    }
}

TEST_F(SchemaVersions, TheFirstChangeBringsAnOlderFileUp)
{
    for (int version = 1; version < schemaVersion; ++version) {
        const std::filesystem::path file = oldFile(version);
        {
            const auto model = ModelDocument::open(file);
            EXPECT_NE(CDataStld().Add(loadCase("NEW")), 0);
        }
        EXPECT_EQ(query(file, "PRAGMA user_version"), std::to_string(schemaVersion) + "\n");
        EXPECT_EQ(schemaOf(file), statements(contentsOf(data("schema_" + std::to_string(schemaVersion) + ".sql"))));
        const auto model = ModelDocument::open(file);
        EXPECT_NE(CDataStld().Get("NEW"), 0);
        EXPECT_NE(CDataStld().Get("바람"), 0);
        EXPECT_EQ(CDataLcom().GetCount(1), 10);
    }
}

// ---- the steps themselves, on a small database ----

/// A database whose one table stands for a model's, of version 1.
class SchemaStepsOn : public SchemaVersions {
protected:
    SchemaStepsOn()
    {
        query(file,
              "PRAGMA user_version=1; create table zel_check(code text, row_count integer, row_hash integer); insert into zel_check values('STLD', 2, 7)");
        database = std::make_unique<Database>(file, SQLITE_OPEN_READWRITE);
    }

    std::filesystem::path file = folder / "steps.db";
    std::unique_ptr<Database> database;
};

void addTable(Database& database)
{
    database.run("create table ADDED(key integer primary key); insert into zel_check values('ADDED', 0, 0)");
}

void failInTheMiddle(Database& database)
{
    database.run("create table HALF(key integer)");
    database.run("insert into NOWHERE values(1)");
}

TEST_F(SchemaStepsOn, ATableThatIsAddedLaterMakesNoFileDamaged)
{
    constexpr SchemaStep steps[] = {{2, addTable}};
    database->run("BEGIN");
    bringUp(*database, steps);
    database->run("COMMIT");
    EXPECT_EQ(query(file, "select code from zel_check; PRAGMA user_version"), "STLD\nADDED\n2\n");
    bringUp(*database, steps);  // it is there already
    EXPECT_EQ(query(file, "select count(*) from zel_check"), "2\n");
}

TEST_F(SchemaStepsOn, AStepThatFailsLeavesTheFileAsItWas)
{
    const std::string before = contentsOf(file);
    constexpr SchemaStep steps[] = {{2, addTable}, {3, failInTheMiddle}};
    database->run("BEGIN");
    EXPECT_THROW(bringUp(*database, steps), SqliteError);
    database->run("ROLLBACK");
    EXPECT_EQ(contentsOf(file), before);
}

TEST_F(SchemaVersions, AFileThatCantBeBroughtUpIsNotChangedAndSaysSo)
{
    FailingDisk disk;
    const std::filesystem::path file = oldFile(1);
    const auto model = ModelDocument::open(file);
    const std::string before = contentsOf(file);
    disk.failAt(FailingDisk::Call::write, 1, FailingDisk::How::forGood);
    EXPECT_EQ(CDataStld().Add(loadCase("NEW")), 0);
    EXPECT_TRUE(disk.hasFailed());
    disk.mend();
    EXPECT_EQ(host.boxes.size(), 1U);
    EXPECT_EQ(contentsOf(file), before);
    EXPECT_EQ(CDataStld().GetCount(), 3);
}

}  // namespace zel::test
