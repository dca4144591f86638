#include "cli/inside.h"

#include "contract/long_run.h"

#include <algorithm>
#include <csignal>

#include <nlohmann/json.hpp>

namespace {

using cli_test::contents;
using cli_test::inside;
using cli_test::Outcome;
using cli_test::zel;
using nlohmann::json;

/// A model with wind and earthquake cases, of which a code makes some hundred combinations.
std::string modelJson()
{
    json cases = json::array({{{"name", "DL"}, {"type", "D"}}, {{"name", "LL"}, {"type", "L"}}});
    for (int i = 0; i < 8; ++i) {
        cases.push_back({{"name", "W" + std::to_string(i)}, {"type", "W"}});
        cases.push_back({{"name", "E" + std::to_string(i)}, {"type", "E"}});
    }
    return json{{"STLD", cases}}.dump();
}

/// Runs that do not come to their end.
class Endings : public cli_test::CliTest {
protected:
    void SetUp() override
    {
        CliTest::SetUp();
        model = path("many.qvx");
        ASSERT_EQ(zel({"load", "-", model}, modelJson()).code, 0);
        ASSERT_EQ(zel({"generate", model, "--code", "AIK-USD94", "--out", path("first.txt")}).code, 0);
        before = zel({"dump", model}).out;
    }

    /// Neither the model nor the folder shows that anything was begun.
    void expectAsBefore(const std::string& what)
    {
        EXPECT_TRUE(zel({"dump", model}).out == before) << what;
        std::vector<std::string> names;
        for (const auto& entry : std::filesystem::directory_iterator(folder))
            names.push_back(entry.path().filename());
        std::sort(names.begin(), names.end());
        EXPECT_EQ(names, files) << what;
    }

    std::string model;
    std::string before;
    std::vector<std::string> files{"first.txt", "many.qvx"};
};

/// Presses Ctrl-C at a record of a phase.
class Impatient final : private zel::RunWatcher {
public:
    Impatient(zel::RunPhase phase, std::size_t record) : m_phase(phase), m_record(record), m_former(zel::setRunWatcher(this)) {}
    ~Impatient() override { zel::setRunWatcher(m_former); }

    [[nodiscard]] bool hasPressed() const { return m_pressed; }

private:
    bool goOn(zel::RunPhase phase, std::size_t done, std::size_t /*total*/) override
    {
        if (phase == m_phase && done == m_record && !m_pressed) {
            m_pressed = true;
            std::raise(SIGINT);
        }
        return true;
    }

    zel::RunPhase m_phase;
    std::size_t m_record;
    zel::RunWatcher* m_former;
    bool m_pressed = false;
};

TEST_F(Endings, CtrlCInAnyPhaseOfAGenerationLeavesModelAndFilesAsBefore)
{
    for (const zel::RunPhase phase : {zel::RunPhase::reading, zel::RunPhase::generating, zel::RunPhase::storing, zel::RunPhase::printing}) {
        for (const char* mode : {"--add", "--replace"}) {
            const Impatient person(phase, 7);
            const Outcome run = inside({"generate", model, "--code", "KDS 41 20 : 2022", mode, "--out", path("result.csv"), "--format", "csv"});
            EXPECT_TRUE(person.hasPressed()) << static_cast<int>(phase);
            EXPECT_EQ(run.code, 130) << static_cast<int>(phase);
            EXPECT_EQ(run.error, "zel: The run was stopped; nothing was changed.\n");
            expectAsBefore("phase " + std::to_string(static_cast<int>(phase)) + " " + mode);
        }
    }
}

TEST_F(Endings, CtrlCInAnImportOrALoadLeavesModelAndFilesAsBefore)
{
    std::string lines;
    for (int i = 1; i <= 50; ++i)
        lines += std::to_string(i) + ",x,1,1.2\n";
    {
        const Impatient person(zel::RunPhase::storing, 7);
        EXPECT_EQ(inside({"import-lcb", model, "-"}, lines).code, 130);
        EXPECT_TRUE(person.hasPressed());
    }
    expectAsBefore("import");
    const std::string dump = zel({"dump", model}).out;
    {
        const Impatient person(zel::RunPhase::storing, 7);
        EXPECT_EQ(inside({"load", "-", model, "--replace"}, dump).code, 130);
        EXPECT_TRUE(person.hasPressed());
    }
    expectAsBefore("load");
    {
        const Impatient person(zel::RunPhase::printing, 7);
        EXPECT_EQ(inside({"combinations", model, "--out", path("list.txt")}).code, 130);
        EXPECT_TRUE(person.hasPressed());
    }
    expectAsBefore("combinations");
}

}  // namespace
