// Preloaded into a program (LD_PRELOAD), it lets chosen system calls fail: what a broken or full disk does, or a kill at the worst moment. Only
// calls on files in one folder count, so that the program's own start is left alone.
//
//   ZEL_FAIL_FOLDER  the folder
//   ZEL_FAIL_CALL    which calls count: open, read, write, sync, truncate, rename, unlink or lock; all of them without it
//   ZEL_FAIL_AT      the number of the call that fails, from 1; 0 or missing: none does
//   ZEL_FAIL_ALWAYS  1: all later ones fail as well
//   ZEL_FAIL_WITH    the error, by its number; "kill": the process ends there
//   ZEL_FAIL_SPACE   bytes that may be written, as many as a full disk still takes (instead of the former)
//   ZEL_FAIL_REPORT  a file to which the end of the program adds lines "call count"
//
// A write that fails with an error other than ENOSPC, or with a kill, has written the first half of its bytes.

#include <algorithm>
#include <array>
#include <atomic>
#include <cerrno>
#include <csignal>
#include <cstdarg>
#include <cstddef>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <string>

#include <dlfcn.h>
#include <fcntl.h>
#include <sys/syscall.h>
#include <sys/types.h>
#include <sys/uio.h>
#include <unistd.h>

namespace {

enum class Call { open, read, write, sync, truncate, rename, unlink, lock };
constexpr std::array<const char*, 8> callNames{"open", "read", "write", "sync", "truncate", "rename", "unlink", "lock"};

const char* variable(const char* name)
{
    const char* value = std::getenv(name);
    return value != nullptr ? value : "";
}

struct Plan {
    std::string folder = variable("ZEL_FAIL_FOLDER");
    std::string call = variable("ZEL_FAIL_CALL");
    long at = std::atol(variable("ZEL_FAIL_AT"));
    bool always = *variable("ZEL_FAIL_ALWAYS") == '1';
    bool kills = std::strcmp(variable("ZEL_FAIL_WITH"), "kill") == 0;
    int error = std::atoi(variable("ZEL_FAIL_WITH"));
    bool limited = *variable("ZEL_FAIL_SPACE") != '\0';
    std::atomic<long> space = std::atol(variable("ZEL_FAIL_SPACE"));
    std::atomic<long> seen = 0;
    std::array<std::atomic<long>, callNames.size()> counts{};
};

Plan& plan()
{
    static Plan& the = *new Plan;  // lives to the end: calls come until then
    return the;
}

[[gnu::destructor]] void report()
{
    const char* file = variable("ZEL_FAIL_REPORT");
    if (*file == '\0')
        return;
    std::string lines;
    for (std::size_t i = 0; i < callNames.size(); ++i)
        lines += std::string(callNames[i]) + " " + std::to_string(plan().counts[i]) + "\n";
    const auto descriptor = static_cast<int>(syscall(SYS_openat, AT_FDCWD, file, O_WRONLY | O_CREAT | O_APPEND, 0644));
    syscall(SYS_write, descriptor, lines.data(), lines.size());
    syscall(SYS_close, descriptor);
}

bool watched(const char* path)
{
    const std::string& folder = plan().folder;
    return path != nullptr && !folder.empty() && std::strncmp(path, folder.c_str(), folder.size()) == 0;
}

bool watched(int descriptor)
{
    std::array<char, 4096> path{};
    const std::string link = "/proc/self/fd/" + std::to_string(descriptor);
    const long length = syscall(SYS_readlinkat, AT_FDCWD, link.c_str(), path.data(), path.size() - 1);
    return length > 0 && watched(path.data());
}

/// Counts a call on a watched file and says whether it is to fail.
bool fails(Call call)
{
    Plan& the = plan();
    const char* name = callNames[static_cast<std::size_t>(call)];
    ++the.counts[static_cast<std::size_t>(call)];
    if (!the.call.empty() && the.call != name)
        return false;
    const long number = ++the.seen;
    return the.at > 0 && (number == the.at || (the.always && number > the.at));
}

/// The end of a call that fails.
int failure()
{
    if (plan().kills)
        ::kill(getpid(), SIGKILL);
    errno = plan().error;
    return -1;
}

template <class Function> Function next(const char* name)
{
    return reinterpret_cast<Function>(dlsym(RTLD_NEXT, name));
}

/// Whether a call on a path or a descriptor is to fail.
template <class File> bool refused(Call call, File file)
{
    const int error = errno;
    const bool so = watched(file) && fails(call);
    errno = error;
    return so;
}

/// A write of `size` bytes, of which `put(n)` writes the first n.
template <class Put> ssize_t writeSome(int descriptor, std::size_t size, const Put& put)
{
    const int error = errno;
    const bool ours = watched(descriptor);
    const bool failing = ours && fails(Call::write);
    errno = error;
    if (failing) {
        if (plan().error != ENOSPC || plan().kills)
            (void)put(size / 2);
        return failure();
    }
    if (!ours || !plan().limited)
        return put(size);
    const long left = plan().space;
    if (left <= 0) {
        errno = ENOSPC;
        return -1;
    }
    const ssize_t written = put(std::min(size, static_cast<std::size_t>(left)));
    plan().space -= written;
    return written;
}

int openAt(const char* name, int folder, const char* path, int flags, mode_t mode)
{
    if (refused(Call::open, path))
        return failure();
    if (std::strncmp(name, "openat", 6) == 0)
        return next<int (*)(int, const char*, int, ...)>(name)(folder, path, flags, mode);
    return next<int (*)(const char*, int, ...)>(name)(path, flags, mode);
}

std::FILE* openStream(const char* name, const char* path, const char* mode)
{
    if (refused(Call::open, path)) {
        (void)failure();
        return nullptr;
    }
    return next<std::FILE* (*)(const char*, const char*)>(name)(path, mode);
}

/// The mode that stands behind `flags` in a call that makes a file.
#define ZEL_MODE(flags)                                                                                                                                        \
    mode_t mode = 0;                                                                                                                                           \
    if (((flags) & (O_CREAT | O_TMPFILE)) != 0) {                                                                                                              \
        va_list list;                                                                                                                                          \
        va_start(list, flags);                                                                                                                                 \
        mode = va_arg(list, mode_t);                                                                                                                           \
        va_end(list);                                                                                                                                          \
    }

int control(const char* name, int descriptor, int command, void* argument)
{
    const bool locking = (command == F_SETLK || command == F_SETLKW || command == F_OFD_SETLK) && static_cast<flock*>(argument)->l_type != F_UNLCK;
    if (locking && refused(Call::lock, descriptor))
        return failure();
    return next<int (*)(int, int, ...)>(name)(descriptor, command, argument);
}

}  // namespace

