#include "crash/attack.h"
#include "crash/writing_journal.h"

#include <chrono>
#include <thread>

namespace crash_test {

namespace {

void waitUpTo(std::size_t microseconds)
{
    std::this_thread::sleep_for(std::chrono::microseconds(microseconds));
}

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
