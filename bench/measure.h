#pragma once

#include <chrono>
#include <filesystem>
#include <sqlite3.h>
#include <stdexcept>

/// What the benches share: time, a place for files, the checking of SQLite.
namespace zel::bench {

/// Time that some work takes [s].
template <class Work> double timed(Work&& work)
{
    const auto start = std::chrono::steady_clock::now();
    work();
    return std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count();
}

/// A path for a file that is not there.
inline std::filesystem::path scratch(const char* name)
{
    const std::filesystem::path path = std::filesystem::temp_directory_path() / name;
    for (const char* suffix : {"", "-wal", "-shm", "-journal"})
        std::filesystem::remove(path.string() + suffix);
    return path;
}

inline void check(int result)
{
    if (result != SQLITE_OK && result != SQLITE_DONE && result != SQLITE_ROW)
        throw std::runtime_error(sqlite3_errstr(result));
}

}  // namespace zel::bench
