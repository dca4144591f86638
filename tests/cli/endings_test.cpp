#include "cli/failing_memory.h"
#include "cli/inside.h"

#include "contract/long_run.h"

#include <algorithm>
#include <csignal>
#include <sstream>

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
        before = contents(model);
    }

    /// Neither the model nor the folder shows that anything was begun.
    void expectAsBefore(const std::string& what)
    {
        EXPECT_TRUE(contents(model) == before) << what;
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

/// How often the command asks for memory.
std::size_t allocationsOf(const std::vector<std::string>& arguments, const std::string& input)
{
    EXPECT_EQ(inside(arguments, input, [] { failing_memory::arm(~std::size_t{0}); }).code, 0);
    return failing_memory::disarm();
}

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

TEST_F(Endings, WithoutMemoryAJobFailsWithAReasonAndChangesNothing)
{
    std::string lines;
    for (int i = 1; i <= 20; ++i)
        lines += std::to_string(i) + ",x,1,1.2\n";
    const std::vector<std::pair<std::vector<std::string>, std::string>> jobs{
        {{"generate", model, "--code", "AIK-USD94", "--replace"}, ""},
        {{"load", "-", model, "--replace"}, modelJson()},
        {{"import-lcb", model, "-"}, lines},
    };
    constexpr std::size_t rounds = 40;
    for (const auto& [arguments, input] : jobs) {
        const std::size_t all = allocationsOf(arguments, input);
        cli_test::write(model, before);
        int told = 0;
        for (std::size_t round = 0; round < rounds; ++round) {
            const std::size_t n = 1 + all * round / rounds;
            for (const auto& [count, least] : {std::pair<std::size_t, std::size_t>{1, 0}, {~std::size_t{0}, 2048}}) {
                const Outcome run = inside(arguments, input, [&] { failing_memory::arm(n, count, least); });
                if (run.code == 0) {  // what failed was not needed
                    cli_test::write(model, before);
                    continue;
                }
                EXPECT_EQ(run.code, 1) << arguments[0] << " allocation " << n;
                EXPECT_TRUE(run.error.starts_with("zel: ")) << arguments[0] << " allocation " << n << ": " << run.error;
                told += run.error.find("memory") != std::string::npos ? 1 : 0;
                expectAsBefore(arguments[0] + " allocation " + std::to_string(n));
            }
        }
        EXPECT_GT(told, 0) << arguments[0];
    }
}

TEST_F(Endings, AJobOfABatchWithoutMemoryIsToldAndTheNextOneRuns)
{
    const std::string job = "{\"id\": 1, \"model\": " + modelJson() + R"(, "options": {"code": "AIK-USD94"}})";
    const Outcome whole = inside({"batch"}, job + "\n" + job + "\n");
    ASSERT_EQ(whole.code, 0) << whole.error;
    const std::size_t all = allocationsOf({"batch"}, job + "\n" + job + "\n");
    const std::string good = whole.out.substr(whole.out.find('\n') + 1);
    int told = 0;
    constexpr std::size_t rounds = 60;
    for (std::size_t round = 4; round < rounds / 2; ++round) {  // within the first of the two
        const Outcome run = inside({"batch"}, job + "\n" + job + "\n", [&] { failing_memory::arm(1 + all * round / rounds); });
        std::istringstream results(run.out);
        std::string first;
        std::string second;
        std::getline(results, first);
        std::getline(results, second);
        EXPECT_EQ(second + "\n", good) << "round " << round;
        const json result = json::parse(first);
        EXPECT_TRUE(result.contains("error") || result.at("ok") == 1) << first.substr(0, 300);
        EXPECT_EQ(result.at("line"), 1);
        told += result.contains("error") && first.find("memory") != std::string::npos ? 1 : 0;
    }
    EXPECT_GT(told, 0);
}

}  // namespace
