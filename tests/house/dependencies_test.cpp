#include "house/tree.h"

#include <regex>
#include <set>
#include <string>

#include <gtest/gtest.h>

namespace {

/// What a build file looks for by find_package, find_library and find_program.
std::set<std::string> foundByTheBuild()
{
    const std::regex package(R"(^\s*find_package\((\w+))");
    const std::regex file(R"(^\s*find_(?:library|program)\(\w+ (?:NAMES )?([\w.+-]+))");
    std::set<std::string> names;
    for (const house::File& each : house::files()) {
        if (!each.path.ends_with("CMakeLists.txt") && !house::isIn(each, "cmake/", {".cmake"}))
            continue;
        for (const std::string& line : each.lines) {
            std::smatch match;
            if (std::regex_search(line, match, package) || std::regex_search(line, match, file))
                names.insert(match[1]);
        }
    }
    return names;
}

TEST(HouseRules, EveryDependencyOfTheBuildIsListedWithItsLicence)
{
    const std::regex row(R"(^\| `([^`]+)`[^|]*\|[^|]*`[^|]*\| *[\d:][^|]*\| *\w[^|]*\|)");
    std::set<std::string> listed;
    for (const house::File& each : house::files()) {
        if (each.path != "docs/dependencies.md")
            continue;
        for (const std::string& line : each.lines) {
            std::smatch match;
            if (std::regex_search(line, match, row))
                listed.insert(match[1]);
        }
    }
    const std::set<std::string> used = foundByTheBuild();
    ASSERT_FALSE(used.empty());
    EXPECT_EQ(listed, used) << "the tables of docs/dependencies.md (first) and what the build files find (second)";
}

}  // namespace
