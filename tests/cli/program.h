#pragma once

#include <cstddef>
#include <filesystem>
#include <string>
#include <vector>

#include <gtest/gtest.h>

namespace cli_test {

/// What came of a run of `zel`.
struct Outcome {
    int code = -1;   ///< exit code; -1 when a signal ended it
    int signal = 0;  ///< the signal that ended it; SIGALRM when it ran longer than two minutes
    std::string out;
    std::string error;
};

/// Variables "NAME=value" that a run gets beside those of the test.
using Environment = std::vector<std::string>;

/// Runs the built `zel` and waits for it.
Outcome zel(const std::vector<std::string>& arguments, const std::string& input = {}, const Environment& environment = {});

/// The same with its standard output going to `output`, which the outcome does not read.
Outcome zelInto(const std::filesystem::path& output, const std::vector<std::string>& arguments, const std::string& input = {});
/// The same where no file can grow beyond so many bytes.
Outcome zelWithSmallFiles(std::size_t bytes, const std::vector<std::string>& arguments, const std::string& input = {});

/// Where the standard streams of a run that is not waited for begin and end.
struct Streams {
    std::filesystem::path input = "/dev/null";
    std::filesystem::path output = "/dev/null";
    std::filesystem::path error = "/dev/null";
};

/// Starts the built `zel` without waiting. Gives the number of the process.
int start(const std::vector<std::string>& arguments, const Streams& streams, const Environment& environment = {});
/// Waits for the end of a process and tells how it came; the texts stay empty.
Outcome await(int process);
/// Kills a process at once and waits for its end, which may have come before.
Outcome kill(int process);

std::string contents(const std::filesystem::path& path);
void write(const std::filesystem::path& path, const std::string& text);

/// A folder of its own for each test, which goes with it.
class CliTest : public testing::Test {
protected:
    void SetUp() override;
    void TearDown() override;

    [[nodiscard]] std::string path(const std::string& name) const { return (folder / name).string(); }
    /// Makes a model with the static load cases DL and LL.
    [[nodiscard]] std::string modelWithTwoCases(const std::string& name) const;

    std::filesystem::path folder;
};

}  // namespace cli_test
