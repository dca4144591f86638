#include "crash/attack.h"
#include "crash/writing_journal.h"

#include <algorithm>
#include <cstring>

#include <sqlite3.h>

namespace crash_test {

namespace {

constexpr std::size_t pageSize = 4096;

/// A write on the tower that any model takes; `dump` then shows it.
constexpr const char* oneWrite = R"({"do": "db", "op": "add", "table": "STLD", "record": {"name": "NEW", "type": "L"}})";

}  // namespace

/// A model of a tower with its combinations, and what it holds.
class DamagedFile : public Attack {
protected:
    void SetUp() override
    {
        Attack::SetUp();
        makeTower();
        ASSERT_EQ(zel({"generate", model(), "--code", "AIK-USD94"}).code, 0);
        m_whole = contents(model());
        m_state = stateOf(model());
        ASSERT_EQ(zel({"play", model()}, oneWrite).code, 0);
        m_written = stateOf(model());
        ASSERT_NE(m_written, m_state);
    }

    /// The file is refused and left alone, or holds what it held and takes a write as the whole one does.
    void judge(const std::string& bytes)
    {
        restore({{"model.qvx", bytes}});
        const Outcome read = zel({"dump", model()});
        EXPECT_TRUE(orderly(read));
        if (read.code != 0) {
            count("refused");
            EXPECT_EQ(read.code, 1);
            EXPECT_TRUE(read.error.starts_with("zel: \"" + model() + "\"")) << read.error;
            EXPECT_TRUE(same({{"model.qvx", bytes}}, modelFolder()));
            return;
        }
        EXPECT_TRUE(read.out == m_state) << "another model was read";
        const Outcome write = zel({"play", model()}, oneWrite);
        EXPECT_TRUE(orderly(write));
        const std::string state = stateOf(model());
        if (write.out.find("\"result\": 1") != std::string::npos) {
            EXPECT_TRUE(state == m_written) << "the write changed something else: " << state.substr(0, 200);
        } else {
            count("writes refused");
            EXPECT_TRUE(state == m_state) << state.substr(0, 200);
        }
    }

