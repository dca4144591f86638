#include "house/tree.h"

#include "build_paths.h"

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <sstream>

namespace house {

namespace {

namespace fs = std::filesystem;

bool isForeign(const fs::path& folder)
{
    const std::string name = folder.filename().string();
    return name == ".git" || name == "build" || name == ".cache" || name == "__pycache__";
}

std::vector<File> readTree()
{
    std::vector<File> all;
    const fs::path root = zel::test::sourceFolder();
    for (auto at = fs::recursive_directory_iterator(root); at != fs::recursive_directory_iterator(); ++at) {
        if (at->is_directory() && isForeign(at->path()))
            at.disable_recursion_pending();
        if (!at->is_regular_file())
            continue;
        std::ifstream stream(at->path(), std::ios::binary);
        const std::string text{std::istreambuf_iterator<char>(stream), {}};
        if (text.find('\0') != std::string::npos)
            continue;
        File file;
        file.path = fs::relative(at->path(), root).generic_string();
        std::istringstream lines(text);
        for (std::string line; std::getline(lines, line);)
            file.lines.push_back(line);
        all.push_back(file);
    }
    std::sort(all.begin(), all.end(), [](const File& a, const File& b) { return a.path < b.path; });
    return all;
}

}  // namespace

const std::vector<File>& files()
{
    static const std::vector<File> all = readTree();
    return all;
}

bool isIn(const File& file, const std::string& folder, const std::vector<std::string>& endings)
{
    return file.path.starts_with(folder) &&
        std::any_of(endings.begin(), endings.end(), [&file](const std::string& ending) { return file.path.ends_with(ending); });
}

bool isSource(const File& file, const std::string& folder)
{
    return isIn(file, folder, {".h", ".cpp"});
}

std::string place(const File& file, std::size_t line)
{
    return file.path + ":" + std::to_string(line + 1) + ": " + file.lines[line];
}

}  // namespace house
