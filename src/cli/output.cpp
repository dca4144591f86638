#include "cli/output.h"

#include "platform/modeldb/file_header.h"

#include <iostream>
#include <stdexcept>
#include <system_error>

namespace zel::cli {

Output::Output(const std::string& file) : m_name(file == "-" ? "standard output" : "\"" + file + "\"")
{
    if (file == "-")
        return;
    if (isModelFile(file))
        throw std::runtime_error(m_name + " is a model file, which would be lost. Give the result a name of its own.");
    try {
        m_file.emplace(file);
    } catch (const std::system_error& error) {
        throw std::runtime_error(m_name + " can't be written (" + error.code().message() + "). Check the folder and its permissions.");
    }
}

std::ostream& Output::stream()
{
    return m_file ? m_file->stream() : std::cout;
}

void Output::finish()
{
    const char* const advice = "; is the disk full?";
    if (!stream().flush())
        throw std::runtime_error(m_name + " can't be written" + advice);
    if (!m_file)
        return;
    try {
        m_file->finish();
    } catch (const std::system_error& error) {
        throw std::runtime_error(m_name + " can't be written (" + error.code().message() + ")" + advice);
    }
}

}  // namespace zel::cli
