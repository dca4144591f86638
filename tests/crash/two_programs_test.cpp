#include "crash/attack.h"
#include "crash/writing_journal.h"

#include <chrono>
#include <thread>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace crash_test {

namespace {

void waitUpTo(std::size_t microseconds)
{
    std::this_thread::sleep_for(std::chrono::microseconds(microseconds));
}

/// A player whose commands come one after the other from the test.
class SlowPlayer {
public:
    SlowPlayer(const std::string& model, const std::string& folder) : m_pipe(folder + "/commands"), m_replies(folder + "/slow-replies")
    {
        (void)unlink(m_pipe.c_str());
        EXPECT_EQ(mkfifo(m_pipe.c_str(), 0600), 0);
        m_commands = open(m_pipe.c_str(), O_RDWR | O_CLOEXEC);
        m_process = cli_test::start({"play", model}, {m_pipe, m_replies, folder + "/slow-error"});
    }
    SlowPlayer(const SlowPlayer&) = delete;
    SlowPlayer& operator=(const SlowPlayer&) = delete;
    ~SlowPlayer() { close(m_commands); }

    void say(const std::string& lines) const { EXPECT_EQ(write(m_commands, lines.data(), lines.size()), static_cast<ssize_t>(lines.size())); }
    Outcome finish()
    {
        close(m_commands);
        m_commands = -1;
        return cli_test::await(m_process);
    }
    [[nodiscard]] std::string replies() const { return contents(m_replies); }

private:
    std::string m_pipe;
    std::string m_replies;
    int m_commands = -1;
    int m_process = 0;
};

Facts factsOfFile(const std::string& model)
{
    return factsOf(stateOf(model));
}

}  // namespace

class TwoPrograms : public Attack {
protected:
    void SetUp() override
    {
        Attack::SetUp();
        makeTwoCases();
        m_before = modelFolder();
        cli_test::write(path("two.json"), R"({"format": "zel-model", "version": 1, "STLD": [{"name": "DL"}, {"name": "LL", "type": "L"}, {"name": "XX"}]})");
    }

    Folder m_before;
};

