#pragma once

#include "build_paths.h"
#include "cli/program.h"

#include <array>
#include <map>
#include <random>
#include <string>
#include <vector>

namespace crash_test {

using cli_test::contents;
using cli_test::Environment;
using cli_test::Outcome;
using cli_test::zel;

/// What the preloaded library does to a run; see tests/preload/failing_calls.cpp.
struct Fault {
    std::string call;     ///< kind of call; empty for all
    long at = 0;          ///< number of the call that fails
    std::string with;     ///< errno by its number, or "kill"
    bool always = false;  ///< all later ones fail too
    long space = -1;      ///< bytes that the disk still takes; -1 for no limit
};

/// The name and the bytes of each file in a folder.
using Folder = std::map<std::string, std::string>;
Folder filesIn(const std::filesystem::path& folder);

/// The contents of a model as JSON; "absent" without a file, "unreadable: ..." when it is refused.
std::string stateOf(const std::string& model);

/// Whether a run ended as a program should: by itself, with an exit status of its own, in time and without a finding of a sanitizer.
testing::AssertionResult orderly(const Outcome& run);

/// Whether two programs' worth of bytes are the same, without printing them.
testing::AssertionResult same(const Folder& left, const Folder& right);

/// A test with hostile means. It has a folder `model/` that only the ill-treated program writes into, random numbers whose seed it prints, and
/// counts what it did. A few rounds are made by default; scripts/attack asks for more by the variable ZEL_ATTACK_ROUNDS.
class Attack : public cli_test::CliTest {
protected:
    void SetUp() override;
    void TearDown() override;

    /// How often an experiment is made.
    [[nodiscard]] static int rounds(int usual);
    /// Whether every point is to be tried, not a sample of them.
    [[nodiscard]] static bool exhaustive();
    /// A number below `count`.
    [[nodiscard]] std::size_t pick(std::size_t count) { return m_random() % count; }
    /// Counts something for the last line, "kills: 20".
    void count(const std::string& what, long number = 1) { m_counts[what] += number; }
    [[nodiscard]] long counted(const std::string& what) { return m_counts[what]; }

    [[nodiscard]] std::string model(const std::string& name = "model.qvx") const { return path("model/" + name); }
    void clearModelFolder() const;
    /// Puts files into the folder of the model, in place of what is there.
    void restore(const Folder& files) const;
    [[nodiscard]] Folder modelFolder() const { return filesIn(path("model")); }

    [[nodiscard]] Environment preloaded(const Fault& fault) const;
    /// How many calls of each kind a run makes on the files of the model's folder.
    [[nodiscard]] std::map<std::string, long> callsOf(const std::vector<std::string>& arguments, const std::string& input = {}) const;

    /// A model in the file that holds the two load cases of WritingJournal.
    void makeTwoCases(const std::string& name = "model.qvx") const;
    /// A model of a tower with 20 load cases of all types.
    void makeTower(const std::string& name = "model.qvx") const;

private:
    std::mt19937_64 m_random;
    std::uint64_t m_seed = 0;
    std::map<std::string, long> m_counts;
};

/// Models of the examples, as files of JSON.
inline const std::string towerJson = zel::test::sourceFolder() + "/examples/tower.json";
inline const std::string firstJson = zel::test::sourceFolder() + "/examples/first.json";
inline constexpr std::array<const char*, 8> callKinds{"open", "read", "write", "sync", "truncate", "rename", "unlink", "lock"};

}  // namespace crash_test
