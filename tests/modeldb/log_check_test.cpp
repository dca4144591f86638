#include "platform/modeldb/log_check.h"

#include "model_fixture.h"

#include <fstream>
#include <iterator>

#include <sqlite3.h>

namespace zel::test {

/// A write-ahead log with three changes, each of one frame or more, as it stands while the database is open.
class LogCheck : public testing::Test {
protected:
    LogCheck()
    {
        const Folder folder;
        const std::string path = (folder / "log.db").string();
        sqlite3* database = nullptr;
        EXPECT_EQ(sqlite3_open(path.c_str(), &database), SQLITE_OK);
        const char* begin = "pragma page_size=1024; pragma journal_mode=wal; pragma synchronous=full; create table t(a); insert into t values(1)";
        EXPECT_EQ(sqlite3_exec(database, begin, nullptr, nullptr, nullptr), SQLITE_OK);
        EXPECT_EQ(sqlite3_exec(database, "pragma wal_checkpoint(truncate)", nullptr, nullptr, nullptr), SQLITE_OK);
        for (std::size_t& end : ends) {
            EXPECT_EQ(sqlite3_exec(database, "insert into t values(zeroblob(1500))", nullptr, nullptr, nullptr), SQLITE_OK);
            end = std::filesystem::file_size(path + "-wal");
        }
        std::ifstream file(path + "-wal", std::ios::binary);
        log.assign(std::istreambuf_iterator<char>(file), {});
        sqlite3_close(database);
    }

    [[nodiscard]] std::string flipped(std::size_t place) const
    {
        std::string bytes = log;
        bytes[place] = static_cast<char>(bytes[place] ^ 4);
        return bytes;
    }

    std::string log;
    std::size_t ends[3] = {};  ///< of each change
};

TEST_F(LogCheck, ALogIsSoundHoweverMuchOfItWasWritten)
{
    ASSERT_EQ(log.size(), ends[2]);
    for (std::size_t size = 0; size <= log.size(); ++size)
        ASSERT_FALSE(isDamagedLog(std::string_view(log).substr(0, size))) << size << " bytes";
    EXPECT_FALSE(isDamagedLog(std::string(4096, '\0')));
}

TEST_F(LogCheck, AFaultBeforeALaterChangeIsFound)
{
    for (std::size_t place = 0; place < ends[0]; ++place)
        ASSERT_TRUE(isDamagedLog(flipped(place))) << "byte " << place;
}

TEST_F(LogCheck, AFaultInTheLastFrameLooksCutOff)
{
    constexpr std::size_t frame = 24 + 1024;
    for (std::size_t place = log.size() - frame; place < log.size(); ++place)
        ASSERT_FALSE(isDamagedLog(flipped(place))) << "byte " << place;
}

TEST_F(LogCheck, OtherBytesAreNoLog)
{
    EXPECT_TRUE(isDamagedLog("any bytes at all, which are more than the head of a log"));
}

}  // namespace zel::test
