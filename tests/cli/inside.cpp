#include "cli/inside.h"

#include "cli/run_program.h"

#include <filesystem>
#include <fstream>
#include <iostream>
#include <sstream>

#include <unistd.h>

namespace cli_test {

namespace {

/// Takes what is printed into a file: a text in memory would grow, and could fail with the memory of the program under test.
class FileBuffer {
public:
    FileBuffer() { m_buffer.open(m_path, std::ios::out | std::ios::binary | std::ios::trunc); }
    FileBuffer(const FileBuffer&) = delete;
    FileBuffer& operator=(const FileBuffer&) = delete;
    ~FileBuffer() { std::filesystem::remove(m_path); }

    std::streambuf* buffer() { return &m_buffer; }
    std::string text()
    {
        m_buffer.close();
        return contents(m_path);
    }

private:
    inline static int s_count = 0;
    std::filesystem::path m_path = std::filesystem::temp_directory_path() / ("zel-inside-" + std::to_string(getpid()) + "-" + std::to_string(++s_count));
    std::filebuf m_buffer;
};

}  // namespace

Outcome inside(const std::vector<std::string>& arguments, const std::string& input)
{
    std::vector<const char*> words{"zel"};
    for (const std::string& argument : arguments)
        words.push_back(argument.c_str());
    words.push_back(nullptr);
    std::istringstream in(input);
    FileBuffer out;
    FileBuffer error;
    std::streambuf* const formerIn = std::cin.rdbuf(in.rdbuf());
    std::streambuf* const formerOut = std::cout.rdbuf(out.buffer());
    std::streambuf* const formerError = std::cerr.rdbuf(error.buffer());
    const std::ios::iostate formerExceptions = std::cin.exceptions();
    Outcome run;
    run.code = zel::cli::runProgram(static_cast<int>(arguments.size()) + 1, words.data());
    std::cin.exceptions(std::ios::goodbit);
    std::cin.clear();
    std::cout.clear();
    std::cerr.clear();
    std::cin.exceptions(formerExceptions);
    std::cin.rdbuf(formerIn);
    std::cout.rdbuf(formerOut);
    std::cerr.rdbuf(formerError);
    run.out = out.text();
    run.error = error.text();
    return run;
}

}  // namespace cli_test
