#include "cli/output.h"

#include "platform/os/file_access.h"

#include <fstream>
#include <iostream>
#include <stdexcept>

namespace zel::cli {

Output::Output(const std::string& file)
{
    if (file == "-")
        return;
    m_path = file;
    m_unfinished = file + "." + os::processNumber() + ".part";
    m_file = std::make_unique<std::ofstream>(m_unfinished, std::ios::binary | std::ios::trunc);
    if (!*m_file)
        throw std::runtime_error("\"" + file + "\" can't be written. Check the folder and its permissions.");
}

Output::~Output()
{
    if (!m_file)
        return;
    m_file.reset();
    std::error_code ignored;
    std::filesystem::remove(m_unfinished, ignored);
}

std::ostream& Output::stream()
{
    return m_file ? *m_file : std::cout;
}

void Output::finish()
{
    if (!stream().flush())
        throw std::runtime_error((m_file ? "\"" + m_path.string() + "\"" : std::string("standard output")) + " can't be written; is the disk full?");
    if (!m_file)
        return;
    m_file.reset();
    std::filesystem::rename(m_unfinished, m_path);
}

}  // namespace zel::cli
