#include "contract/tables/load_combination_table.h"
#include "contract/tables/static_load_case_table.h"
#include "model_fixture.h"
#include "platform/modeldb/model_check.h"
#include "platform/modeldb/model_file.h"
#include "platform/modeldb/model_json.h"

#include <algorithm>
#include <random>
#include <sqlite3.h>
#include <sstream>

namespace zel::test {

std::string asText(const FileFault& fault)
{
    return std::string(fault.table) + " " + std::to_string(fault.kind) + "." + std::to_string(fault.key) + " " + fault.field + ": " + fault.what +
        (fault.leftOut ? " -" : "");
}

class ModelCheck : public testing::Test {
protected:
    HeadlessUserInterface host;
    Folder folder;
    std::filesystem::path path = folder / "model.qvx";

    /// Two load cases and two combinations of them, in metres and kilonewtons.
    void makeModel()
    {
        const auto model = ModelDocument::create(path, {T_UNIT_INDEX::M, T_UNIT_INDEX::KN});
        CDataStld().Add({loadCase("DL"), loadCase("LL", "L"), loadCase("WX", "W")});
        for (const char* name : {"C1", "C2"}) {
            T_LCOM_D combination;
            combination.name = name;
            combination.items = {{1, 1, 1.2}, {1, 2, 1.6}};
            CDataLcom().Add(1, combination);
        }
    }

    /// Changes the file by plain SQLite.
    void change(const std::string& sql)
    {
        sqlite3* database = nullptr;
        ASSERT_EQ(sqlite3_open(path.c_str(), &database), SQLITE_OK);
        char* error = nullptr;
        EXPECT_EQ(sqlite3_exec(database, sql.c_str(), nullptr, nullptr, &error), SQLITE_OK) << error;
        sqlite3_free(error);
        sqlite3_close(database);
    }

    /// The faults of the file, which must stay as it is.
    std::vector<std::string> faults()
    {
        const std::string before = contentsOf(path);
        std::vector<std::string> told;
        for (const FileFault& fault : examineModelFile(path).faults)
            told.push_back(asText(fault));
        EXPECT_EQ(contentsOf(path), before);
        return told;
    }

    /// What the file's salvage holds, as JSON; it must open without a fault of its own but broken references.
    std::string salvaged()
    {
        const std::filesystem::path saved = folder / "saved.qvx";
        std::filesystem::remove(saved);
        const ExaminedFile found = examineModelFile(path);
        ModelFile::create(saved, found.units, found.records, false);
        return modelText(saved);
    }

