#include "cli/program.h"

#include <algorithm>
#include <chrono>
#include <thread>
#include <utility>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace {

using cli_test::contents;
using cli_test::Outcome;
using cli_test::zel;

/// A run of `zel` whose standard input is fed step by step.
class Fed {
public:
    Fed(const std::filesystem::path& folder, const std::string& name, const std::vector<std::string>& arguments)
        : m_output(folder / (name + ".out")), m_error(folder / (name + ".error"))
    {
        const std::filesystem::path pipe = folder / (name + ".in");
        EXPECT_EQ(mkfifo(pipe.c_str(), 0600), 0);
        m_process = cli_test::start(arguments, {pipe, m_output, m_error});
        m_input = open(pipe.c_str(), O_WRONLY | O_CLOEXEC);
    }
    Fed(const Fed&) = delete;
    Fed& operator=(const Fed&) = delete;
    ~Fed()
    {
        if (m_process != 0)
            cli_test::kill(m_process);
        endInput();
    }

    /// Sends a command of a journal and waits for its reply.
    std::string tell(const std::string& command)
    {
        feed(command + "\n");
        const std::ptrdiff_t wanted = ++m_told;
        const auto lines = [&] {
            const std::string text = contents(m_output);
            return std::count(text.begin(), text.end(), '\n');
        };
        for (int i = 0; i < 2000 && lines() < wanted; ++i)
            std::this_thread::sleep_for(std::chrono::milliseconds(10));
        EXPECT_EQ(lines(), wanted);
        return contents(m_output);
    }
    std::string addCase(const std::string& name) { return tell(R"({"do": "db", "op": "add", "table": "STLD", "record": {"name": ")" + name + R"("}})"); }

    void feed(const std::string& text) const { EXPECT_EQ(::write(m_input, text.data(), text.size()), static_cast<ssize_t>(text.size())); }
    int end()
    {
        endInput();
        const int process = std::exchange(m_process, 0);
        return cli_test::await(process).code;
    }
    void kill() { cli_test::kill(std::exchange(m_process, 0)); }
    [[nodiscard]] std::string error() const { return contents(m_error); }

private:
    void endInput()
    {
        if (m_input >= 0)
            close(m_input);
        m_input = -1;
    }

    std::filesystem::path m_output;
    std::filesystem::path m_error;
    int m_process = 0;
    int m_input = -1;
    std::ptrdiff_t m_told = 0;
};

constexpr const char* otherModel = R"({"format": "zel-model", "version": 1, "STLD": [{"name": "OTHER"}]})";

class SharedModels : public cli_test::CliTest {
protected:
    void SetUp() override
    {
        CliTest::SetUp();
        model = modelWithTwoCases("m.qvx");
        std::filesystem::create_directory(folder / "runs");
    }
    [[nodiscard]] Fed play(const std::string& name) const { return {folder / "runs", name, {"play", model}}; }
    [[nodiscard]] bool holds(const std::string& name) const { return zel({"dump", model}).out.find("\"name\": \"" + name + "\"") != std::string::npos; }
    [[nodiscard]] std::ptrdiff_t filesInFolder() const { return std::distance(std::filesystem::directory_iterator(folder), {}); }

    std::string model;
};

TEST_F(SharedModels, AreReadWhileAnotherProgramWritesThem)
{
    ASSERT_EQ(zel({"generate", model, "--code", "AIK-USD94"}).code, 0);
    Fed player = play("player");
    player.addCase("WRITTEN");
    for (const std::vector<std::string>& arguments : {std::vector<std::string>{"dump", model},
                                                      {"info", model},
                                                      {"combinations", model},
                                                      {"envelopes", model},
                                                      {"generate", model, "--code", "AIK-USD94", "--dry-run"}}) {
        const Outcome read = zel(arguments);
        EXPECT_EQ(read.code, 0) << arguments[0] << ": " << read.error;
    }
    EXPECT_TRUE(holds("WRITTEN")) << "a reader sees what has been written so far";
    const Outcome second = zel({"play", model}, "");
    EXPECT_EQ(second.code, 1);
    EXPECT_NE(second.error.find("open in another program"), std::string::npos) << second.error;
    EXPECT_EQ(player.end(), 0);
}

