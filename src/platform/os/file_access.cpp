#include "platform/os/file_access.h"

#ifdef _WIN32
#include <process.h>
#else
#include <cerrno>
#include <charconv>
#include <csignal>
#include <fcntl.h>
#include <unistd.h>
#endif

namespace zel::os {

bool isWritable(const std::filesystem::path& file)
{
    using std::filesystem::perms;
    std::error_code error;
    const perms allowed = std::filesystem::status(file, error).permissions();
    return !error && (allowed & (perms::owner_write | perms::group_write | perms::others_write)) != perms::none;
}

void syncFolder(const std::filesystem::path& folder)
{
#ifdef _WIN32
    (void)folder;
#else
    const int descriptor = ::open(folder.empty() ? "." : folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    if (descriptor < 0)
        return;
    (void)::fsync(descriptor);
    ::close(descriptor);
#endif
}

CString processNumber()
{
#ifdef _WIN32
    return std::to_string(_getpid());
#else
    return std::to_string(::getpid());
#endif
}

bool isRunning(const CString& process)
{
#ifdef _WIN32
    (void)process;
    return true;
#else
    pid_t number = 0;
    const auto read = std::from_chars(process.data(), process.data() + process.size(), number);
    return read.ec == std::errc() && number > 0 && (::kill(number, 0) == 0 || errno != ESRCH);
#endif
}

}  // namespace zel::os
