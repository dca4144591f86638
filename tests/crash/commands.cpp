#include "crash/commands.h"

#include "crash/writing_journal.h"

#include <algorithm>

namespace crash_test {

namespace {

constexpr const char* code = "KDS 41 20 : 2022";

/// An LCB file for the tower: 40 combinations of its first cases.
std::string lcbText()
{
    std::string text = "** by position of the load case\n";
    for (int id = 1; id <= 40; ++id)
        text += std::to_string(id) + ", any, 1, 1.2, " + std::to_string(2 + id % 10) + ", 1." + std::to_string(id) + ",\n";
    return text;
}

bool changes(const std::string& name)
{
    return std::find(changingCommands.begin(), changingCommands.end(), name) != changingCommands.end();
}

}  // namespace

void CommandAttack::SetUp()
{
    Attack::SetUp();
    const std::string name = GetParam();
    const std::string file = model();
    const std::map<std::string, std::vector<std::string>> words{
        {"new", {"new", file, "--length", "M"}},
        {"load", {"load", towerJson, file}},
        {"replace", {"load", firstJson, file, "--replace"}},
        {"generate", {"generate", file, "--code", code, "--replace"}},
        {"import", {"import-lcb", file, "-"}},
        {"info", {"info", file}},
        {"dump", {"dump", file}},
        {"combinations", {"combinations", file, "--format", "csv", "--out", model("list.csv")}},
        {"envelopes", {"envelopes", file}},
        {"dry_run", {"generate", file, "--code", code, "--dry-run", "--format", "json", "--out", model("result.json")}},
    };
    m_command.arguments = words.at(name);
    if (name == "import")
        m_command.input = lcbText();
    if (name != "new" && name != "load")
        makeTower();
    if (!changes(name) || name == "generate") {  // something to print, and something to replace
        ASSERT_EQ(zel({"generate", file, "--code", "AIK-USD94"}).code, 0);
    }
    m_command.folder = modelFolder();
    m_command.before = stateOf(file);
    const Outcome undisturbed = zel(m_command.arguments, m_command.input);
    ASSERT_EQ(undisturbed.code, 0) << undisturbed.error;
    m_command.printed = undisturbed.out;
    m_command.after = stateOf(file);
    m_command.left = modelFolder();
    if (changes(name)) {
        ASSERT_NE(m_command.before, m_command.after);
    } else
        ASSERT_EQ(m_command.left.at("model.qvx"), m_command.folder.at("model.qvx")) << "a reader leaves the file alone";
    restore(m_command.folder);
    m_command.calls = callsOf(m_command.arguments, m_command.input);
}

Outcome CommandAttack::run(const Fault& fault) const
{
    restore(m_command.folder);
    return zel(m_command.arguments, m_command.input, preloaded(fault));
}

/// What stands in the folder, without the log that SQLite keeps beside a model when it could not be folded into it.
Folder CommandAttack::lasting() const
{
    Folder files = modelFolder();
    for (const char* companion : {"-wal", "-shm", "-journal"})
        files.erase(std::string("model.qvx") + companion);
    return files;
}

void CommandAttack::judge(const Outcome& run, bool tidy) const
{
    EXPECT_TRUE(orderly(run));
    const Folder files = lasting();
    if (run.code == 0) {
        EXPECT_EQ(run.out, m_command.printed);
        EXPECT_EQ(stateOf(model()), m_command.after);
        for (const auto& [name, bytes] : files) {
            EXPECT_TRUE(!tidy || m_command.left.contains(name)) << name << " was left over";
            if (name != "model.qvx" && m_command.left.contains(name)) {
                EXPECT_EQ(bytes, m_command.left.at(name)) << name;
            }
        }
        return;
    }
    EXPECT_TRUE(run.error.starts_with("zel: ")) << "a sentence says why: " << run.error;
    if (!changes(GetParam())) {
        EXPECT_EQ(contents(model()), m_command.folder.at("model.qvx")) << run.error;
        EXPECT_TRUE(!tidy || same(m_command.folder, files)) << run.error;
        return;
    }
    const std::string state = stateOf(model());
    if (state != m_command.after || !leavesOpen(run.error)) {
        EXPECT_EQ(state, m_command.before) << run.error;
    }
    for (const auto& file : files) {
        EXPECT_TRUE(!tidy || file.first == "model.qvx") << file.first << " was left over";
    }
}

void CommandAttack::judgeKilled() const
{
    const std::string state = stateOf(model());
    if (state != m_command.after) {
        ASSERT_EQ(state, m_command.before);
    }
    if (!changes(GetParam())) {
        EXPECT_EQ(contents(model()), m_command.folder.at("model.qvx"));
    }
    const Outcome again = zel(m_command.arguments, m_command.input);
    EXPECT_TRUE(orderly(again));
    if (state == m_command.before) {
        EXPECT_EQ(again.code, 0) << again.error;
        EXPECT_EQ(stateOf(model()), m_command.after);
        for (const auto& file : modelFolder()) {
            EXPECT_TRUE(m_command.left.contains(file.first)) << file.first << " was left over by the run that was killed";
        }
    }
}

std::string nameOf(const testing::TestParamInfo<const char*>& command)
{
    return command.param;
}

}  // namespace crash_test
