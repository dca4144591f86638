#pragma once

#include <filesystem>
#include <iosfwd>
#include <memory>

namespace zel::os {

/// Writes a file that appears under its name whole or not at all: until then its bytes have no name, so whatever ends the program leaves nothing
/// beside the target. Every whole file that the programs write is written by it.
///
/// Links are followed, and a file that is replaced keeps its permissions and, where the system allows it, its owner. What is there and no
/// regular file, as a pipe, is written straight into.
class FileWriter {
public:
    enum class Over {
        nothing,   ///< the name must be free
        existing,  ///< a file of that name is replaced
    };

    /// Removes what a killed program has left of the same target.
    /// @throws std::system_error  when the target can't be written: its folder is missing, permissions, a folder of that name
    explicit FileWriter(const std::filesystem::path& target);
    ~FileWriter();
    FileWriter(const FileWriter&) = delete;
    FileWriter& operator=(const FileWriter&) = delete;

    [[nodiscard]] std::ostream& stream();

    /// Makes the bytes safe on the disk and gives them their name.
    /// @throws std::system_error  the target is as it was; std::errc::file_exists when the name must be free and is not
    void finish(Over over = Over::existing);

private:
    class Sink;
    std::unique_ptr<Sink> m_sink;
};

}  // namespace zel::os
