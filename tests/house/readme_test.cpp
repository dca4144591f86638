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

TEST(HouseRules, EveryDialogHasANameForJournals)
{
    const auto commandLibrary = [](const house::File& file) {
        return house::isSource(file, "src/") && !house::isSource(file, "src/contract/") && !house::isSource(file, "src/platform/") &&
            !house::isSource(file, "src/desktop/");
    };
    const std::set<std::string> named = found("^ZEL_DIALOG(?:_NAME)?\\((\\w+)\\)", commandLibrary);
    const std::set<std::string> dialogs =
        found("^class (?:ZEL_CMD_API )?(C\\w+) final : public (?:CDlgMove|CDBDlgBase|CInternationalDlg|CGlobalModeless|(?:zel::)?\\w*(?:Dialog|Dlg)\\b)",
              commandLibrary);
    ASSERT_TRUE(dialogs.contains("CCMLoadCaseDlg") && dialogs.contains("CUnderSeisFactor"));
    for (const std::string& dialog : dialogs)
        EXPECT_TRUE(named.contains(dialog)) << dialog << ": put ZEL_DIALOG(" << dialog
                                            << ") into its source, or ZEL_DIALOG_NAME if no command opens it by itself";
}

/// The folders below `folder` that hold a source, themselves or below.
std::set<std::string> foldersOf(const std::string& folder)
{
    std::set<std::string> folders;
    for (const house::File& file : house::files()) {
        const std::size_t end = file.path.find('/', folder.size());
        if (house::isSource(file, folder) && end != std::string::npos)
            folders.insert(file.path.substr(folder.size(), end - folder.size()));
    }
    return folders;
}

/// The folders ("name/") that a line of the picture lists behind its label.
std::set<std::string> listedBehind(const std::string& label, const house::File& file)
{
    static const std::regex folder("(\\w+)/");
    std::set<std::string> folders;
    for (const std::string& line : file.lines) {
        if (!line.starts_with("   " + label))
            continue;
        const std::string rest = line.substr(3 + label.size());
        for (std::sregex_iterator at(rest.begin(), rest.end(), folder), end; at != end; ++at)
            folders.insert((*at)[1].str());
        return folders;
    }
    return folders;
}

TEST(HouseRules, ThePicturesShowTheFoldersThatAreThere)
{
    std::set<std::string> commandLibrary = foldersOf("src/");
    for (const char* other : {"cli", "contract", "desktop", "journal", "platform", "zel"})
        EXPECT_EQ(commandLibrary.erase(other), 1U) << other;
    std::size_t pictures = 0;
    for (const house::File& file : house::files()) {
        if (file.path != "README.md" && file.path != "docs/design.md")
            continue;
        ++pictures;
        EXPECT_EQ(listedBehind("ZEL_cmd", file), commandLibrary)
            << file.path << ": the folders of the command library in the picture (first) and in src/ (second)";
        EXPECT_EQ(listedBehind("platform/", file), foldersOf("src/platform/")) << file.path;
        EXPECT_EQ(listedBehind("contract/", file), foldersOf("src/contract/")) << file.path;
    }
    EXPECT_EQ(pictures, 2U);
}

TEST(HouseRules, TheDesignNamesFilesThatAreThere)
{
    std::set<std::string> paths;
    for (const house::File& file : house::files())
        paths.insert(file.path);
    const std::set<std::string> named =
        found("`((?:src|tests)/[\\w/]+\\.(?:h|cpp))`", [](const house::File& file) { return file.path == "docs/design.md" || file.path == "CONTRIBUTING.md"; });
    ASSERT_GE(named.size(), 10U);
    for (const std::string& path : named)
        EXPECT_TRUE(paths.contains(path)) << path << " is named in docs/design.md or CONTRIBUTING.md";
}

TEST(HouseRules, TheReadmeLeadsToEveryDocument)
{
    const std::set<std::string> listed = found("`(docs/[a-z-]+\\.md)`", [](const house::File& file) { return file.path == "README.md"; });
    for (const house::File& file : house::files())
        EXPECT_TRUE(!house::isIn(file, "docs/", {".md"}) || listed.contains(file.path)) << file.path << " is not in README.md, \"Read on\"";
}

}  // namespace
