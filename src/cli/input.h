#pragma once

#include <filesystem>
#include <iosfwd>
#include <memory>
#include <string>

namespace zel::cli {

/// A text file to read, or standard input for "-".
class Input {
public:
    /// @throws std::runtime_error  when the file can't be read
    explicit Input(const std::string& file);
    ~Input();
    Input(const Input&) = delete;
    Input& operator=(const Input&) = delete;

    [[nodiscard]] std::istream& stream();
    /// The whole rest.
    /// @throws std::runtime_error  when it can't be read to its end
    [[nodiscard]] std::string text();
    /// To be called at the end: a fault of the device looks like an end.
    /// @throws std::runtime_error  when not everything could be read
    void check();
    /// For messages: the file's name, or "standard input".
    [[nodiscard]] const std::string& name() const { return m_name; }

private:
    std::unique_ptr<std::istream> m_file;
    std::string m_name;
};

}  // namespace zel::cli
