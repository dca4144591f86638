#include "platform/modeldb/open_files.h"

#include "platform/os/file_contents.h"

#include <algorithm>
#include <vector>

namespace zel::openFiles {

namespace {

struct Entry {
    Database* database;
    os::FileStamp stamp;
};

std::vector<Entry>& entries()
{
    static std::vector<Entry> all;
    return all;
}

}  // namespace

void enter(Database& database, const std::filesystem::path& path)
{
    if (const std::optional<os::FileStamp> stamp = os::stampOf(path))
        entries().push_back({&database, *stamp});
}

void leave(const Database& database)
{
    std::erase_if(entries(), [&](const Entry& entry) { return entry.database == &database; });
}

Database* find(const std::filesystem::path& path)
{
    const std::optional<os::FileStamp> stamp = os::stampOf(path);
    const auto found = std::find_if(entries().begin(), entries().end(), [&](const Entry& entry) { return stamp && entry.stamp.isSameFile(*stamp); });
    return found == entries().end() ? nullptr : found->database;
}

}  // namespace zel::openFiles
