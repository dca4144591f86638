#include "cli/program.h"

#include "build_paths.h"

#include <array>
#include <cerrno>
#include <csignal>
#include <cstdlib>
#include <fstream>
#include <iterator>
#include <optional>

#include <fcntl.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

namespace cli_test {

namespace fs = std::filesystem;

namespace {

/// Puts a file in the place of a standard stream of this process.
void redirect(const fs::path& file, int stream, int flags)
{
    const int descriptor = open(file.c_str(), flags, 0644);
    if (descriptor < 0 || dup2(descriptor, stream) < 0)
        _exit(126);
    close(descriptor);
}

fs::path freshFolder()
{
    std::string name = (fs::temp_directory_path() / "zel-cli-XXXXXX").string();
    return mkdtemp(name.data()) != nullptr ? fs::path(name) : fs::path();
}

/// While it lives, no file can grow beyond so many bytes, here and in programs that are started: the write fails.
class SmallFiles {
public:
    explicit SmallFiles(std::size_t bytes)
    {
        getrlimit(RLIMIT_FSIZE, &m_former);
        const rlimit limit{bytes, m_former.rlim_max};
        setrlimit(RLIMIT_FSIZE, &limit);
        m_handler = std::signal(SIGXFSZ, SIG_IGN);
    }
    SmallFiles(const SmallFiles&) = delete;
    SmallFiles& operator=(const SmallFiles&) = delete;
    ~SmallFiles()
    {
        setrlimit(RLIMIT_FSIZE, &m_former);
        std::signal(SIGXFSZ, m_handler);
    }

private:
    rlimit m_former{};
    void (*m_handler)(int) = nullptr;
};

/// @param output  of the program; empty for a file that the outcome reads
Outcome run(const std::vector<std::string>& arguments, const std::string& input, const fs::path& output, const Environment& environment,
            std::size_t mostBytes = 0)
{
    const fs::path folder = freshFolder();
    write(folder / "in", input);
    std::optional<SmallFiles> small;
    if (mostBytes != 0)
        small.emplace(mostBytes);
    const int process = start(arguments, {folder / "in", output.empty() ? folder / "out" : output, folder / "error"}, environment);
    small.reset();
    Outcome ended = await(process);
    if (output.empty())
        ended.out = contents(folder / "out");
    ended.error = contents(folder / "error");
    fs::remove_all(folder);
    return ended;
}

}  // namespace

Outcome zel(const std::vector<std::string>& arguments, const std::string& input, const Environment& environment)
{
    return run(arguments, input, {}, environment);
}

Outcome zelInto(const fs::path& output, const std::vector<std::string>& arguments, const std::string& input)
{
    return run(arguments, input, output, {});
}

Outcome zelWithSmallFiles(std::size_t bytes, const std::vector<std::string>& arguments, const std::string& input)
{
    return run(arguments, input, {}, {}, bytes);
}

int start(const std::vector<std::string>& arguments, const Streams& streams, const Environment& environment)
{
    constexpr unsigned timeLimit = 120;  // seconds
    const std::string program = zel::test::programFolder() + "/zel";
    std::vector<char*> words{const_cast<char*>(program.c_str())};
    for (const std::string& argument : arguments)
        words.push_back(const_cast<char*>(argument.c_str()));
    words.push_back(nullptr);
    const pid_t child = fork();
    if (child == 0) {
        redirect(streams.input, STDIN_FILENO, O_RDONLY);
        redirect(streams.output, STDOUT_FILENO, O_WRONLY | O_CREAT | O_TRUNC);
        redirect(streams.error, STDERR_FILENO, O_WRONLY | O_CREAT | O_TRUNC);
        for (const std::string& variable : environment)
            putenv(const_cast<char*>(variable.c_str()));
        alarm(timeLimit);
        execv(program.c_str(), words.data());
        _exit(127);
    }
    return child;
}

Outcome await(int process)
{
    int status = 0;
    while (waitpid(process, &status, 0) < 0 && errno == EINTR) {}
    Outcome ended;
    if (WIFEXITED(status))
        ended.code = WEXITSTATUS(status);
    else
        ended.signal = WTERMSIG(status);
    return ended;
}

Outcome kill(int process)
{
    ::kill(process, SIGKILL);
    return await(process);
}

std::string contents(const fs::path& path)
{
    std::ifstream file(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
}

void write(const fs::path& path, const std::string& text)
{
    std::ofstream(path, std::ios::binary) << text;
}

void CliTest::SetUp()
{
    folder = freshFolder();
    ASSERT_FALSE(folder.empty());
}

void CliTest::TearDown()
{
    fs::remove_all(folder);
}

std::string CliTest::modelWithTwoCases(const std::string& name) const
{
    const Outcome made = zel({"load", "-", path(name)}, R"({"format": "zel-model", "version": 1, "STLD": [{"name": "DL"}, {"name": "LL", "type": "L"}]})");
    EXPECT_EQ(made.code, 0) << made.error;
    return path(name);
}

}  // namespace cli_test
