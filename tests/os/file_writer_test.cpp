#include "platform/os/file_writer.h"

#include "platform/os/file_access.h"

#include <csignal>
#include <fstream>
#include <iterator>
#include <ostream>
#include <string>
#include <system_error>
#include <thread>

#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

namespace {

namespace fs = std::filesystem;
using zel::os::FileWriter;

class FileWriters : public testing::Test {
protected:
    FileWriters()
    {
        std::string name = (fs::temp_directory_path() / "zel-writer-XXXXXX").string();
        folder = mkdtemp(name.data());
    }
    ~FileWriters() override { fs::remove_all(folder); }

    static std::string contents(const fs::path& file)
    {
        std::ifstream stream(file, std::ios::binary);
        return {std::istreambuf_iterator<char>(stream), {}};
    }
    static void put(const fs::path& file, const std::string& text) { std::ofstream(file, std::ios::binary) << text; }
    static void write(const fs::path& file, const std::string& text, FileWriter::Over over = FileWriter::Over::existing)
    {
        FileWriter writer(file);
        writer.stream() << text;
        writer.finish(over);
    }
    [[nodiscard]] std::ptrdiff_t filesInFolder() const { return std::distance(fs::directory_iterator(folder), {}); }

    fs::path folder;
};

TEST_F(FileWriters, PutTheWholeFileUnderItsNameAtTheEnd)
{
    const fs::path file = folder / "a.txt";
    {
        FileWriter writer(file);
        writer.stream() << std::string(200000, 'x') << "end";
        EXPECT_EQ(filesInFolder(), 0) << "nothing is seen before the end";
        writer.finish();
    }
    EXPECT_EQ(contents(file), std::string(200000, 'x') + "end");
    EXPECT_EQ(filesInFolder(), 1);
}

TEST_F(FileWriters, LeaveTheFormerFileWithoutAnEnd)
{
    put(folder / "a.txt", "former");
    {
        FileWriter writer(folder / "a.txt");
        writer.stream() << "new" << std::flush;
    }
    EXPECT_EQ(contents(folder / "a.txt"), "former");
    EXPECT_EQ(filesInFolder(), 1);
}

TEST_F(FileWriters, FollowLinksAndKeepTheMode)
{
    put(folder / "real.txt", "former");
    fs::permissions(folder / "real.txt", fs::perms::owner_read | fs::perms::owner_write);
    fs::create_symlink("real.txt", folder / "link.txt");
    fs::create_symlink("fresh.txt", folder / "dangling.txt");
    write(folder / "link.txt", "new");
    write(folder / "dangling.txt", "made");
    EXPECT_TRUE(fs::is_symlink(folder / "link.txt"));
    EXPECT_EQ(contents(folder / "real.txt"), "new");
    EXPECT_EQ(fs::status(folder / "real.txt").permissions(), fs::perms::owner_read | fs::perms::owner_write);
    EXPECT_EQ(contents(folder / "fresh.txt"), "made");
    EXPECT_TRUE(fs::is_symlink(folder / "dangling.txt"));
}

TEST_F(FileWriters, WriteStraightIntoAPipe)
{
    const fs::path pipe = folder / "pipe";
    ASSERT_EQ(mkfifo(pipe.c_str(), 0600), 0);
    std::string got;
    std::thread reader([&] { got = contents(pipe); });
    write(pipe, "through");
    reader.join();
    EXPECT_EQ(got, "through");
    EXPECT_TRUE(fs::is_fifo(pipe));
}

TEST_F(FileWriters, RefuseWhatCantBeWritten)
{
    put(folder / "fixed.txt", "former");
    fs::permissions(folder / "fixed.txt", fs::perms::owner_read);
    EXPECT_THROW(FileWriter(folder / "fixed.txt"), std::system_error);
    EXPECT_THROW(FileWriter{folder}, std::system_error);
    EXPECT_THROW(FileWriter(folder / "none/a.txt"), std::system_error);
    EXPECT_EQ(contents(folder / "fixed.txt"), "former");
}

TEST_F(FileWriters, TakeAFreeNameOnlyWhereItIsFree)
{
    write(folder / "a.txt", "first", FileWriter::Over::nothing);
    try {
        write(folder / "a.txt", "second", FileWriter::Over::nothing);
        ADD_FAILURE() << "written over";
    } catch (const std::system_error& error) {
        EXPECT_EQ(error.code(), std::errc::file_exists);
    }
    EXPECT_EQ(contents(folder / "a.txt"), "first");
    EXPECT_EQ(filesInFolder(), 1);
}

TEST_F(FileWriters, LeaveNothingWhateverSignalEndsTheProgram)
{
    for (const int signal : {SIGINT, SIGTERM, SIGHUP, SIGKILL}) {
        const pid_t child = fork();
        if (child == 0) {
            FileWriter writer(folder / "a.txt");
            writer.stream() << "half" << std::flush;
            raise(signal);
            _exit(0);
        }
        int status = 0;
        waitpid(child, &status, 0);
        EXPECT_TRUE(WIFSIGNALED(status));
        EXPECT_EQ(filesInFolder(), 0) << "signal " << signal;
    }
}

TEST_F(FileWriters, RemoveWhatAKilledProgramHasLeftAndNothingElse)
{
    const pid_t gone = fork();
    if (gone == 0)
        _exit(0);
    waitpid(gone, nullptr, 0);
    const std::string left = std::to_string(gone);
    const std::string own(zel::os::processNumber());
    for (const std::string& name : {"a.qvx." + left + ".part", "a.qvx.new-" + left, "a.qvx.new-" + left + "-journal", "a.qvx.new-" + own})
        put(folder / name, "left over");
    put(folder / ("a.qvx." + std::to_string(getppid()) + ".part"), "of a running program");
    put(folder / "a.qvx.1x.part", "of somebody");
    put(folder / "b.qvx.part", "of somebody");
    write(folder / "a.qvx", "new");
    EXPECT_EQ(filesInFolder(), 4);
    EXPECT_EQ(contents(folder / "a.qvx"), "new");
    EXPECT_EQ(contents(folder / "b.qvx.part"), "of somebody");
}

}  // namespace
