#include "cli/help_text.h"

#include "platform/modeldb/record_values.h"

#include <algorithm>
#include <string_view>
#include <utility>

namespace zel::cli {

namespace {

constexpr std::size_t indent = 2;
constexpr std::size_t widestName = 26;  // a longer one has its text on the next line

/// Text that runs on in lines of a width, from a column on.
class Paragraph {
public:
    Paragraph(std::string& out, std::size_t width, std::size_t left, std::size_t column, std::string_view ending = {})
        : m_out(out), m_width(width), m_left(left), m_column(column), m_ending(ending)
    {
    }

    void add(std::string_view text)
    {
        while (!text.empty()) {
            const std::size_t end = wordEnd(text);
            addWord(text.substr(0, end));
            text.remove_prefix(std::min(end + 1, text.size()));
        }
        m_out += '\n';
    }

private:
    /// A command line keeps together what stands in quotes.
    [[nodiscard]] std::size_t wordEnd(std::string_view text) const
    {
        bool quoted = false;
        std::size_t end = 0;
        for (; end < text.size() && (quoted || text[end] != ' '); ++end)
            quoted = quoted != (text[end] == '"' && !m_ending.empty());
        return end;
    }

    void addWord(std::string_view word)
    {
        const std::size_t length = characterCount(word);
        if (m_any && m_column + 1 + length + m_ending.size() > m_width) {
            m_out.append(m_ending).append(1, '\n').append(m_left, ' ');
            m_column = m_left;
        } else if (m_any) {
            m_out += ' ';
            ++m_column;
        }
        m_out += word;
        m_column += length;
        m_any = true;
    }

    std::string& m_out;
    std::size_t m_width;
    std::size_t m_left;
    std::size_t m_column;
    std::string_view m_ending;
    bool m_any = false;
};

void addParagraph(std::string& out, std::string_view text, std::size_t width)
{
    while (!text.empty()) {
        const std::size_t end = std::min(text.find('\n'), text.size());
        const std::string_view line = text.substr(0, end);
        const std::size_t blanks = std::min(line.find_first_not_of(' '), line.size());
        out.append(blanks, ' ');
        Paragraph(out, width, blanks, blanks).add(line.substr(blanks));
        text.remove_prefix(std::min(end + 1, text.size()));
    }
}

/// Names on the left, texts beside them.
void addList(std::string& out, const std::vector<std::pair<std::string, std::string>>& lines, std::size_t width)
{
    std::size_t column = 0;
    for (const auto& [name, text] : lines) {
        if (name.size() <= widestName)
            column = std::max(column, indent + name.size() + 2);
    }
    for (const auto& [name, text] : lines) {
        out.append(indent, ' ').append(name);
        if (indent + name.size() + 2 > column)
            out.append(1, '\n').append(column, ' ');
        else
            out.append(column - indent - name.size(), ' ');
        Paragraph(out, width, column, column).add(text);
    }
}

/// A command line that a shell takes, also over several lines.
void addExample(std::string& out, std::string_view line, std::size_t width)
{
    out += "Example:\n  ";
    Paragraph(out, width, indent + 4, indent, " \\").add(line);
}

std::string shown(const Option& option)
{
    return option.name + (option.shortName.empty() ? "" : ", " + option.shortName) + (option.value.empty() ? "" : " " + option.value);
}

std::string meaning(const Option& option)
{
    std::string text = option.what;
    if (option.needed && !option.isPositional())
        text += " (needed)";
    if (!option.initial.empty())
        text += " (default " + option.initial + ")";
    return text;
}

void addOptions(std::string& out, const Command& command, bool positional, std::size_t width)
{
    std::vector<std::pair<std::string, std::string>> lines;
    for (const Option& option : command.options()) {
        if (option.isPositional() == positional)
            lines.emplace_back(shown(option), meaning(option));
    }
    if (!positional)
        lines.emplace_back("--help, -h", "print this help");
    if (lines.empty())
        return;
    out += positional ? "\nArguments:\n" : "\nOptions:\n";
    addList(out, lines, width);
}

std::string usage(const Command& command)
{
    std::string text = "Usage: zel " + command.name();
    for (const Option& option : command.options()) {
        if (option.isPositional())
            text += option.needed ? " " + option.name : " [" + option.name + "]";
        else if (option.needed)
            text += " " + shown(option);
    }
    return text + " [OPTIONS]";
}

}  // namespace

std::string programHelp(const std::deque<Command>& commands, std::size_t width)
{
    std::string out;
    addParagraph(out, "ZEL: models, dialogs and load combinations of slabs and mat foundations, from the command line.", width);
    out += "\nUsage: zel COMMAND [ARGUMENTS]\n\nCommands:\n";
    std::vector<std::pair<std::string, std::string>> lines;
    for (const Command& command : commands)
        lines.emplace_back(command.name(), command.what());
    addList(out, lines, width);
    out += "\nOptions:\n";
    addList(out, {{"--help, -h", "print this help"}, {"--version, -V", "print the version"}}, width);
    out += '\n';
    addParagraph(out, "\"zel help COMMAND\" tells more about a command.", width);
    out += '\n';
    addExample(out, "zel new tower.qvx --length M --force KN", width);
    return out;
}

std::string commandHelp(const Command& command, std::size_t width)
{
    std::string out;
    addParagraph(out, command.what(), width);
    out += '\n';
    Paragraph(out, width, indent + 4, 0).add(usage(command));
    addOptions(out, command, true, width);
    addOptions(out, command, false, width);
    for (const std::string& note : command.notes()) {
        out += '\n';
        addParagraph(out, note, width);
    }
    out += '\n';
    addExample(out, command.exampleLine(), width);
    return out;
}

}  // namespace zel::cli
