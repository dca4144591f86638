#include "house/tree.h"

#include <algorithm>
#include <cctype>
#include <map>
#include <optional>
#include <regex>
#include <set>
#include <string>
#include <utility>
#include <vector>

#include <gtest/gtest.h>

namespace {

using house::File;

/// A declaration or the head of a definition at namespace scope, on one line, with the namespace that it stands in.
struct Statement {
    std::string space;  ///< "zel::number::", "" outside of any, "?" in one without a name
    std::string text;   ///< up to its ";" or "{"
    std::size_t line;   ///< where it begins, from 0
};

/// What stands at namespace scope in a file that is laid out as ours are: there a line begins in the first column.
std::vector<Statement> statements(const File& file)
{
    const std::regex opening("^(?:inline )?namespace(?: ([\\w:]+))? \\{");
    std::vector<std::string> spaces;
    std::vector<Statement> found;
    for (std::size_t i = 0; i < file.lines.size(); ++i) {
        const std::string& line = file.lines[i];
        std::smatch match;
        if (std::regex_search(line, match, opening))
            spaces.push_back(match[1].matched ? match[1].str() + "::" : "?");
        else if (line.starts_with("}  // namespace") && !spaces.empty())
            spaces.pop_back();
        else if (!line.empty() && (std::isalpha(static_cast<unsigned char>(line.front())) != 0 || line.front() == '[')) {
            Statement statement{{}, line, i};
            for (const std::string& space : spaces)
                statement.space += space;
            for (std::size_t next = i + 1; statement.text.find_first_of(";{") == std::string::npos && next < file.lines.size() && !file.lines[next].empty();
                 ++next)
                statement.text += ' ' + file.lines[next];
            statement.text.resize(std::min(statement.text.size(), statement.text.find_first_of(";{") + 1));
            found.push_back(std::move(statement));
        }
    }
    return found;
}

/// The qualified name of the class that a statement defines; nothing for any other statement.
std::optional<std::string> definedClass(const Statement& statement)
{
    static const std::regex head("^(?:template <.*> )?(?:class|struct) (?:ZEL_CMD_API )?(\\w+)(?: final)?(?: :.*)? \\{$");
    std::smatch match;
    return std::regex_search(statement.text, match, head) ? std::optional(statement.space + match[1].str()) : std::nullopt;
}

/// The name in front of the arguments of a function that is no template and not inline: "CView::Draw", "formatText".
std::optional<std::string> functionName(const Statement& statement)
{
    static const std::regex other("^(?:template|inline|constexpr|static|class|struct|enum|using|namespace|extern|friend|const bool) ?");
    static const std::regex head("^(?:\\[\\[\\w+\\]\\] )?(?:[\\w:<>,*& ]*[ *&])?((?:\\w+::)*(?:~?\\w+|operator[^ (]+)) ?\\(");
    std::smatch match;
    if (std::regex_search(statement.text, other) || !std::regex_search(statement.text, match, head))
        return std::nullopt;
    return match[1].str();
}

/// Which headers declare a class or a function.
struct Declared {
    std::map<std::string, std::string> classes;
    std::multimap<std::string, std::string> functions;  ///< overloads may stand in several
};

Declared declaredInHeaders()
{
    Declared declared;
    for (const File& file : house::files()) {
        if (!house::isIn(file, "src/", {".h"}))
            continue;
        for (const Statement& statement : statements(file)) {
            if (const auto name = definedClass(statement))
                declared.classes.emplace(*name, file.path);
            else if (const auto function = functionName(statement); function && statement.text.ends_with(';'))
                declared.functions.emplace(statement.space + *function, file.path);
        }
    }
    return declared;
}

/// The header that declares what a statement of a source defines, `own` where several do; empty if none does.
std::string headerOf(const Statement& statement, const std::string& own, const Declared& declared)
{
    const auto function = functionName(statement);
    if (!function || !statement.text.ends_with('{'))
        return {};
    const std::string name = statement.space + *function;
    const auto [first, last] = declared.functions.equal_range(name);
    if (first != last)
        return std::any_of(first, last, [&own](const auto& each) { return each.second == own; }) ? own : first->second;
    const std::size_t colon = name.rfind("::");
    if (colon == std::string::npos)
        return {};
    // The class itself, or one around it.
    for (std::string owner = name.substr(0, colon); !owner.empty(); owner = owner.substr(0, owner.rfind("::"))) {
        if (const auto found = declared.classes.find(owner); found != declared.classes.end())
            return found->second;
        if (owner.find("::") == std::string::npos)
            break;
    }
    return {};
}

std::string folderOf(const std::string& path)
{
    return path.substr(0, path.find_last_of('/') + 1);
}

std::string firstInclude(const File& file)
{
    for (const std::string& line : file.lines) {
        if (line.starts_with("#include \""))
            return "src/" + line.substr(10, line.rfind('"') - 10);
    }
    return {};
}

// Bodies that still lie in another room. The list may only get shorter.
const std::set<std::pair<std::string, std::string>> bodiesElsewhere{
    {"src/contract/import_file.h", "src/platform/modeldb/import_file.cpp"},
    {"src/contract/table_handle.h", "src/platform/modeldb/unit_ctrl.cpp"},
};

TEST(HouseRules, WhatTheContractDeclaresHasItsBodyBesideIt)
{
    const Declared declared = declaredInHeaders();
    ASSERT_TRUE(declared.classes.contains("CDialog"));
    ASSERT_TRUE(declared.functions.contains("zel::number::read"));
    std::size_t bodies = 0;
    auto unused = bodiesElsewhere;
    for (const File& file : house::files()) {
        if (!house::isIn(file, "src/", {".cpp"}))
            continue;
        const std::string own = firstInclude(file);
        for (const Statement& statement : statements(file)) {
            const std::string header = headerOf(statement, own, declared);
            if (!header.starts_with("src/contract/"))
                continue;
            ++bodies;
            unused.erase({header, file.path});
            EXPECT_TRUE((folderOf(file.path) == folderOf(header) && own == header) || bodiesElsewhere.contains({header, file.path}))
                << house::place(file, statement.line) << "\n    is declared in " << header
                << ": define it in that folder, in a source that includes the header first, or make it a pure virtual function";
        }
    }
    EXPECT_GT(bodies, 300U) << "functions of the contract are no longer recognised";
    for (const auto& [header, source] : unused)
        ADD_FAILURE() << source << " holds no body of " << header << " any more: take the line from the list";
}

TEST(HouseRules, AnInterfaceOfTheContractHoldsNoData)
{
    std::set<std::string> whole;  // have their body beside them
    for (const File& file : house::files()) {
        if (house::isIn(file, "src/contract/", {".cpp"}))
            whole.insert(firstInclude(file));
    }
    const std::regex data("^    [A-Za-z][\\w:<>,*& ]* m_\\w+");
    std::size_t interfaces = 0;
    for (const File& file : house::files()) {
        if (!house::isIn(file, "src/contract/", {".h"}) || whole.contains(file.path))
            continue;
        for (const Statement& statement : statements(file)) {
            if (!definedClass(statement))
                continue;
            bool isAbstract = false;
            std::vector<std::size_t> members;
            for (std::size_t i = statement.line; i < file.lines.size() && file.lines[i] != "};"; ++i) {
                isAbstract = isAbstract || (file.lines[i].find(')') != std::string::npos && file.lines[i].ends_with(" = 0;"));
                if (std::regex_search(file.lines[i], data))
                    members.push_back(i);
            }
            if (!isAbstract)
                continue;
            ++interfaces;
            for (const std::size_t line : members)
                ADD_FAILURE() << house::place(file, line) << "\n    belongs to who implements the interface";
        }
    }
    EXPECT_GT(interfaces, 3U) << "interfaces are no longer recognised";
}

}  // namespace
