#include "house/tree.h"

#include "platform/messages/message_catalogue.h"

#include <algorithm>
#include <map>
#include <regex>
#include <set>
#include <string>
#include <vector>

#include <gtest/gtest.h>

namespace {

using house::File;

struct Layer {
    const char* folder;
    std::vector<std::string> mayInclude;       ///< beginnings of paths from src/
    std::vector<std::string> mayUseLibraries;  ///< beginnings of <...> beyond the standard library
};

const std::vector<std::string> commandLibrary{"contract/", "command/", "loadcomb/", "load/", "dynamic/", "property/", "support/", "model/"};

std::vector<std::string> with(std::vector<std::string> list, const std::vector<std::string>& more)
{
    list.insert(list.end(), more.begin(), more.end());
    return list;
}

// Which folder may know what: the arrows of the build file, include by include.
const Layer layers[] = {
    {"src/contract/forms/", {"contract/"}, {"muParser"}},
    {"src/contract/", {"contract/"}, {}},
    // Within the command library too they run one way: every room knows command/, and combinations know the sets that they read.
    {"src/command/", {"contract/", "command/"}, {}},
    {"src/loadcomb/", {"contract/", "command/", "load/", "loadcomb/"}, {}},
    {"src/object_style/", {"contract/", "command/guarded.h", "object_style/"}, {}},
    {"src/load/", {"contract/", "command/", "load/"}, {}},
    {"src/dynamic/", {"contract/", "command/", "dynamic/"}, {}},
    {"src/property/", {"contract/", "command/", "property/"}, {}},
    {"src/support/", {"contract/", "command/", "support/"}, {}},
    {"src/model/", {"contract/", "command/", "model/"}, {}},
    {"src/platform/messages/", {"contract/", "platform/messages/"}, {}},
    {"src/platform/catalogue/", {"contract/", "platform/catalogue/"}, {}},
    {"src/platform/forms/", {"contract/", "platform/"}, {}},
    {"src/platform/modeldb/", {"contract/", "platform/"}, {"sqlite3.h", "xxhash.h", "nlohmann/"}},
    {"src/platform/sections/", {"contract/", "platform/sections/"}, {"Eigen/"}},
    {"src/platform/springs/", {"contract/", "platform/springs/"}, {}},
    {"src/platform/os/", {"contract/", "platform/os/"}, {""}},  // any system header: this is their place
    {"src/journal/", with(commandLibrary, {"platform/", "journal/"}), {"nlohmann/"}},
    {"src/cli/", with(commandLibrary, {"platform/", "journal/", "cli/"}), {"CLI/", "nlohmann/"}},
    {"src/zel/", {"cli/"}, {}},
    {"src/desktop/", with(commandLibrary, {"platform/", "journal/", "desktop/"}), {"Q", "nlohmann/"}},
};

const Layer* layerOf(const File& file)
{
    for (const Layer& layer : layers) {
        if (file.path.starts_with(layer.folder))
            return &layer;
    }
    return nullptr;
}

bool startsWithOneOf(const std::string& text, const std::vector<std::string>& beginnings)
{
    return std::any_of(beginnings.begin(), beginnings.end(), [&text](const std::string& beginning) { return text.starts_with(beginning); });
}

TEST(HouseRules, EveryIncludeFollowsAnArrow)
{
    const std::regex include("^\\s*#\\s*include\\s+([<\"])([^>\"]+)[>\"]");
    const std::regex standardHeader("[a-z_0-9]+");
    for (const File& file : house::files()) {
        if (!house::isSource(file, "src/"))
            continue;
        const Layer* layer = layerOf(file);
        ASSERT_NE(layer, nullptr) << file.path << " lies in no layer: add its folder to the list";
        for (std::size_t i = 0; i < file.lines.size(); ++i) {
            std::smatch match;
            if (file.lines[i].find("include") == std::string::npos || !std::regex_search(file.lines[i], match, include))
                continue;
            const std::string target = match[2];
            if (match[1] == "\"")
                EXPECT_TRUE(startsWithOneOf(target, layer->mayInclude)) << house::place(file, i) << "\n    " << layer->folder << " may not know it";
            else
                EXPECT_TRUE(std::regex_match(target, standardHeader) || startsWithOneOf(target, layer->mayUseLibraries))
                    << house::place(file, i) << "\n    " << layer->folder << " may not use this library";
        }
    }
}

TEST(HouseRules, HeavyHeadersStandInOneFile)
{
    std::vector<std::string> users;
    for (const File& file : house::files()) {
        if (house::isSource(file, "src/") &&
            std::any_of(file.lines.begin(), file.lines.end(), [](const std::string& line) { return line.starts_with("#include <CLI/"); }))
            users.push_back(file.path);
    }
    EXPECT_LE(users.size(), 1U) << "CLI11 takes seconds to compile; " << (users.empty() ? "" : users.back());
}

TEST(HouseRules, HeadersAreReadOnce)
{
    for (const File& file : house::files()) {
        if (!house::isIn(file, "src/", {".h"}))
            continue;
        ASSERT_FALSE(file.lines.empty()) << file.path;
        EXPECT_EQ(file.lines.front(), "#pragma once") << file.path;
    }
}

TEST(HouseRules, AFileHoldsOneThing)
{
    for (const File& file : house::files()) {
        EXPECT_TRUE(!house::isSource(file, "") || file.lines.size() <= 800) << file.path << " is probably two things: " << file.lines.size() << " lines";
    }
}

TEST(HouseRules, FilesAreNamedInSnakeCase)
{
    const std::regex name("([a-z0-9_]+/)*[a-z0-9_]+\\.(h|cpp)");
    for (const File& file : house::files()) {
        EXPECT_TRUE(!house::isSource(file, "") || std::regex_match(file.path, name)) << file.path;
    }
}

TEST(HouseRules, EveryFolderOfSourcesSaysInTenLinesWhatLivesThere)
{
    std::set<std::string> folders;
    std::map<std::string, std::size_t> readmes;
    for (const File& file : house::files()) {
        const std::string folder = file.path.substr(0, file.path.find_last_of('/') + 1);
        if (house::isSource(file, "src/"))
            folders.insert(folder);
        if (file.path == folder + "README.md")
            readmes[folder] = file.lines.size();
    }
    ASSERT_FALSE(folders.empty());
    for (const std::string& folder : folders) {
        const auto readme = readmes.find(folder);
        if (readme == readmes.end())
            ADD_FAILURE() << folder << "README.md is missing";
        else
            EXPECT_LE(readme->second, 10U) << folder << "README.md";
    }
}

TEST(HouseRules, EveryMessageKeyInTheSourcesHasAText)
{
    const std::vector<std::string> known = zel::MessageCatalogue::builtIn().keys();
    const std::regex literal("\"(IDS_[A-Za-z0-9_]+)\"");
    std::size_t found = 0;
    for (const File& file : house::files()) {
        if (!house::isSource(file, "src/"))
            continue;
        for (std::size_t i = 0; i < file.lines.size(); ++i) {
            const std::string& line = file.lines[i];
            if (line.find("IDS_") == std::string::npos)
                continue;
            for (std::sregex_iterator at(line.begin(), line.end(), literal), end; at != end; ++at, ++found)
                EXPECT_TRUE(std::binary_search(known.begin(), known.end(), (*at)[1].str())) << house::place(file, i) << "\n    has no text in en.po";
        }
    }
    EXPECT_GT(found, 0U) << "the sources use messages";
}

}  // namespace
