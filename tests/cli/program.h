#pragma once

#include <filesystem>
#include <string>
#include <vector>

#include <gtest/gtest.h>

namespace cli_test {

/// What came of a run of `zel`.
struct Outcome {
    int code = -1;  ///< exit code; -1 when a signal ended it
    std::string out;
    std::string error;
};

/// Runs the built `zel` and waits for it.
Outcome zel(const std::vector<std::string>& arguments, const std::string& input = {});

/// Starts the built `zel` with its input and output in files, without waiting. Gives the number of the process.
int start(const std::vector<std::string>& arguments, const std::filesystem::path& input, const std::filesystem::path& output);
/// Kills a process at once and waits for its end.
void kill(int process);

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
