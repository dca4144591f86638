#include "cli/program.h"

#include <algorithm>
#include <chrono>
#include <cstdlib>
#include <random>
#include <sstream>
#include <thread>

#include <nlohmann/json.hpp>
#include <sqlite3.h>

namespace {

using cli_test::contents;
using cli_test::Outcome;
using cli_test::zel;

class Durability : public cli_test::CliTest {};

/// How often an experiment is made: a few times here, as often as the variable says in a long run.
int rounds(const char* variable, int usual)
{
    const char* text = std::getenv(variable);
    return text != nullptr ? std::atoi(text) : usual;
}

/// The answer of `PRAGMA integrity_check`.
std::string integrity(const std::string& model)
{
    sqlite3* database = nullptr;
    std::string answer = "can't be opened";
    if (sqlite3_open_v2(model.c_str(), &database, SQLITE_OPEN_READWRITE, nullptr) == SQLITE_OK) {
        const auto take = [](void* to, int, char** values, char**) {
            *static_cast<std::string*>(to) = values[0];
            return 0;
        };
        sqlite3_exec(database, "PRAGMA integrity_check", take, &answer, nullptr);
    }
    sqlite3_close(database);
    return answer;
}

/// A journal of writes, each of which leaves the table in a state that tells how many there were: action k adds two
/// load cases and, each third time, deletes the first two of them again.
std::string writingJournal(int actions)
{
    std::ostringstream journal;
    for (int k = 1; k <= actions; ++k) {
        if (k % 3 == 0)
            journal << R"({"do": "db", "op": "delete", "table": "STLD", "names": ["A)" << k - 2 << R"(", "A)" << k - 1 << R"("]})" << '\n';
        else
            journal << R"({"do": "db", "op": "add", "table": "STLD", "record": {"name": "A)" << k << R"(", "description": ")" << std::string(300, 'x')
                    << R"("}})" << '\n';
    }
    return journal.str();
}

/// Names in the table after the first `actions` commands of the journal.
std::vector<std::string> namesAfter(int actions)
{
    std::vector<std::string> names;
    for (int k = 1; k <= actions; ++k) {
        if (k % 3 == 0)
            names.erase(names.end() - 2, names.end());
        else
            names.push_back("A" + std::to_string(k));
    }
    return names;
}

std::vector<std::string> namesIn(const std::string& model)
{
    const Outcome dump = zel({"dump", model});
    EXPECT_EQ(dump.code, 0) << dump.error;
    std::vector<std::string> names;
    const nlohmann::json json = nlohmann::json::parse(dump.out, nullptr, false);
    for (const nlohmann::json& record : json.value("STLD", nlohmann::json::array()))
        names.push_back(record.at("name"));
    return names;
}

TEST_F(Durability, AKilledPlayerLosesNoAcknowledgedWriteAndLeavesNoHalfAction)
{
    const std::string model = path("killed.qvx");
    ASSERT_EQ(zel({"new", model}).code, 0);
    const std::string empty = contents(model);
    cli_test::write(path("journal.jsonl"), writingJournal(3000));
    std::mt19937 random(std::random_device{}());
    int midway = 0;
    for (int round = 0; round < rounds("ZEL_KILLS", 20); ++round) {
        cli_test::write(model, empty);
        const int process = cli_test::start({"play", model}, path("journal.jsonl"), path("replies"));
        std::this_thread::sleep_for(std::chrono::microseconds(random() % 150000));
        cli_test::kill(process);
        const std::string replies = contents(path("replies"));
        const auto acknowledged = static_cast<int>(std::count(replies.begin(), replies.end(), '\n'));
        EXPECT_EQ(integrity(model), "ok") << "round " << round;
        const std::vector<std::string> names = namesIn(model);
        EXPECT_TRUE(names == namesAfter(acknowledged) || names == namesAfter(acknowledged + 1))
            << "round " << round << ": " << acknowledged << " acknowledged, " << names.size() << " load cases";
        midway += static_cast<int>(acknowledged > 0 && acknowledged < 3000);
    }
    EXPECT_GT(midway, 0) << "no kill came in the middle of the writing";
}

TEST_F(Durability, AFlippedBitIsReportedOrChangesNothing)
{
    const std::string model = modelWithTwoCases("whole.qvx");
    const std::string whole = contents(model);
    const std::string dump = zel({"dump", model}).out;
    const std::string flipped = path("flipped.qvx");
    std::mt19937_64 random(std::random_device{}());
    int reported = 0;
    for (int round = 0; round < rounds("ZEL_BIT_FLIPS", 60); ++round) {
        std::string bytes = whole;
        // Most of a small file is empty pages; half of the flips go where the records are.
        const std::size_t near = whole.find(round % 4 == 0 ? "DL" : "LL");
        const std::size_t place =
            round % 2 == 0 || near == std::string::npos ? random() % bytes.size() : near - std::min<std::size_t>(near, 64) + random() % 128;
        bytes[place] = static_cast<char>(bytes[place] ^ (1 << (random() % 8)));
        cli_test::write(flipped, bytes);
        const Outcome read = zel({"dump", flipped});
        if (read.code == 0) {
            EXPECT_EQ(read.out, dump) << "bit flipped in byte " << place << " of " << bytes.size();
        } else {
            EXPECT_EQ(read.code, 1) << "byte " << place << ": " << read.error;
            EXPECT_TRUE(read.error.starts_with("zel: \"" + flipped + "\"")) << read.error;
            EXPECT_EQ(contents(flipped), bytes) << "a file that is refused is left alone";
            ++reported;
        }
        for (const char* beside : {"-wal", "-shm", "-journal"})
            EXPECT_FALSE(std::filesystem::exists(flipped + beside)) << beside;
    }
    EXPECT_GT(reported, 0);
}

}  // namespace
