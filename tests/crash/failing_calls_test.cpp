#include "crash/commands.h"
#include "crash/writing_journal.h"

#include <algorithm>
#include <cerrno>

namespace crash_test {

namespace {

/// A kind of trouble: the disk is broken or full, for one call or for good.
struct Trouble {
    int error;
    bool always;
};
constexpr std::array troubles{Trouble{EIO, false}, Trouble{EIO, true}, Trouble{ENOSPC, false}, Trouble{ENOSPC, true}};

std::string textOf(const Fault& fault)
{
    return "call " + std::to_string(fault.at) + " of the kind " + fault.call + " fails with error " + fault.with + (fault.always ? " and all later ones" : "");
}

}  // namespace

/// Every call of every kind in a long run; in a short one `few` of each kind, in a trouble by lot.
template <class Test, class Try> void tryFaults(Test& test, const std::map<std::string, long>& calls, long few, bool all, const Try& attempt)
{
    for (const auto& [call, number] : calls) {
        for (long round = 0, rounds = all ? number * static_cast<long>(troubles.size()) : std::min(number, few); round < rounds; ++round) {
            const long at = 1 + (all ? round / static_cast<long>(troubles.size()) : static_cast<long>(test.pickBelow(static_cast<std::size_t>(number))));
            const Trouble& trouble = troubles[all ? static_cast<std::size_t>(round) % troubles.size() : test.pickBelow(troubles.size())];
            const Fault fault{.call = call, .at = at, .with = std::to_string(trouble.error), .always = trouble.always};
            SCOPED_TRACE(textOf(fault));
            attempt(fault);
            if (testing::Test::HasFailure())
                return;
        }
    }
}

class FailingCall : public CommandAttack {
public:
    std::size_t pickBelow(std::size_t limit) { return pick(limit); }
};

TEST_P(FailingCall, EndsTheCommandWithASentenceAndTheModelAsItWas)
{
    tryFaults(*this, command().calls, 1, exhaustive(), [&](const Fault& fault) {
        const Outcome ended = run(fault);
        count("failing calls");
        count("refused", ended.code != 0 ? 1 : 0);
        judge(ended, fault.call != "unlink");
    });
}

TEST_P(FailingCall, OfAFullDiskEndsTheCommandWithASentenceAndTheModelAsItWas)
{
    const long step = exhaustive() ? 1024 : 0;
    int status = 1;
    for (long round = 0; exhaustive() ? status != 0 : round < 2; ++round) {
        const long space = step != 0 ? round * step : static_cast<long>(pick(500'000));
        SCOPED_TRACE("room for " + std::to_string(space) + " bytes");
        const Outcome ended = run({.call = "", .at = 0, .with = "", .always = false, .space = space});
        count("full disks");
        count("refused", ended.code != 0 ? 1 : 0);
        judge(ended, true);
        status = ended.code;
        if (HasFailure())
            return;
    }
}

INSTANTIATE_TEST_SUITE_P(Changing, FailingCall, testing::ValuesIn(changingCommands), nameOf);
INSTANTIATE_TEST_SUITE_P(Reading, FailingCall, testing::ValuesIn(readingCommands), nameOf);

class PlayerInTrouble : public Attack {
public:
    std::size_t pickBelow(std::size_t limit) { return pick(limit); }

protected:
    void SetUp() override
    {
        Attack::SetUp();
        makeTwoCases();
        m_before = modelFolder();
    }

    void play(const WritingJournal& journal, const Fault& fault)
    {
        restore(m_before);
        const Outcome ended = zel({"play", model()}, journal.text(), preloaded(fault));
        EXPECT_TRUE(orderly(ended));
        const int answered = WritingJournal::answered(ended.out);
        EXPECT_EQ(answered, ended.code == 1 ? 0 : journal.actions()) << ended.error;
        EXPECT_EQ(journal.faultOf(factsOf(stateOf(model())), ended.out, factsOfTwoCases()), "") << ended.out;
        count("refused", ended.code != 0 ? 1 : 0);
    }

    Folder m_before;
};

TEST_F(PlayerInTrouble, LosesNoAcknowledgedWriteByAFailingCall)
{
    const WritingJournal journal(24);
    tryFaults(*this, callsOf({"play", model()}, journal.text()), 4, exhaustive(), [&](const Fault& fault) {
        play(journal, fault);
        count("failing calls");
    });
}

TEST_F(PlayerInTrouble, LosesNoAcknowledgedWriteOnAFullDisk)
{
    const WritingJournal journal(60);
    for (int round = 0; round < rounds(10) && !HasFailure(); ++round) {
        const auto space = static_cast<long>(pick(600'000));
        SCOPED_TRACE("room for " + std::to_string(space) + " bytes");
        play(journal, {.call = "", .at = 0, .with = "", .always = false, .space = space});
        count("full disks");
    }
}

}  // namespace crash_test
