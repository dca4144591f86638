#pragma once

#include "crash/attack.h"

namespace crash_test {

/// A run of `zel` and what it does when nobody disturbs it.
struct Command {
    std::vector<std::string> arguments;
    std::string input;
    Folder folder;                      ///< what stands in the model's folder before it
    std::string before;                 ///< the model's state then
    std::string after;                  ///< the model's state when it is through
    std::string printed;                ///< what it prints
    Folder left;                        ///< what stands in the folder then; models by their names alone
    std::map<std::string, long> calls;  ///< how many calls of each kind it makes in the folder
};

/// The tests of a command run once for each of these names.
inline constexpr std::array changingCommands{"new", "load", "replace", "generate", "import"};
inline constexpr std::array readingCommands{"info", "dump", "combinations", "envelopes", "dry_run"};

/// A test of one command, by its name above.
class CommandAttack : public Attack, public testing::WithParamInterface<const char*> {
protected:
    void SetUp() override;

    [[nodiscard]] const Command& command() const { return m_command; }
    /// Puts the folder back and runs the command under a fault.
    [[nodiscard]] Outcome run(const Fault& fault) const;
    /// Says what is wrong after a run that came to its end: with exit status 0 all of it is there, else nothing.
    /// @param tidy  whether nothing may be left over
    void judge(const Outcome& run, bool tidy) const;
    /// The same after a kill: all of it or nothing, and the next run of the command is not disturbed by what was left.
    void judgeKilled() const;

private:
    [[nodiscard]] Folder lasting() const;

    Command m_command;
};

/// The parameter as part of a test's name.
std::string nameOf(const testing::TestParamInfo<const char*>& command);

}  // namespace crash_test