TEST_F(SharedModels, AreReadWhereNothingCanBeWritten)
{
    using std::filesystem::perms;
    const std::string dump = zel({"dump", model}).out;
    std::filesystem::permissions(model, perms::owner_read);
    EXPECT_EQ(zel({"dump", model}).out, dump);
    EXPECT_EQ(zel({"generate", model, "--code", "AIK-USD94", "--dry-run"}).code, 0);
    EXPECT_EQ(zel({"generate", model, "--code", "AIK-USD94"}).code, 1) << "storing needs the file";
    EXPECT_EQ(filesInFolder(), 2);
}

TEST_F(SharedModels, AReplacementBesidePlayersLosesNoAcknowledgedWriteAndSpoilsNothing)
{
    cli_test::write(path("other.json"), otherModel);
    cli_test::write(path("journal.jsonl"), "{\"do\": \"db\", \"op\": \"add\", \"table\": \"STLD\", \"record\": {\"name\": \"PLAYED\"}}\n");
    int through = 0;  // rounds in which one of the two was not refused; when they meet while both open the file, both may be
    for (int round = 0; round < 12; ++round) {
        const int load = cli_test::start({"load", path("other.json"), model, "--replace"}, {});
        const int player = cli_test::start({"play", model}, {path("journal.jsonl"), path("replies")});
        const int loaded = cli_test::await(load).code;
        const int played = cli_test::await(player).code;
        const Outcome dump = zel({"dump", model});
        ASSERT_EQ(dump.code, 0) << "round " << round << ": " << dump.error;
        through += loaded == 0 || played == 0 ? 1 : 0;
        if (loaded == 0) {
            EXPECT_EQ(dump.out.find("\"LL\""), std::string::npos) << "round " << round << ": something of the replaced model is left";
        } else {
            EXPECT_NE(dump.out.find("\"LL\""), std::string::npos) << "round " << round << ": a refused replacement changed the model";
        }
        EXPECT_FALSE(std::filesystem::exists(model + "-wal"));
        ASSERT_EQ(zel({"load", "-", model, "--replace"}, R"({"format": "zel-model", "version": 1, "STLD": [{"name": "DL"}, {"name": "LL"}]})").code, 0);
    }
    EXPECT_GT(through, 0);
}

TEST_F(SharedModels, AReplacementWaitsForNobodyAndAltersNothingOfAModelThatIsOpen)
{
    Fed player = play("player");
    player.addCase("WRITTEN");
    const Outcome load = zel({"load", "-", model, "--replace"}, otherModel);
    EXPECT_EQ(load.code, 1);
    EXPECT_NE(load.error.find("open in another program"), std::string::npos) << load.error;
    player.addCase("MORE");
    EXPECT_EQ(player.end(), 0);
    EXPECT_TRUE(holds("WRITTEN") && holds("MORE"));
}

TEST_F(SharedModels, WhatAKilledPlayerLeftBesideADeletedModelIsNotTakenUpByANewOne)
{
    Fed player = play("player");
    player.addCase("LEFT");
    player.kill();
    std::filesystem::remove(model);
    const std::string left = contents(model + "-wal");
    for (const std::vector<std::string>& arguments : {std::vector<std::string>{"new", model}, {"load", "-", model}}) {
        const Outcome made = zel(arguments, otherModel);
        EXPECT_EQ(made.code, 1) << arguments[0];
        EXPECT_NE(made.error.find(model + "-wal"), std::string::npos) << made.error;
        EXPECT_FALSE(std::filesystem::exists(model));
        EXPECT_EQ(contents(model + "-wal"), left);
    }
}

TEST_F(SharedModels, ABackupThatIsPutBackAfterAKillIsNotOverwrittenByTheOldLog)
{
    const std::string backup = contents(model);
    Fed player = play("player");
    player.addCase("LEFT");
    player.kill();
    cli_test::write(model, backup);
    const std::string left = contents(model + "-wal");
    for (const std::vector<std::string>& arguments : {std::vector<std::string>{"info", model}, {"dump", model}, {"play", model}}) {
        const Outcome opened = zel(arguments);
        EXPECT_EQ(opened.code, 1) << arguments[0];
        EXPECT_NE(opened.error.find(model + "-wal"), std::string::npos) << opened.error;
        EXPECT_EQ(contents(model), backup) << arguments[0];
        EXPECT_EQ(contents(model + "-wal"), left) << arguments[0];
    }
    std::filesystem::remove(model + "-wal");
    EXPECT_FALSE(holds("LEFT"));
}

