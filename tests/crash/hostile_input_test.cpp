#include "crash/attack.h"

#include <algorithm>

namespace crash_test {

namespace {

/// Pieces that readers stumble over.
const std::vector<std::string> pieces{"",
                                      "\0",
                                      "\n",
                                      "\r",
                                      "\xff\xfe",
                                      "\xef\xbb\xbf",
                                      "\xc3",
                                      "null",
                                      "true",
                                      "-0",
                                      "1e999",
                                      "1e-400",
                                      "99999999999999999999",
                                      "-1",
                                      "4294967296",
                                      "nan",
                                      "\"\"",
                                      "\\u0000",
                                      "\\ud800",
                                      "{}",
                                      "[]",
                                      "{",
                                      "]",
                                      ",",
                                      ":",
                                      "**",
                                      "(((((((((((((((((",
                                      "\"STLD\"",
                                      "\"key\": 1, \"key\": 2",
                                      "'; drop table STLD; --"};

}  // namespace

/// Texts with faults of all kinds, made from sound ones: a program may refuse them, and the model then is as before.
class HostileInput : public Attack {
protected:
    /// The text with up to four places changed.
    std::string spoiled(std::string text)
    {
        for (std::size_t i = 0, changes = 1 + pick(4); i < changes && !text.empty(); ++i) {
            const std::size_t place = pick(text.size());
            const std::size_t size = std::min(text.size() - place, pick(12));
            switch (pick(5)) {
            case 0:
                text[place] = static_cast<char>(pick(256));
                break;
            case 1:
                text.erase(place, size);
                break;
            case 2:
                text.replace(place, size, pieces[pick(pieces.size())]);
                break;
            case 3: {  // a piece of its own at another place
                const std::string piece = text.substr(pick(text.size()), pick(200));
                text.insert(place, piece);
                break;
            }
            default: {  // the same over and over
                std::string many;
                const std::string& piece = pieces[pick(pieces.size())];
                for (std::size_t n = pick(3000); n > 0; --n)
                    many += piece;
                text.insert(place, many);
                break;
            }
            }
        }
        return text;
    }

    void judge(const Outcome& run, const Folder& before)
    {
        count("texts");
        EXPECT_TRUE(orderly(run));
        if (run.code != 0) {
            count("refused");
            EXPECT_TRUE(same(before, modelFolder()));
        } else {
            EXPECT_FALSE(stateOf(model()).starts_with("unreadable")) << stateOf(model());
        }
    }

    /// Shows the text of a failure.
    void keepOnFailure(const std::string& text) const
    {
        if (!HasFailure())
            return;
        const std::string file = testing::TempDir() + "zel-hostile-input";
        cli_test::write(file, text);
        ADD_FAILURE() << "the text is in " << file;
    }
};

TEST_F(HostileInput, AsJsonIsRefusedAsAWholeOrMakesAModelThatOpens)
{
    const std::string json = contents(towerJson);
    makeTwoCases();
    const Folder before = modelFolder();
    for (int round = 0; round < rounds(15) && !HasFailure(); ++round) {
        restore(before);
        const std::string text = spoiled(json);
        judge(zel({"load", "-", model(), "--replace"}, text), before);
        keepOnFailure(text);
    }
}

TEST_F(HostileInput, AsLcbIsRefusedAsAWholeOrImported)
{
    const std::string lcb = contents(zel::test::sourceFolder() + "/tests/cli/road/road.lcb");
    makeTower();
    const Folder before = modelFolder();
    for (int round = 0; round < rounds(15) && !HasFailure(); ++round) {
        restore(before);
        const std::string text = spoiled(lcb);
        judge(zel({"import-lcb", model(), "-"}, text), before);
        keepOnFailure(text);
    }
}

TEST_F(HostileInput, AsAJournalGetsItsRepliesAndLeavesAModelThatOpens)
{
    const std::string journal = contents(zel::test::sourceFolder() + "/tests/cli/road/road.jsonl");
    makeTwoCases();
    const Folder before = modelFolder();
    for (int round = 0; round < rounds(15) && !HasFailure(); ++round) {
        restore(before);
        const std::string text = spoiled(journal);
        const Outcome run = zel({"play", model()}, text);
        count("texts");
        EXPECT_TRUE(orderly(run));
        EXPECT_FALSE(stateOf(model()).starts_with("unreadable")) << stateOf(model());
        EXPECT_EQ(modelFolder().size(), 1U);
        keepOnFailure(text);
    }
}

TEST_F(HostileInput, AsJobsOfABatchGetsAResultEach)
{
    std::string model = contents(firstJson);
    std::replace(model.begin(), model.end(), '\n', ' ');
    const std::string job = R"({"model": )" + model + R"(, "options": {"kind": 1, "code": "AIK-USD94", "mode": 0, "combType": 0, "alphaH": 0.5}})";
    std::string sound = zel({"batch"}, job).out;
    const std::size_t line = sound.rfind("\"line\": 1");
    ASSERT_NE(line, std::string::npos);
    sound.replace(line, 9, "\"line\": 2");  // there it stands behind a spoiled one
    ASSERT_NE(sound.find("gLCB1"), std::string::npos);
    for (int round = 0; round < rounds(15) && !HasFailure(); ++round) {
        std::string text = spoiled(job);
        std::replace(text.begin(), text.end(), '\n', ' ');
        text += "\n" + job + "\n";
        const Outcome run = zel({"batch"}, text);
        count("texts");
        EXPECT_TRUE(orderly(run));
        ASSERT_TRUE(run.out.ends_with('\n')) << run.error;
        const std::size_t last = run.out.rfind('\n', run.out.size() - 2);
        EXPECT_EQ(run.out.substr(last == std::string::npos ? 0 : last + 1), sound) << "the job behind it is carried out";
        keepOnFailure(text);
    }
}

}  // namespace crash_test
