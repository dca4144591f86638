#include "cli/command_line.h"

#include "cli/commands.h"
#include "cli/help_text.h"
#include "contract/nearest.h"
#include "platform/os/terminal.h"

#include <algorithm>
#include <iostream>
#include <map>

#include <CLI/CLI.hpp>

// The option parser splits the words of a command line into commands, options and values. What they mean, what is missing or unknown and
// every text is ours: this is the only file that knows the parser.
namespace zel::cli {

namespace {

std::string bare(const std::string& word)
{
    return word.substr(0, word.find('='));
}

/// One command's options at the parser, which keeps the texts that each was given.
class Parsing {
public:
    Parsing(CLI::App& app, const Command& command) : m_command(command), m_app(*app.add_subcommand(command.name()))
    {
        m_app.allow_extras();
        m_app.set_help_flag();
        m_help = m_app.add_flag("-h,--help");
        for (const Option& option : command.options())
            m_given[&option] = add(option);
    }

    [[nodiscard]] bool isChosen() const { return m_app.parsed(); }
    [[nodiscard]] bool asksForHelp() const { return m_help->count() != 0; }

    /// Hands the texts to the command.
    void take() const
    {
        checkKnown();
        for (const Option& option : m_command.options())
            takeOption(option);
    }

    /// What is wrong where the parser gave up: an option without its value, or a flag with one.
    [[nodiscard]] std::string mismatch(const std::string& parserText) const
    {
        for (const Option& option : m_command.options()) {
            const std::string bareName = option.name.substr(option.name.find_first_not_of('-'));
            if (parserText.starts_with(option.name + ":") || parserText.starts_with(bareName + " "))
                return option.isFlag() ? option.name + " takes no value." : option.name + " needs a value: " + option.name + " " + option.value + ".";
        }
        return parserText;
    }

private:
    CLI::Option* add(const Option& option)
    {
        const std::string names = option.shortName.empty() ? option.name : option.shortName + "," + option.name;
        if (option.isFlag())
            return m_app.add_flag(names)->disable_flag_override()->multi_option_policy(CLI::MultiOptionPolicy::TakeLast);
        return m_app.add_option(names, [](const CLI::results_t&) { return true; })->multi_option_policy(CLI::MultiOptionPolicy::TakeAll);
    }

    void checkKnown() const
    {
        const std::vector<std::string> extras = m_app.remaining();
        const auto option = std::find_if(extras.begin(), extras.end(), [](const std::string& word) { return word.size() > 1 && word[0] == '-'; });
        if (option != extras.end()) {
            std::vector<std::string_view> names{"--help"};
            for (const Option& each : m_command.options()) {
                if (!each.isPositional())
                    names.push_back(each.name);
            }
            throw UsageFault("\"zel " + m_command.name() + "\" has no option " + bare(*option) + didYouMean(bare(*option), names));
        }
        if (!extras.empty())
            throw UsageFault("\"zel " + m_command.name() + "\" takes no further argument \"" + extras.front() + "\"");
    }

    void takeOption(const Option& option) const
    {
        const CLI::Option& given = *m_given.at(&option);
        const std::vector<std::string>& texts = given.results();
        if (option.isFlag()) {
            if (given.count() != 0 && !option.excludes.empty() && isGiven(option.excludes))
                throw UsageFault(option.name + " and " + option.excludes + " can't stand beside each other");
            if (given.count() != 0)
                option.take({});
            return;
        }
        if (texts.empty() && option.needed)
            throw UsageFault("\"zel " + m_command.name() + "\" needs " + option.name + ": " + option.what);
        if (texts.size() > 1 && !option.repeats)
            throw UsageFault(option.name + " is given " + std::to_string(texts.size()) + " times; give it once");
        for (const std::string& text : texts) {
            try {
                option.take(text);
            } catch (const UsageFault& fault) {
                throw UsageFault(option.name + " " + fault.what());
            }
        }
    }

    [[nodiscard]] bool isGiven(const std::string& name) const
    {
        return std::any_of(m_given.begin(), m_given.end(), [&](const auto& each) { return each.first->name == name && each.second->count() != 0; });
    }

