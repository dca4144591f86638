#include "cli/input.h"

#include <fstream>
#include <iostream>
#include <iterator>
#include <stdexcept>

namespace zel::cli {

Input::Input(const std::string& file) : m_name(file == "-" ? "standard input" : "\"" + file + "\"")
{
    if (file == "-")
        return;
    std::error_code error;
    if (std::filesystem::is_directory(file, error))
        throw std::runtime_error(m_name + " is a folder. Give a file, or - for standard input.");
    m_file = std::make_unique<std::ifstream>(file, std::ios::binary);
    if (!*m_file)
        throw std::runtime_error(m_name + " can't be read. Check the name and its permissions.");
}

Input::~Input() = default;

std::istream& Input::stream()
{
    return m_file ? *m_file : std::cin;
}

std::string Input::text()
{
    return {std::istreambuf_iterator<char>(stream()), {}};
}

}  // namespace zel::cli