    static std::string modelText(const std::filesystem::path& file)
    {
        const auto model = ModelDocument::open(file);
        std::ostringstream text;
        printModelJson(*model, text);
        return text.str();
    }
};

using Lines = std::vector<std::string>;

TEST_F(ModelCheck, FindsNothingInAGoodModelAndReadsAllOfIt)
{
    makeModel();
    EXPECT_EQ(faults(), Lines{});
    EXPECT_EQ(examineModelFile(path).recordCount(), 5U);
    EXPECT_EQ(salvaged(), modelText(path));
}

TEST_F(ModelCheck, LeavesARecordWithAnImpossibleValueOutAndTellsWhoRefersToIt)
{
    makeModel();
    change("update STLD set selfWeightFactor=9e999 where key=2");
    EXPECT_EQ(faults(),
              (Lines{"STLD 0.2 selfWeightFactor: is not a finite number -", "LCOM 1.1 items: refers to static load case 2, which is not there",
                     "LCOM 1.2 items: refers to static load case 2, which is not there"}));
    const std::string text = salvaged();
    EXPECT_EQ(text.find("\"LL\""), std::string::npos);
    EXPECT_NE(text.find("\"WX\", \"no\": 2"), std::string::npos) << text;
}

TEST_F(ModelCheck, TellsAValueOutOfRangeAndATextThatIsNone)
{
    makeModel();
    change("update STLD set combinationType=-1 where key=1; update STLD set description=cast(x'41ff' as text) where key=3");
    const Lines told = faults();
    EXPECT_NE(std::find(told.begin(), told.end(), "STLD 0.1 combinationType: -1 is out of range -"), told.end());
    EXPECT_NE(std::find(told.begin(), told.end(), "STLD 0.3 description: holds bytes that are no text -"), told.end());
}

TEST_F(ModelCheck, LeavesARecordOutWhoseListHasLostAPlace)
{
    makeModel();
    change("delete from LCOM_items where parent_kind=1 and parent=2 and seq=0");
    EXPECT_EQ(faults(), (Lines{"LCOM 1.2 items: place 0 is missing -"}));
    EXPECT_NE(salvaged().find("\"C1\""), std::string::npos);
    EXPECT_EQ(salvaged().find("\"C2\""), std::string::npos);
}

TEST_F(ModelCheck, TellsRowsOfListsWhoseRecordIsGone)
{
    makeModel();
    change("delete from LCOM where key=2");
    EXPECT_EQ(faults(), (Lines{"LCOM 0.0 items: 2 rows belong to no record -", "LCOM 0.0 : holds 1 records where 2 were stored"}));
}

TEST_F(ModelCheck, TellsADesignKindThatThereIsNot)
{
    makeModel();
    change("update LCOM set kind=9 where key=2; update LCOM_items set parent_kind=9 where parent=2");
    EXPECT_EQ(faults(), (Lines{"LCOM 0.0 kind: 1 records are of a design kind that there is not -", "LCOM 0.0 : holds 1 records where 2 were stored"}));
}

TEST_F(ModelCheck, LeavesTheSecondOfTwoEqualNamesOut)
{
    makeModel();
    change("update STLD set name='dl' where key=3");
    const Lines told = faults();
    EXPECT_EQ(told,
              (Lines{"STLD 0.0 : some value is not as it was stored; which one can't be told", "STLD 0.3 name: \"dl\" is the name of record 1 already -"}));
}

TEST_F(ModelCheck, TellsAChangedValueByItsHashAndAChangedHash)
{
    makeModel();
    change("update LCOM_items set factor=1.3 where parent=1 and seq=0; update zel_check set row_hash=row_hash+1 where code='STLD'");
    EXPECT_EQ(faults(),
              (Lines{"STLD 0.0 : some value is not as it was stored; which one can't be told",
                     "LCOM 0.0 : some value is not as it was stored; which one can't be told"}));
}

TEST_F(ModelCheck, TellsUnknownUnitsAndChangedSettings)
{
    makeModel();
    change("update zel_setting set value='YARD' where name='length'");
    EXPECT_EQ(faults(), (Lines{" 0.0 : its settings are not as they were stored", " 0.0 : its units are unknown; the numbers are taken for MM and KN"}));
}

TEST_F(ModelCheck, TellsWhatIsNotOfAModelAndWhatIsMissing)
{
    makeModel();
    change("create view STRANGE as select 1; drop table GDLN");
    EXPECT_EQ(faults(), (Lines{"GDLN 0.0 : \"GDLN\" is missing -", " 0.0 : holds \"STRANGE\", which is not of a model -"}));
    EXPECT_NE(salvaged().find("\"WX\""), std::string::npos);
}

TEST_F(ModelCheck, ReadsTheWriteAheadLogAndLeavesIt)
{
    makeModel();
    const std::filesystem::path crashed = folder / "crashed.qvx";
    {
        const auto model = ModelDocument::open(path);
        CDataStld().Add(loadCase("EX", "E"));
        std::filesystem::copy_file(path, crashed);
        std::filesystem::copy_file(path.string() + "-wal", crashed.string() + "-wal");
    }
    const std::string log = contentsOf(crashed.string() + "-wal");
    EXPECT_EQ(examineModelFile(crashed).recordCount(), 6U);
    EXPECT_EQ(contentsOf(crashed.string() + "-wal"), log);
}

TEST_F(ModelCheck, ReadsBothSidesOfAPageThatIsGone)
{
    constexpr std::size_t count = 3000;
    {
        const auto model = ModelDocument::create(path);
        std::vector<T_STLD_D> cases;
        for (std::size_t i = 0; i < count; ++i)
            cases.push_back(loadCase(("case " + std::to_string(i)).c_str()));
        CDataStld().Add(cases);
    }
    std::string bytes = contentsOf(path);
    const std::size_t place = bytes.find("case 1500");
    ASSERT_NE(place, std::string::npos);
    constexpr std::size_t pageSize = 4096;
    std::fill_n(bytes.begin() + static_cast<std::ptrdiff_t>(place / pageSize * pageSize), pageSize, '\xff');
    writeFile(path, bytes);

    const ExaminedFile found = examineModelFile(path);
    EXPECT_FALSE(found.faults.empty());
    EXPECT_GT(found.recordCount(), count - 200);
    EXPECT_LT(found.recordCount(), count);
    const std::string text = salvaged();
    EXPECT_NE(text.find("\"case 0\""), std::string::npos);
    EXPECT_EQ(text.find("\"case 1500\""), std::string::npos);
    EXPECT_NE(text.find("\"case 2999\""), std::string::npos);
}

TEST_F(ModelCheck, ReadsWhatATruncatedFileStillHolds)
{
    makeModel();
    const std::string bytes = contentsOf(path);
    std::size_t read = 0;
    for (const double part : {0.2, 0.5, 0.8, 0.99}) {
        writeFile(path, bytes.substr(0, static_cast<std::size_t>(part * static_cast<double>(bytes.size()))));
        try {
            const ExaminedFile found = examineModelFile(path);
            EXPECT_FALSE(found.faults.empty()) << part;
            read += found.recordCount();
            salvaged();
        } catch (const FileRefusal& refusal) {
            EXPECT_EQ(refusal.reason(), FileRefusal::Reason::damaged) << refusal.what();
        }
    }
    EXPECT_GT(read, 0U);
}

TEST_F(ModelCheck, CallsNoFileFaultlessThatAFlippedBitHasChanged)
{
    makeModel();
    const std::string before = modelText(path);
    const std::string bytes = contentsOf(path);
    std::mt19937 random(20220901);
    int examined = 0;
    for (int flip = 0; flip < 150; ++flip) {
        std::string flipped = bytes;
        // the first pages, where the schema and the rows are, and the rest alike
        const std::size_t place = random() % (flip % 2 == 0 ? bytes.size() : bytes.size() / 8);
        flipped[place] = static_cast<char>(flipped[place] ^ (1 << random() % 8));
        writeFile(path, flipped);
        try {
            if (const ExaminedFile found = examineModelFile(path); found.faults.empty()) {
                EXPECT_EQ(salvaged(), before) << "byte " << place;
            } else
                salvaged();
            ++examined;
        } catch (const FileRefusal&) {
            // told as a file that can't be read at all
        }
    }
    EXPECT_GT(examined, 75);
}

TEST_F(ModelCheck, RefusesWhatIsNoModel)
{
    writeFile(path, "a letter");
    EXPECT_THROW(examineModelFile(path), FileRefusal);
    EXPECT_THROW(examineModelFile(folder / "nothing.qvx"), FileRefusal);
}

}  // namespace zel::test