    const Command& m_command;
    CLI::App& m_app;
    CLI::Option* m_help = nullptr;
    std::map<const Option*, CLI::Option*> m_given;
};

/// A sentence with its end, and where to read on.
std::string withEnd(std::string sentence, const std::string& command)
{
    if (!sentence.ends_with('.') && !sentence.ends_with('?'))
        sentence += '.';
    return sentence + " \"zel help" + (command.empty() ? "" : " " + command) + "\" tells more.";
}

}  // namespace

Command& Command::argument(std::string name, std::string what, Take take)
{
    m_options.push_back({std::move(name), {}, {}, std::move(what), {}, true, false, std::move(take), {}});
    return *this;
}

Command& Command::optionalArgument(std::string name, std::string what, Take take)
{
    argument(std::move(name), std::move(what), std::move(take)).m_options.back().needed = false;
    return *this;
}

Command& Command::option(std::string name, std::string value, std::string what, Take take, std::string initial)
{
    m_options.push_back({std::move(name), {}, std::move(value), std::move(what), std::move(initial), false, false, std::move(take), {}});
    return *this;
}

Command& Command::neededOption(std::string name, std::string value, std::string what, Take take)
{
    option(std::move(name), std::move(value), std::move(what), std::move(take)).m_options.back().needed = true;
    return *this;
}

Command& Command::repeatedOption(std::string name, std::string value, std::string what, Take take)
{
    option(std::move(name), std::move(value), std::move(what), std::move(take)).m_options.back().repeats = true;
    return *this;
}

Command& Command::flag(std::string name, std::string what, bool& target)
{
    m_options.push_back({std::move(name), {}, {}, std::move(what), {}, false, false, [&target](const std::string&) { target = true; }, {}});
    return *this;
}

Command& Command::defaultFlag(std::string name, std::string what, std::string excludes)
{
    m_options.push_back({std::move(name), {}, {}, std::move(what), {}, false, false, [](const std::string&) {}, std::move(excludes)});
    return *this;
}

Command& Command::note(std::string paragraph)
{
    m_notes.push_back(std::move(paragraph));
    return *this;
}

Command& Command::example(std::string commandLine)
{
    m_example = std::move(commandLine);
    return *this;
}

Command& CommandLine::add(std::string name, std::string what)
{
    return m_commands.emplace_back(std::move(name), std::move(what));
}

const Command& CommandLine::commandNamed(const std::string& name) const
{
    std::vector<std::string_view> names;
    for (const Command& command : m_commands) {
        if (command.name() == name)
            return command;
        names.push_back(command.name());
    }
    if (name.starts_with('-'))
        throw UsageFault(withEnd("there is no option " + bare(name) + " in front of a command", {}));
    throw UsageFault(withEnd("there is no command \"" + name + "\"" + didYouMean(name, names), {}));
}

std::function<int()> CommandLine::read(int argc, const char* const* argv) const
{
    CLI::App app;
    app.allow_extras();
    app.require_subcommand(0, 1);
    app.set_help_flag();
    const CLI::Option* help = app.add_flag("-h,--help");
    const CLI::Option* version = app.add_flag("-V,--version");
    std::deque<Parsing> commands;
    for (const Command& command : m_commands)
        commands.emplace_back(app, command);

    const auto chosen = [&] { return std::find_if(commands.begin(), commands.end(), [](const Parsing& each) { return each.isChosen(); }); };
    const auto nameOf = [&](auto place) { return m_commands[static_cast<std::size_t>(place - commands.begin())].name(); };
    std::string fault;
    try {
        app.parse(argc, argv);
    } catch (const CLI::ParseError& error) {
        fault = error.what();
    }
    const auto command = chosen();
    if (!fault.empty())
        throw UsageFault(command == commands.end() ? withEnd(fault, {}) : withEnd(command->mismatch(fault), nameOf(command)));
    if (help->count() != 0)
        return [this] { return printHelp({}), succeeded; };
    if (version->count() != 0)
        return [this] { return printVersion(), succeeded; };
    if (!app.remaining().empty())
        (void)commandNamed(app.remaining().front());
    if (command == commands.end())
        throw UsageFault(withEnd("a command is missing", {}));
    if (command->asksForHelp())
        return [this, name = nameOf(command)] { return printHelp(name), succeeded; };
    try {
        command->take();
    } catch (const UsageFault& refused) {
        throw UsageFault(withEnd(refused.what(), nameOf(command)));
    }
    return commandNamed(nameOf(command)).job();
}

void CommandLine::printHelp(const std::string& command) const
{
    const std::size_t width = os::terminalWidth();
    std::cout << (command.empty() ? programHelp(m_commands, width) : commandHelp(commandNamed(command), width));
}

void CommandLine::printVersion() const
{
    std::cout << m_version << '\n';
}

}  // namespace zel::cli
