#include "platform/modeldb/memory_files.h"

#include <algorithm>
#include <cstring>
#include <map>
#include <new>

namespace zel {

namespace {

constexpr const char* vfsName = "zel-memory";
constexpr const char* logSuffix = "-wal";
constexpr const char* journalSuffix = "-journal";

/// The files by name. SQLite is used from one thread.
std::map<std::string, std::string, std::less<>>& files()
{
    static std::map<std::string, std::string, std::less<>> all;
    return all;
}

struct File {
    sqlite3_file base;
    std::string* bytes;
};

std::string& bytesOf(sqlite3_file* file)
{
    return *reinterpret_cast<File*>(file)->bytes;
}

int readBytes(sqlite3_file* file, void* to, int size, sqlite3_int64 at)
{
    const std::string& bytes = bytesOf(file);
    const auto wanted = static_cast<std::size_t>(size);
    const std::size_t from = std::min(static_cast<std::size_t>(at), bytes.size());
    const std::size_t got = std::min(wanted, bytes.size() - from);
    std::memcpy(to, bytes.data() + from, got);
    std::memset(static_cast<char*>(to) + got, 0, wanted - got);
    return got == wanted ? SQLITE_OK : SQLITE_IOERR_SHORT_READ;
}

int writeBytes(sqlite3_file* file, const void* from, int size, sqlite3_int64 at)
{
    std::string& bytes = bytesOf(file);
    const std::size_t end = static_cast<std::size_t>(at) + static_cast<std::size_t>(size);
    try {
        if (bytes.size() < end)
            bytes.resize(end);
    } catch (const std::bad_alloc&) {
        return SQLITE_IOERR_NOMEM;
    }
    std::memcpy(bytes.data() + at, from, static_cast<std::size_t>(size));
    return SQLITE_OK;
}

int truncate(sqlite3_file* file, sqlite3_int64 size)
{
    std::string& bytes = bytesOf(file);
    bytes.resize(std::min(bytes.size(), static_cast<std::size_t>(size)));
    return SQLITE_OK;
}

int fileSize(sqlite3_file* file, sqlite3_int64* size)
{
    *size = static_cast<sqlite3_int64>(bytesOf(file).size());
    return SQLITE_OK;
}

int checkReservedLock(sqlite3_file* /*file*/, int* result)
{
    *result = 0;
    return SQLITE_OK;
}

int nothing(sqlite3_file* /*file*/, int /*level*/)
{
    return SQLITE_OK;
}

int zero(sqlite3_file* /*file*/)
{
    return 0;
}

int fileControl(sqlite3_file* /*file*/, int /*what*/, void* /*argument*/)
{
    return SQLITE_NOTFOUND;
}

const sqlite3_io_methods methods{1,           zero, readBytes, writeBytes, truncate, nothing, fileSize, nothing, nothing, checkReservedLock,
                                 fileControl, zero, zero,      nullptr,    nullptr,  nullptr, nullptr,  nullptr, nullptr};

int openFile(sqlite3_vfs* /*vfs*/, const char* name, sqlite3_file* file, int flags, int* outFlags)
{
    file->pMethods = nullptr;
    if (name == nullptr)  // temporary tables are kept in SQLite's own memory
        return SQLITE_CANTOPEN;
    try {
        auto found = files().find(std::string_view(name));
        if (found == files().end() && (flags & SQLITE_OPEN_CREATE) == 0)
            return SQLITE_CANTOPEN;
        if (found == files().end())
            found = files().emplace(name, std::string()).first;
        reinterpret_cast<File*>(file)->bytes = &found->second;
    } catch (const std::bad_alloc&) {
        return SQLITE_NOMEM;
    }
    file->pMethods = &methods;
    if (outFlags != nullptr)
        *outFlags = flags;
    return SQLITE_OK;
}

int removeFile(sqlite3_vfs* /*vfs*/, const char* name, int /*syncFolder*/)
{
    const auto found = files().find(std::string_view(name));
    if (found == files().end())
        return SQLITE_IOERR_DELETE_NOENT;
    files().erase(found);
    return SQLITE_OK;
}

int access(sqlite3_vfs* /*vfs*/, const char* name, int /*flags*/, int* result)
{
    *result = static_cast<int>(files().contains(std::string_view(name)));
    return SQLITE_OK;
}

int fullPath(sqlite3_vfs* /*vfs*/, const char* name, int size, char* out)
{
    sqlite3_snprintf(size, out, "%s", name);
    return SQLITE_OK;
}

/// Registers the memory as a place for files, once.
void registerVfs()
{
    static sqlite3_vfs vfs = [] {
        sqlite3_vfs made = *sqlite3_vfs_find(nullptr);  // clock, random numbers and sleep are the system's
        made.iVersion = 1;
        made.szOsFile = sizeof(File);
        made.pNext = nullptr;
        made.zName = vfsName;
        made.xOpen = openFile;
        made.xDelete = removeFile;
        made.xAccess = access;
        made.xFullPathname = fullPath;
        return made;
    }();
    static const int registered = sqlite3_vfs_register(&vfs, 0);
    if (registered != SQLITE_OK)
        throw SqliteError(registered, "memory can't be used as a file");
}

}  // namespace

MemoryFiles::MemoryFiles(Bytes bytes)
{
    static std::uint64_t count = 0;
    m_name = "zel-" + std::to_string(++count);
    files()[m_name] = std::move(bytes.database);
    if (!bytes.log.empty())
        files()[m_name + logSuffix] = std::move(bytes.log);
    if (!bytes.journal.empty())
        files()[m_name + journalSuffix] = std::move(bytes.journal);
}

MemoryFiles::~MemoryFiles()
{
    for (const char* suffix : {"", logSuffix, journalSuffix})
        files().erase(m_name + suffix);
}

std::unique_ptr<Database> MemoryFiles::open() const
{
    registerVfs();
    auto database = std::make_unique<Database>(m_name, SQLITE_OPEN_READWRITE, vfsName);
    database->prepareForModel();
    return database;
}

const std::string& MemoryFiles::database() const
{
    return files().at(m_name);
}

}  // namespace zel
