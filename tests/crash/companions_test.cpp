#include "crash/attack.h"
#include "crash/writing_journal.h"

#include <algorithm>
#include <csignal>

#include <sqlite3.h>

namespace crash_test {

/// Models beside which a log or journal stands that is not theirs, and logs that a crash has left.
class Companions : public Attack {
protected:
    void SetUp() override
    {
        Attack::SetUp();
        makeTwoCases();
        m_closed = contents(model());
    }

    /// Plays a journal on the model and kills the player when it has answered all of it but for the last command, at most; its log is left beside
    /// the model.
    void playAndKill(const WritingJournal& journal)
    {
        cli_test::write(path("journal.jsonl"), journal.text());
        const Folder before = modelFolder();
        for (long at = callsOf({"play", model()}, journal.text()).at("sync"); at > 0; --at) {  // the last of them fold the log into the file
            restore(before);
            const Outcome ended = cli_test::await(
                cli_test::start({"play", model()}, {path("journal.jsonl"), path("replies")}, preloaded({.call = "sync", .at = at, .with = "kill"})));
            ASSERT_EQ(ended.signal, SIGKILL);
            const int answered = WritingJournal::answered(contents(path("replies")));
            ASSERT_GE(answered, journal.actions() - 1) << "no kill left a log";
            if (modelFolder().contains("model.qvx-wal"))
                return;
        }
    }

    /// A rollback journal with the pages that a running transaction of a plain SQLite tool has changed, and the file as it is meanwhile.
    void leaveHotJournal(const std::string& file) const
    {
        sqlite3* database = nullptr;
        ASSERT_EQ(sqlite3_open(file.c_str(), &database), SQLITE_OK);
        ASSERT_EQ(sqlite3_exec(database, "pragma journal_mode=delete; begin immediate; update STLD set description = 'half done'", nullptr, nullptr, nullptr),
                  SQLITE_OK);
        ASSERT_EQ(sqlite3_db_cacheflush(database), SQLITE_OK);
        const std::string changed = contents(file);
        const std::string journal = contents(file + "-journal");
        sqlite3_close(database);
        ASSERT_GT(journal.size(), 512U);
        cli_test::write(file, changed);
        cli_test::write(file + "-journal", journal);
    }

    /// Each command either refuses, naming the companion and leaving all files as they are, or does what it would do without the companion,
    /// which it then has not touched or set aside.
    void judgeForeign(const std::string& bytes, const std::string& suffix, const std::string& companion)
    {
        restore({{"model.qvx", bytes}});
        const std::string state = stateOf(model());
        const Folder files{{"model.qvx", bytes}, {"model.qvx" + suffix, companion}};
        const std::vector<std::vector<std::string>> commands{
            {"info", model()}, {"dump", model()}, {"play", model()}, {"generate", model(), "--code", "AIK-USD94"}, {"load", firstJson, model(), "--replace"}};
        for (const std::vector<std::string>& words : commands) {
            SCOPED_TRACE("zel " + words.front() + " beside a foreign " + suffix);
            restore(files);
            const Outcome run = zel(words);
            EXPECT_TRUE(orderly(run));
            count("foreign companions");
            if (run.code != 0) {
                count("refused");
                EXPECT_TRUE(same(files, modelFolder()));
                EXPECT_NE(run.error.find("model.qvx" + suffix), std::string::npos) << "the refusal names the companion: " << run.error;
                continue;
            }
            const Folder left = modelFolder();
            EXPECT_TRUE(std::any_of(left.begin(), left.end(), [&](const auto& file) { return file.second == companion; }))
                << "the companion has gone or was changed";
            if (words.front() == "info" || words.front() == "dump" || words.front() == "play") {
                restore({{"model.qvx", left.at("model.qvx")}});
                EXPECT_EQ(stateOf(model()), state);
            }
        }
    }