/// The reply to a write and a replaced model: either the player has the file and the replacement is refused, or it plays on the new one.
TEST_F(TwoPrograms, AReplacementBesideAPlayerLosesNoAcknowledgedWrite)
{
    const WritingJournal journal(20);
    Facts replaced = factsOfTwoCases();
    replaced["case XX"] = "is there: ";
    for (int round = 0; round < rounds(10) && !HasFailure(); ++round) {
        restore(m_before);
        const int load = cli_test::start({"load", path("two.json"), model(), "--replace"}, {"/dev/null", "/dev/null", path("load-error")});
        waitUpTo(pick(30'000));
        SlowPlayer player(model(), path(""));
        player.say(journal.text());
        const Outcome loaded = cli_test::await(load);
        const Outcome played = player.finish();
        EXPECT_TRUE(orderly(loaded));
        EXPECT_TRUE(orderly(played));
        count("rounds");
        count("replaced", loaded.code == 0 ? 1 : 0);
        count("player refused", played.code == 1 ? 1 : 0);
        EXPECT_TRUE(loaded.code == 0 || played.code != 1) << "both were refused: " << contents(path("load-error")) << contents(path("slow-error"));
        EXPECT_EQ(journal.faultOf(factsOfFile(model()), player.replies(), loaded.code == 0 ? replaced : factsOfTwoCases()), "")
            << "replacement: " << loaded.code << ", player: " << played.code;
        EXPECT_EQ(modelFolder().size(), 1U);
    }
}

TEST_F(TwoPrograms, OfTwoPlayersNoneLosesAnAcknowledgedWrite)
{
    const WritingJournal left(15, "left");
    const WritingJournal right(15, "right");
    cli_test::write(path("left.jsonl"), left.text());
    cli_test::write(path("right.jsonl"), right.text());
    for (int round = 0; round < rounds(6) && !HasFailure(); ++round) {
        restore(m_before);
        const int first = cli_test::start({"play", model()}, {path("left.jsonl"), path("left")});
        waitUpTo(pick(40'000));
        const int second = cli_test::start({"play", model()}, {path("right.jsonl"), path("right")});
        const Outcome played[] = {cli_test::await(first), cli_test::await(second)};
        count("rounds");
        count("refused", (played[0].code == 1 ? 1 : 0) + (played[1].code == 1 ? 1 : 0));
        EXPECT_TRUE(played[0].code != 1 || played[1].code != 1) << "both were refused";
        // What one of them acknowledged is compared alone: both change the unit, the later one last.
        Facts found = factsOfFile(model());
        EXPECT_TRUE(found.contains("case DL"));
        const auto only = [&](const std::string& prefix) {
            Facts facts = factsOfTwoCases();
            for (const auto& [what, value] : found) {
                if (what.starts_with("case " + prefix) || what.starts_with("combination " + prefix))
                    facts[what] = value;
            }
            return facts;
        };
        const auto fault = [&](const WritingJournal& journal, const std::string& name) {
            const std::string replies = contents(path(name));
            Facts facts = only(name);
            facts["units"] = WritingJournal::answered(replies) == 0 ? "MM" : "CM";
            return journal.faultOf(facts, replies, factsOfTwoCases());
        };
        EXPECT_EQ(fault(left, "left"), "");
        EXPECT_EQ(fault(right, "right"), "");
    }
}

TEST_F(TwoPrograms, AReaderBesideAPlayerSeesEveryAcknowledgedWriteAndNoHalfAction)
{
    const WritingJournal journal(400);
    cli_test::write(path("journal.jsonl"), journal.text());
    for (int round = 0; round < rounds(3) && !HasFailure(); ++round) {
        restore(m_before);
        SlowPlayer player(model(), path(""));
        const std::string text = journal.text();
        const std::size_t half = text.find('\n', pick(text.size() / 4)) + 1;
        player.say(text.substr(0, half));
        waitUpTo(pick(200'000));
        const std::string before = player.replies();
        const Outcome dump = zel({"dump", model()});
        count("readings");
        EXPECT_EQ(dump.code, 0) << dump.error;
        const std::string after = player.replies();
        // The reading shows a state between those of the two moments: the later replies are taken one by one.
        std::string replies = before.substr(0, before.rfind('\n') + 1);
        std::string fault = journal.faultOf(factsOf(dump.out), replies, factsOfTwoCases());
        while (!fault.empty() && replies.size() < after.size()) {
            replies = after.substr(0, after.find('\n', replies.size()) + 1);
            fault = journal.faultOf(factsOf(dump.out), replies, factsOfTwoCases());
        }
        EXPECT_EQ(fault, "");
        EXPECT_EQ(player.finish().code, 0);
        EXPECT_EQ(journal.faultOf(factsOfFile(model()), player.replies(), factsOfTwoCases()), "");
        EXPECT_EQ(modelFolder().size(), 1U);
    }
}

TEST_F(TwoPrograms, OfTwoThatMakeOneFileExactlyOneSucceeds)
{
    clearModelFolder();
    ASSERT_EQ(zel({"load", path("two.json"), model()}).code, 0);
    const std::string fromJson = stateOf(model());
    clearModelFolder();
    ASSERT_EQ(zel({"new", model()}).code, 0);
    const std::string made = stateOf(model());
    for (int round = 0; round < rounds(6) && !HasFailure(); ++round) {
        clearModelFolder();
        const int load = cli_test::start({"load", path("two.json"), model()}, {});
        waitUpTo(pick(10'000));
        const int create = cli_test::start({"new", model()}, {});
        const Outcome loaded = cli_test::await(load);
        const Outcome created = cli_test::await(create);
        count("rounds");
        EXPECT_TRUE(orderly(loaded));
        EXPECT_TRUE(orderly(created));
        EXPECT_NE(loaded.code, created.code);
        EXPECT_EQ(stateOf(model()), loaded.code == 0 ? fromJson : made);
        EXPECT_EQ(modelFolder().size(), 1U);
    }
}

TEST_F(TwoPrograms, OfTwoReplacementsTheFileIsOneWhole)
{
    std::vector<std::string> states;
    for (const std::string& json : {path("two.json"), towerJson}) {
        ASSERT_EQ(zel({"load", json, model(), "--replace"}).code, 0);
        states.push_back(stateOf(model()));
    }
    for (int round = 0; round < rounds(6) && !HasFailure(); ++round) {
        restore(m_before);
        const int first = cli_test::start({"load", path("two.json"), model(), "--replace"}, {});
        waitUpTo(pick(10'000));
        const int second = cli_test::start({"load", towerJson, model(), "--replace"}, {});
        const int codes[] = {cli_test::await(first).code, cli_test::await(second).code};
        count("rounds");
        EXPECT_TRUE(codes[0] == 0 || codes[1] == 0);
        const std::string state = stateOf(model());
        EXPECT_TRUE((state == states[0] && codes[0] == 0) || (state == states[1] && codes[1] == 0)) << codes[0] << codes[1] << state.substr(0, 300);
        EXPECT_EQ(modelFolder().size(), 1U);
    }
}

}  // namespace crash_test
