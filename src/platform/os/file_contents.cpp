#include "platform/os/file_contents.h"

#ifdef _WIN32
#include <fstream>
#else
#include <algorithm>
#include <cerrno>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>
#endif
#include <system_error>

namespace zel::os {

#ifdef _WIN32

std::optional<FileStamp> stampOf(const std::filesystem::path& file)
{
    std::error_code error;
    FileStamp stamp;
    stamp.number = std::filesystem::hash_value(std::filesystem::weakly_canonical(file, error));
    stamp.size = std::filesystem::file_size(file, error);
    if (error)
        return {};
    stamp.changed = std::filesystem::last_write_time(file, error).time_since_epoch().count();
    return stamp;
}

std::optional<std::string> contentsOf(const std::filesystem::path& file, std::size_t most)
{
    std::error_code error;
    const std::uintmax_t size = std::filesystem::file_size(file, error);
    if (error == std::errc::no_such_file_or_directory)
        return {};
    std::string bytes(error ? 0 : std::min<std::uintmax_t>(size, most), '\0');
    std::ifstream stream(file, std::ios::binary);
    if (error || !stream.read(bytes.data(), static_cast<std::streamsize>(bytes.size())))
        throw std::system_error(std::make_error_code(std::errc::io_error));
    return bytes;
}

#else

namespace {

class Descriptor {
public:
    explicit Descriptor(int number) : m_number(number) {}
    Descriptor(const Descriptor&) = delete;
    Descriptor& operator=(const Descriptor&) = delete;
    ~Descriptor()
    {
        if (m_number >= 0)
            ::close(m_number);
    }
    [[nodiscard]] int number() const { return m_number; }

private:
    int m_number;
};

}  // namespace

std::optional<FileStamp> stampOf(const std::filesystem::path& file)
{
    struct stat found {};
    if (::stat(file.c_str(), &found) != 0)
        return {};
#ifdef __APPLE__
    const timespec& time = found.st_mtimespec;
#else
    const timespec& time = found.st_mtim;
#endif
    constexpr std::int64_t second = 1'000'000'000;
    return FileStamp{static_cast<std::uint64_t>(found.st_dev), static_cast<std::uint64_t>(found.st_ino), static_cast<std::uint64_t>(found.st_size),
                     static_cast<std::int64_t>(time.tv_sec) * second + time.tv_nsec};
}

std::optional<std::string> contentsOf(const std::filesystem::path& file, std::size_t most)
{
    const Descriptor opened(::open(file.c_str(), O_RDONLY | O_CLOEXEC));
    if (opened.number() < 0 && errno == ENOENT)
        return {};
    struct stat found {};
    if (opened.number() < 0 || ::fstat(opened.number(), &found) != 0)
        throw std::system_error(errno, std::generic_category());
    constexpr std::size_t block = std::size_t{1} << 20U;
    std::string bytes;
    bytes.reserve(std::min(most, static_cast<std::size_t>(found.st_size) + 1));
    while (bytes.size() < most) {
        const std::size_t had = bytes.size();
        const std::size_t wanted = std::min({block, most - had, std::max<std::size_t>(bytes.capacity() - had, 1)});
        bytes.resize(had + wanted);
        const ssize_t got = ::read(opened.number(), bytes.data() + had, wanted);
        if (got < 0 && errno != EINTR)
            throw std::system_error(errno, std::generic_category());
        bytes.resize(had + static_cast<std::size_t>(std::max<ssize_t>(got, 0)));
        if (got == 0)
            break;
    }
    return bytes;
}

#endif

}  // namespace zel::os
