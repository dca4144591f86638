#pragma once

#include "platform/os/file_writer.h"

#include <iosfwd>
#include <optional>
#include <string>

namespace zel::cli {

/// Where a job writes its result: standard output for "-", else a file that appears under its name, whole, by `finish`. A model file is never
/// written over.
class Output {
public:
    /// @throws std::runtime_error  when the file can't be written
    explicit Output(const std::string& file);

    [[nodiscard]] std::ostream& stream();

    /// Ends the writing. Without it a file stays as it was.
    /// @throws std::runtime_error  when not everything could be written
    void finish();

private:
    std::string m_name;  ///< for messages
    std::optional<os::FileWriter> m_file;
};

}  // namespace zel::cli
