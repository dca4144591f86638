#pragma once

#include <filesystem>
#include <iosfwd>
#include <memory>
#include <string>

namespace zel::cli {

/// Where a job writes its result: standard output for "-", else a file that appears under its name, whole, by `finish`.
class Output {
public:
    /// @throws std::runtime_error  when the file can't be written
    explicit Output(const std::string& file);
    ~Output();
    Output(const Output&) = delete;
    Output& operator=(const Output&) = delete;

    [[nodiscard]] std::ostream& stream();

    /// Ends the writing. Without it a file stays as it was.
    /// @throws std::runtime_error  when not everything could be written
    void finish();

private:
    std::filesystem::path m_path;
    std::filesystem::path m_unfinished;
    std::unique_ptr<std::ostream> m_file;
};

}  // namespace zel::cli