extern "C" {

int open(const char* path, int flags, ...)
{
    ZEL_MODE(flags)
    return openAt("open", AT_FDCWD, path, flags, mode);
}

int open64(const char* path, int flags, ...)
{
    ZEL_MODE(flags)
    return openAt("open64", AT_FDCWD, path, flags, mode);
}

int openat(int folder, const char* path, int flags, ...)
{
    ZEL_MODE(flags)
    return openAt("openat", folder, path, flags, mode);
}

int openat64(int folder, const char* path, int flags, ...)
{
    ZEL_MODE(flags)
    return openAt("openat64", folder, path, flags, mode);
}

std::FILE* fopen(const char* path, const char* mode)
{
    return openStream("fopen", path, mode);
}

std::FILE* fopen64(const char* path, const char* mode)
{
    return openStream("fopen64", path, mode);
}

ssize_t read(int descriptor, void* to, std::size_t size)
{
    return refused(Call::read, descriptor) ? failure() : next<ssize_t (*)(int, void*, std::size_t)>("read")(descriptor, to, size);
}

ssize_t readv(int descriptor, const iovec* parts, int count)
{
    return refused(Call::read, descriptor) ? failure() : next<ssize_t (*)(int, const iovec*, int)>("readv")(descriptor, parts, count);
}

ssize_t pread(int descriptor, void* to, std::size_t size, off_t place)
{
    return refused(Call::read, descriptor) ? failure() : next<ssize_t (*)(int, void*, std::size_t, off_t)>("pread")(descriptor, to, size, place);
}

ssize_t pread64(int descriptor, void* to, std::size_t size, off64_t place)
{
    return refused(Call::read, descriptor) ? failure() : next<ssize_t (*)(int, void*, std::size_t, off64_t)>("pread64")(descriptor, to, size, place);
}

ssize_t write(int descriptor, const void* from, std::size_t size)
{
    return writeSome(descriptor, size, [=](std::size_t n) { return next<ssize_t (*)(int, const void*, std::size_t)>("write")(descriptor, from, n); });
}

ssize_t writev(int descriptor, const iovec* parts, int count)
{
    std::size_t size = 0;
    for (int i = 0; i < count; ++i)
        size += parts[i].iov_len;
    return writeSome(descriptor, size, [=](std::size_t n) {
        if (n == size)
            return next<ssize_t (*)(int, const iovec*, int)>("writev")(descriptor, parts, count);
        std::string bytes;
        for (int i = 0; i < count; ++i)
            bytes.append(static_cast<const char*>(parts[i].iov_base), parts[i].iov_len);
        return next<ssize_t (*)(int, const void*, std::size_t)>("write")(descriptor, bytes.data(), n);
    });
}

ssize_t pwrite(int descriptor, const void* from, std::size_t size, off_t place)
{
    return writeSome(descriptor, size,
                     [=](std::size_t n) { return next<ssize_t (*)(int, const void*, std::size_t, off_t)>("pwrite")(descriptor, from, n, place); });
}

ssize_t pwrite64(int descriptor, const void* from, std::size_t size, off64_t place)
{
    return writeSome(descriptor, size,
                     [=](std::size_t n) { return next<ssize_t (*)(int, const void*, std::size_t, off64_t)>("pwrite64")(descriptor, from, n, place); });
}

int fsync(int descriptor)
{
    return refused(Call::sync, descriptor) ? failure() : next<int (*)(int)>("fsync")(descriptor);
}

int fdatasync(int descriptor)
{
    return refused(Call::sync, descriptor) ? failure() : next<int (*)(int)>("fdatasync")(descriptor);
}

int ftruncate(int descriptor, off_t size) noexcept
{
    return refused(Call::truncate, descriptor) ? failure() : next<int (*)(int, off_t)>("ftruncate")(descriptor, size);
}

int ftruncate64(int descriptor, off64_t size) noexcept
{
    return refused(Call::truncate, descriptor) ? failure() : next<int (*)(int, off64_t)>("ftruncate64")(descriptor, size);
}

int rename(const char* from, const char* to) noexcept
{
    return refused(Call::rename, from) ? failure() : next<int (*)(const char*, const char*)>("rename")(from, to);
}

int link(const char* from, const char* to) noexcept
{
    return refused(Call::rename, from) ? failure() : next<int (*)(const char*, const char*)>("link")(from, to);
}

int unlink(const char* path) noexcept
{
    return refused(Call::unlink, path) ? failure() : next<int (*)(const char*)>("unlink")(path);
}

int remove(const char* path) noexcept
{
    return refused(Call::unlink, path) ? failure() : next<int (*)(const char*)>("remove")(path);
}

int fcntl(int descriptor, int command, ...)
{
    va_list list;
    va_start(list, command);
    void* argument = va_arg(list, void*);
    va_end(list);
    return control("fcntl", descriptor, command, argument);
}

int fcntl64(int descriptor, int command, ...)
{
    va_list list;
    va_start(list, command);
    void* argument = va_arg(list, void*);
    va_end(list);
    return control("fcntl64", descriptor, command, argument);
}

}  // extern "C"
