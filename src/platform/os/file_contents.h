#pragma once

#include <cstdint>
#include <filesystem>
#include <optional>
#include <string>

namespace zel::os {

/// What tells that a file is still the same and unchanged, without opening it.
struct FileStamp {
    std::uint64_t device = 0;
    std::uint64_t number = 0;  ///< of the file within its device
    std::uint64_t size = 0;    ///< [bytes]
    std::int64_t changed = 0;  ///< time of the last write [ns]

    bool operator==(const FileStamp&) const = default;
    [[nodiscard]] bool isSameFile(const FileStamp& other) const { return device == other.device && number == other.number; }
};

/// Nothing when there is no such file, or it can't be seen.
std::optional<FileStamp> stampOf(const std::filesystem::path& file);

/// The first `most` bytes of a file; nothing when there is none.
///
/// Closing the file gives up every lock that this process holds on it: never to be used on a file that this process has open as a database.
/// @throws std::system_error  when it is there and can't be read
std::optional<std::string> contentsOf(const std::filesystem::path& file, std::size_t most = std::string::npos);

}  // namespace zel::os
