#include "platform/os/terminal.h"

#include <algorithm>
#include <charconv>
#include <cstdlib>
#include <string_view>

#ifdef _WIN32
#include <io.h>
#else
#include <sys/ioctl.h>
#include <unistd.h>
#endif

namespace zel::os {

namespace {

constexpr std::size_t narrowest = 40;
constexpr std::size_t usual = 80;

std::size_t columnsOfEnvironment()
{
    const char* said = std::getenv("COLUMNS");
    std::size_t columns = 0;
    if (said != nullptr)
        std::from_chars(said, said + std::string_view(said).size(), columns);
    return columns;
}

}  // namespace

bool isErrorTerminal()
{
#ifdef _WIN32
    return _isatty(2) != 0;
#else
    return isatty(STDERR_FILENO) != 0;
#endif
}

std::size_t terminalWidth()
{
    std::size_t columns = 0;
#ifndef _WIN32
    winsize size{};
    if (ioctl(STDOUT_FILENO, TIOCGWINSZ, &size) == 0)
        columns = size.ws_col;
#endif
    if (columns == 0)
        columns = columnsOfEnvironment();
    return columns == 0 ? usual : std::max(columns, narrowest);
}

}  // namespace zel::os