    std::string m_whole;
    std::string m_state;
    std::string m_written;
};

TEST_F(DamagedFile, AFlippedBitIsReportedOrChangesNothing)
{
    const std::size_t records = m_whole.find("Self weight");
    ASSERT_NE(records, std::string::npos);
    for (int round = 0; round < rounds(20) && !HasFailure(); ++round) {
        // Most of a file is empty pages: half of the flips go where the records are, or into the headers of pages.
        std::size_t place = pick(m_whole.size());
        if (round % 4 == 1)
            place = records / pageSize * pageSize + pick(pageSize);
        else if (round % 4 == 3)
            place = place / pageSize * pageSize + pick(100);
        const auto bit = static_cast<unsigned>(pick(8));
        SCOPED_TRACE("bit " + std::to_string(bit) + " of byte " + std::to_string(place));
        std::string bytes = m_whole;
        bytes[place] = static_cast<char>(static_cast<unsigned char>(bytes[place]) ^ (1U << bit));
        count("flips");
        judge(bytes);
    }
}

TEST_F(DamagedFile, ThatIsCutIsRefused)
{
    for (int round = 0; round < rounds(8) && !HasFailure(); ++round) {
        const std::size_t size = round % 2 == 0 ? pick(m_whole.size()) : pick(m_whole.size() / pageSize) * pageSize;
        SCOPED_TRACE("cut to " + std::to_string(size) + " bytes");
        restore({{"model.qvx", m_whole.substr(0, size)}});
        count("cuts");
        EXPECT_EQ(zel({"dump", model()}).code, 1);
        judge(m_whole.substr(0, size));
    }
}

TEST_F(DamagedFile, WithSwappedPagesIsRefusedOrTheSame)
{
    for (int round = 0; round < rounds(8) && !HasFailure(); ++round) {
        const std::size_t left = pick(m_whole.size() / pageSize) * pageSize;
        const std::size_t right = pick(m_whole.size() / pageSize) * pageSize;
        SCOPED_TRACE("pages " + std::to_string(left / pageSize + 1) + " and " + std::to_string(right / pageSize + 1));
        std::string bytes = m_whole;
        std::swap_ranges(bytes.begin() + static_cast<std::ptrdiff_t>(left), bytes.begin() + static_cast<std::ptrdiff_t>(left + pageSize),
                         bytes.begin() + static_cast<std::ptrdiff_t>(right));
        count("swaps");
        judge(bytes);
    }
}

TEST_F(DamagedFile, WithABlockOfAnotherFileIsRefusedOrTheSame)
{
    for (int round = 0; round < rounds(8) && !HasFailure(); ++round) {
        const std::size_t place = pick(m_whole.size() / 512) * 512;
        const std::size_t size = std::min(m_whole.size() - place, 512 * (1 + pick(8)));
        SCOPED_TRACE(std::to_string(size) + " bytes at " + std::to_string(place));
        std::string bytes = m_whole;
        for (std::size_t i = place; i < place + size; ++i)
            bytes[i] = round % 2 == 0 ? '\0' : static_cast<char>(pick(256));
        count("blocks");
        judge(bytes);
    }
}

/// An edit by a plain SQLite tool, which keeps no hashes.
struct Edit {
    const char* sql;
    bool harmless;  ///< whether the model is the same afterwards
};

// clang-format off
constexpr Edit edits[] = {
    {"update STLD set description = 'x' where name = 'DL'", false},
    {"update LCOM_items set factor = factor * 1.0000001 where seq = 0", false},
    {"update STLD set key = 99 where name = 'DL'", false},
    {"update STLD set name = 'dl' where name = 'DL'", false},
    {"delete from STLD where name = 'SL'", false},
    {"delete from LCOM_items where seq = 1", false},
    {"delete from LCOM where key = 1", false},
    {"insert into LCOM_items select parent_kind, parent, seq + 50, type, key, factor from LCOM_items where seq = 0", false},
    {"pragma foreign_keys=off; drop table LCWD", false},
    {"create table NOTES(text)", false},
    {"create index names on STLD(name)", false},
    {"create view names as select name from STLD", false},
    {"create trigger t after insert on STLD begin delete from LCOM; end", false},
    {"create trigger sqlite_stat9 after insert on STLD begin delete from LCOM; end", false},
    {"alter table STLD add column remark text", false},
    {"alter table STLD rename column description to remark", false},
    {"update zel_setting set value = 'FT' where name = 'length'", false},
    {"insert into zel_setting values('colour', 'red')", false},
    {"update zel_check set row_hash = row_hash + 1 where code = 'STLD'", false},
    {"delete from zel_check where code = 'STLD'", false},
    {"pragma user_version = 9", false},
    {"pragma user_version = 0", false},
    {"pragma application_id = 7", false},
    {"vacuum", true},
    {"pragma journal_mode = delete", true},
};
// clang-format on

TEST_F(DamagedFile, EditedWithAnotherToolIsRefusedAndLeftAloneUnlessTheModelIsTheSame)
{
    for (const Edit& edit : edits) {
        SCOPED_TRACE(edit.sql);
        restore({{"model.qvx", m_whole}});
        sqlite3* database = nullptr;
        ASSERT_EQ(sqlite3_open(model().c_str(), &database), SQLITE_OK);
        sqlite3_db_config(database, SQLITE_DBCONFIG_DEFENSIVE, 0, nullptr);
        sqlite3_exec(database, "pragma writable_schema=on", nullptr, nullptr, nullptr);
        char* message = nullptr;
        const int status = sqlite3_exec(database, edit.sql, nullptr, nullptr, &message);
        ASSERT_EQ(status, SQLITE_OK) << message;
        sqlite3_close(database);
        const std::string bytes = contents(model());
        ASSERT_NE(bytes, m_whole);
        count("edits");
        const long refused = counted("refused");
        judge(bytes);
        EXPECT_EQ(counted("refused") - refused, edit.harmless ? 0 : 1);
    }
}

}  // namespace crash_test
