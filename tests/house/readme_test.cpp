#include "house/tree.h"

#include <regex>
#include <set>
#include <string>

#include <gtest/gtest.h>

namespace {

/// Every first group of `pattern` in the lines of the files that pass `chosen`.
std::set<std::string> found(const std::string& pattern, bool (*chosen)(const house::File&))
{
    const std::regex expression(pattern);
    std::set<std::string> names;
    for (const house::File& file : house::files()) {
        if (!chosen(file))
            continue;
        for (const std::string& line : file.lines) {
            for (std::sregex_iterator at(line.begin(), line.end(), expression), end; at != end; ++at)
                names.insert((*at)[1].str());
        }
    }
    return names;
}

TEST(HouseRules, TheReadmeListsTheFormsThatAreThere)
{
    std::set<std::string> built = found("^ZEL_DIALOG\\((\\w+)\\)", [](const house::File& file) { return house::isIn(file, "src/", {".cpp"}); });
    built.merge(found("ExportedDialog\\{\"(\\w+)\"", [](const house::File& file) { return file.path == "src/command/exported_dialogs.h"; }));
    const std::set<std::string> listed = found("^\\| `(C\\w+)`", [](const house::File& file) { return file.path == "README.md"; });

    ASSERT_FALSE(built.empty());
    EXPECT_EQ(listed, built) << "the table \"Forms\" in README.md (first) and the forms in src/ (second)";
}

TEST(HouseRules, TheReadmeLeadsToEveryDocument)
{
    const std::set<std::string> listed = found("`(docs/[a-z-]+\\.md)`", [](const house::File& file) { return file.path == "README.md"; });
    for (const house::File& file : house::files())
        EXPECT_TRUE(!house::isIn(file, "docs/", {".md"}) || listed.contains(file.path)) << file.path << " is not in README.md, \"Read on\"";
}

}  // namespace
