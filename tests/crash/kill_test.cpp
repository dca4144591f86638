#include "crash/commands.h"
#include "crash/writing_journal.h"

#include <chrono>
#include <csignal>
#include <thread>

#include <sqlite3.h>

namespace crash_test {

namespace {

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

using Clock = std::chrono::steady_clock;

/// How long a run of `zel` takes.
Clock::duration timeOf(const std::vector<std::string>& arguments, const std::string& input)
{
    const Clock::time_point start = Clock::now();
    EXPECT_EQ(zel(arguments, input).code, 0);
    return Clock::now() - start;
}

}  // namespace

class KilledPlayer : public Attack {
protected:
    void SetUp() override
    {
        Attack::SetUp();
        makeTwoCases();
        m_before = modelFolder();
    }

    /// What is wrong with the model after a kill, given the replies that came until then.
    void judge(const WritingJournal& journal, const std::string& replies)
    {
        const int answered = WritingJournal::answered(replies);
        count("midway", answered > 0 && answered < journal.actions() ? 1 : 0);
        EXPECT_EQ(journal.faultOf(factsOf(stateOf(model())), replies, factsOfTwoCases()), "");
        EXPECT_EQ(integrity(model()), "ok");
        EXPECT_TRUE(modelFolder().size() == 1) << "a closed model is one file";
    }

    Folder m_before;
};

TEST_F(KilledPlayer, LosesNoAcknowledgedWriteAndLeavesNoHalfAction)
{
    const WritingJournal journal(3000);
    cli_test::write(path("journal.jsonl"), journal.text());
    for (int round = 0; round < rounds(12) && !HasFailure(); ++round) {
        restore(m_before);
        const int process = cli_test::start({"play", model()}, {path("journal.jsonl"), path("replies")});
        std::this_thread::sleep_for(std::chrono::microseconds(pick(250'000)));
        cli_test::kill(process);
        count("kills");
        judge(journal, contents(path("replies")));
    }
}

TEST_F(KilledPlayer, AtAnyCallLosesNoAcknowledgedWriteAndLeavesNoHalfAction)
{
    const WritingJournal journal(40);
    cli_test::write(path("journal.jsonl"), journal.text());
    const std::map<std::string, long> calls = callsOf({"play", model()}, journal.text());
    long all = 0;
    for (const auto& [call, number] : calls)
        all += number;
    const long step = exhaustive() ? 1 : all / 12;
    for (long at = 1; at <= all && !HasFailure(); at += step) {
        SCOPED_TRACE("killed at call " + std::to_string(at));
        restore(m_before);
        const Outcome ended =
            cli_test::await(cli_test::start({"play", model()}, {path("journal.jsonl"), path("replies")}, preloaded({.call = "", .at = at, .with = "kill"})));
        EXPECT_EQ(ended.signal, SIGKILL);
        count("kills");
        judge(journal, contents(path("replies")));
    }
}

class KilledCommand : public CommandAttack {};

TEST_P(KilledCommand, LeavesTheModelAsBeforeOrAsAfter)
{
    restore(command().folder);
    const Clock::duration usual = timeOf(command().arguments, command().input);
    const auto limit = static_cast<std::size_t>(std::chrono::duration_cast<std::chrono::microseconds>(usual).count());
    cli_test::write(path("input"), command().input);
    for (int round = 0; round < rounds(3) && !HasFailure(); ++round) {
        restore(command().folder);
        const int process = cli_test::start(command().arguments, {path("input")});
        std::this_thread::sleep_for(std::chrono::microseconds(pick(limit)));
        count("kills");
        count("midway", cli_test::kill(process).signal == SIGKILL ? 1 : 0);
        judgeKilled();
    }
}

TEST_P(KilledCommand, AtAnyCallLeavesTheModelAsBeforeOrAsAfter)
{
    long all = 0;
    for (const auto& [call, number] : command().calls)
        all += number;
    const long step = exhaustive() ? 1 : std::max(1L, all / 4);
    for (long at = 1 + static_cast<long>(pick(static_cast<std::size_t>(step))); at <= all && !HasFailure(); at += step) {
        SCOPED_TRACE("killed at call " + std::to_string(at));
        EXPECT_EQ(run({.call = "", .at = at, .with = "kill"}).signal, SIGKILL);
        count("kills");
        judgeKilled();
    }
}

INSTANTIATE_TEST_SUITE_P(Zel, KilledCommand, testing::ValuesIn(changingCommands), nameOf);

}  // namespace crash_test