    std::string m_closed;
};

TEST_F(Companions, TheLogThatACrashLeavesIsTakenUp)
{
    const WritingJournal journal(12);
    playAndKill(journal);
    EXPECT_EQ(journal.faultOf(factsOf(stateOf(model())), contents(path("replies")), factsOfTwoCases()), "");
}

TEST_F(Companions, ALogOfAnotherModelIsLeftAlone)
{
    makeTower("other.qvx");
    const std::string other = contents(model("other.qvx"));
    restore({{"model.qvx", m_closed}});
    playAndKill(WritingJournal(12));
    const std::string log = contents(model() + "-wal");
    judgeForeign(other, "-wal", log);
}

TEST_F(Companions, AnOlderLogOfTheSameModelIsLeftAlone)
{
    playAndKill(WritingJournal(12));
    const std::string log = contents(model() + "-wal");
    ASSERT_EQ(zel({"play", model()}, WritingJournal(7, "later").text()).code, 0);
    ASSERT_EQ(modelFolder().size(), 1U);
    judgeForeign(contents(model()), "-wal", log);
}

TEST_F(Companions, ABackupCopiedOverAModelAfterACrashDoesNotGetItsLog)
{
    const std::string backup = m_closed;
    ASSERT_EQ(zel({"play", model()}, WritingJournal(7, "meanwhile").text()).code, 0);
    playAndKill(WritingJournal(12));
    judgeForeign(backup, "-wal", contents(model() + "-wal"));
}

TEST_F(Companions, AJournalOfAnotherModelIsLeftAlone)
{
    makeTower("other.qvx");
    const std::string tower = contents(model("other.qvx"));
    leaveHotJournal(model());
    judgeForeign(tower, "-journal", contents(model() + "-journal"));
}

TEST_F(Companions, AnyBytesInTheirPlaceAreLeftAlone)
{
    for (int round = 0; round < rounds(3) && !HasFailure(); ++round) {
        std::string bytes(1 + pick(20000), '\0');
        for (char& byte : bytes)
            byte = static_cast<char>(pick(256));
        judgeForeign(m_closed, "-wal", bytes);
        judgeForeign(m_closed, "-journal", bytes);
    }
}

TEST_F(Companions, AMadeFileTakesUpNoneThatItFinds)
{
    playAndKill(WritingJournal(12));
    const std::string log = contents(model() + "-wal");
    const Folder files{{"model.qvx-wal", log}};
    for (const std::vector<std::string>& words : std::vector<std::vector<std::string>>{{"new", model()}, {"load", towerJson, model()}}) {
        SCOPED_TRACE("zel " + words.front());
        clearModelFolder();
        ASSERT_EQ(zel(words).code, 0);
        const std::string state = stateOf(model());
        restore(files);
        const Outcome run = zel(words);
        EXPECT_TRUE(orderly(run));
        count("foreign companions");
        if (run.code != 0) {
            count("refused");
            EXPECT_TRUE(same(files, modelFolder()));
            EXPECT_NE(run.error.find("model.qvx-wal"), std::string::npos) << run.error;
            continue;
        }
        EXPECT_EQ(stateOf(model()), state);
        const Folder left = modelFolder();
        EXPECT_TRUE(std::any_of(left.begin(), left.end(), [&](const auto& file) { return file.second == log; })) << "the log has gone";
    }
}

/// A fault in the last change of a log can't be told from a write that the crash cut off; any other is found.
TEST_F(Companions, AFlippedBitInTheLogThatACrashLeftLosesNoMoreThanTheLastChange)
{
    const WritingJournal journal(12);
    playAndKill(journal);
    const Folder left = modelFolder();
    const std::string replies = contents(path("replies"));
    const std::string log = left.at("model.qvx-wal");
    const std::string exceptOne = replies.substr(0, replies.rfind('\n', replies.size() - 2) + 1);
    for (int round = 0; round < rounds(10) && !HasFailure(); ++round) {
        std::string bytes = log;
        const std::size_t place = pick(bytes.size());
        bytes[place] = static_cast<char>(static_cast<unsigned char>(bytes[place]) ^ (1U << pick(8)));
        SCOPED_TRACE("bit flipped in byte " + std::to_string(place) + " of " + std::to_string(bytes.size()));
        restore({{"model.qvx", left.at("model.qvx")}, {"model.qvx-wal", bytes}});
        const Folder files = modelFolder();
        const Outcome read = zel({"dump", model()});
        EXPECT_TRUE(orderly(read));
        count("flips in a log");
        if (read.code != 0) {
            count("refused");
            EXPECT_TRUE(same(files, modelFolder()));
        } else if (journal.faultOf(factsOf(read.out), replies, factsOfTwoCases()) != "") {
            count("without the last change");
            EXPECT_EQ(journal.faultOf(factsOf(read.out), exceptOne, factsOfTwoCases()), "");
        }
    }
}

}  // namespace crash_test