TEST_F(SharedModels, AModelThatIsMovedUnderAPlayerKeepsWhatItWasTold)
{
    Fed player = play("player");
    player.addCase("BEFORE");
    const std::string moved = path("moved.qvx");
    std::filesystem::rename(model, moved);
    const std::string reply = player.addCase("AFTER");
    EXPECT_NE(reply.find("no longer the file that was opened"), std::string::npos) << reply;
    EXPECT_NE(player.end(), 0);
    EXPECT_NE(player.error().find("no longer the file that was opened"), std::string::npos) << player.error();
    model = moved;
    EXPECT_TRUE(holds("BEFORE"));
    EXPECT_FALSE(std::filesystem::exists(path("m.qvx-wal")));
}

TEST_F(SharedModels, AreNeverWrittenOverByAResult)
{
    const std::string before = contents(model);
    for (const std::vector<std::string>& arguments : {std::vector<std::string>{"combinations", model, "--format", "csv", "--out", model},
                                                      {"generate", model, "--code", "AIK-USD94", "--out", model},
                                                      {"play", "--transcript", model}}) {
        const Outcome run = zel(arguments);
        EXPECT_EQ(run.code, 1) << arguments[0];
        EXPECT_NE(run.error.find("is a model file"), std::string::npos) << run.error;
        EXPECT_EQ(contents(model), before) << arguments[0];
    }
}

TEST_F(SharedModels, AResultGoesThroughLinksAndPipesAndKeepsTheMode)
{
    using std::filesystem::perms;
    const std::string list = zel({"combinations", model, "--format", "csv"}).out;
    cli_test::write(path("real.csv"), "former");
    std::filesystem::permissions(path("real.csv"), perms::owner_read | perms::owner_write);
    std::filesystem::create_symlink("real.csv", path("link.csv"));
    EXPECT_EQ(zel({"combinations", model, "--format", "csv", "--out", path("link.csv")}).code, 0);
    EXPECT_TRUE(std::filesystem::is_symlink(path("link.csv")));
    EXPECT_EQ(contents(path("real.csv")), list);
    EXPECT_EQ(std::filesystem::status(path("real.csv")).permissions(), perms::owner_read | perms::owner_write);

    ASSERT_EQ(mkfifo(path("pipe").c_str(), 0600), 0);
    const int reader = open(path("pipe").c_str(), O_RDWR | O_NONBLOCK | O_CLOEXEC);
    EXPECT_EQ(zel({"combinations", model, "--format", "csv", "--out", path("pipe")}).code, 0);
    std::string got(list.size() + 1, ' ');
    got.resize(static_cast<std::size_t>(std::max<ssize_t>(read(reader, got.data(), got.size()), 0)));
    close(reader);
    EXPECT_EQ(got, list);
    EXPECT_TRUE(std::filesystem::is_fifo(path("pipe")));
}

TEST_F(SharedModels, InfoRefusesAFileWhoseStructureTheFirstWriteWouldStumbleOver)
{
    // A page that no table uses is named twice by the list of free pages: the rows are all there, and no page may be taken from the list.
    std::string bytes = contents(model);
    constexpr std::size_t pageSize = 4096;
    const std::size_t pages = bytes.size() / pageSize;
    const auto put = [&bytes](std::size_t at, std::size_t number) {
        for (std::size_t i = 0; i < 4; ++i)
            bytes[at + i] = static_cast<char>(number >> (8 * (3 - i)) & 0xFFU);
    };
    put(32, pages);  // the first page of the list is the last table's
    put(36, 1);
    cli_test::write(model, bytes);
    const Outcome info = zel({"info", model});
    EXPECT_EQ(info.code, 1) << info.out;
    EXPECT_NE(info.error.find("structure is broken"), std::string::npos) << info.error;
}

}  // namespace
