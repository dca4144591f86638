#include "cli/input.h"

#include <array>
#include <cstdio>
#include <fstream>
#include <iostream>
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
    std::string all;
    std::array<char, 65536> part{};
    while (stream().read(part.data(), part.size()) || stream().gcount() > 0)
        all.append(part.data(), static_cast<std::size_t>(stream().gcount()));
    check();
    return all;
}

void Input::check()
{
    const bool broken = m_file ? m_file->bad() : std::cin.bad() || std::ferror(stdin) != 0;
    if (broken)
        throw std::runtime_error(m_name + " can't be read to its end: the device reports a fault.");
}

}  // namespace zel::cli
