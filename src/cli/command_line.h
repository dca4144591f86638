#pragma once

#include "cli/option_values.h"

#include <deque>
#include <functional>
#include <string>
#include <vector>

namespace zel::cli {

/// An argument or option of a command, as help shows it.
struct Option {
    std::string name;       ///< "MODEL", "--format"
    std::string shortName;  ///< "-V"; empty for none
    std::string value;      ///< how its value is shown: "NAME"; empty for a flag
    std::string what;       ///< a line on it
    std::string initial;    ///< the default, where it is worth telling
    bool needed = false;
    bool repeats = false;
    Take take;             ///< a flag is taken with an empty text
    std::string excludes;  ///< an option that can't stand beside it

    [[nodiscard]] bool isFlag() const { return name.starts_with('-') && value.empty(); }
    [[nodiscard]] bool isPositional() const { return !name.starts_with('-'); }
};

/// A command of `zel`: what it takes and what it does.
class Command {
public:
    Command(std::string name, std::string what) : m_name(std::move(name)), m_what(std::move(what)) {}

    /// An argument by its place.
    Command& argument(std::string name, std::string what, Take take);
    Command& optionalArgument(std::string name, std::string what, Take take);
    /// An option with a value. `initial` is the default that help shows.
    Command& option(std::string name, std::string value, std::string what, Take take, std::string initial = {});
    Command& neededOption(std::string name, std::string value, std::string what, Take take);
    Command& repeatedOption(std::string name, std::string value, std::string what, Take take);
    Command& flag(std::string name, std::string what, bool& target);
    /// A flag for what is so anyhow, which can't stand beside another one.
    Command& defaultFlag(std::string name, std::string what, std::string excludes);
    /// A paragraph of the help, in front of the example.
    Command& note(std::string paragraph);
    Command& example(std::string commandLine);
    /// What is done once all values are taken; it gives the exit code.
    void does(std::function<int()> job) { m_job = std::move(job); }

    [[nodiscard]] const std::string& name() const { return m_name; }
    [[nodiscard]] const std::string& what() const { return m_what; }
    [[nodiscard]] const std::vector<Option>& options() const { return m_options; }
    [[nodiscard]] const std::vector<std::string>& notes() const { return m_notes; }
    [[nodiscard]] const std::string& exampleLine() const { return m_example; }
    [[nodiscard]] const std::function<int()>& job() const { return m_job; }

private:
    std::string m_name;
    std::string m_what;
    std::vector<Option> m_options;
    std::vector<std::string> m_notes;
    std::string m_example;
    std::function<int()> m_job;
};

/// The commands of the program, in the order of its help.
class CommandLine {
public:
    explicit CommandLine(std::string version) : m_version(std::move(version)) {}

    Command& add(std::string name, std::string what);
    [[nodiscard]] const std::deque<Command>& commands() const { return m_commands; }

    /// What the arguments ask for: a command, or help or version, which print.
    /// @throws UsageFault
    [[nodiscard]] std::function<int()> read(int argc, const char* const* argv) const;

    /// @throws UsageFault  for an unknown command, with the nearest
    void printHelp(const std::string& command) const;
    void printVersion() const;

private:
    [[nodiscard]] const Command& commandNamed(const std::string& name) const;

    std::string m_version;
    std::deque<Command> m_commands;
};

}  // namespace zel::cli
