#include "platform/os/file_writer.h"

#include "platform/os/file_access.h"

#include <algorithm>
#include <array>
#include <cerrno>
#include <ostream>
#include <streambuf>
#include <string>
#include <system_error>
#include <vector>

#ifdef _WIN32
#include <fstream>
#else
#include <csignal>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>
#endif

namespace zel::os {

namespace {

namespace fs = std::filesystem;

/// The file that a path leads to, through links; the last link may lead to nothing yet.
fs::path followed(fs::path path)
{
    constexpr int mostLinks = 40;
    std::error_code error;
    for (int i = 0; i < mostLinks && fs::is_symlink(fs::symlink_status(path, error)); ++i) {
        const fs::path to = fs::read_symlink(path, error);
        if (error)
            break;
        path = to.is_absolute() ? to : path.parent_path() / to;
    }
    return path;
}

fs::path folderOf(const fs::path& path)
{
    return path.has_parent_path() ? path.parent_path() : fs::path(".");
}

fs::path partName(const fs::path& target)
{
    return target.string() + "." + processNumber() + ".part";
}

/// Number of the process that left a file beside the target; empty when its name is none of ours.
std::string leavingProcess(const std::string& name, const std::string& target)
{
    if (!name.starts_with(target))
        return {};
    const std::string rest = name.substr(target.size());
    const std::string_view digits = "0123456789";
    const std::string former = ".new-";  // of versions that built a model beside its name
    const std::size_t from = rest.starts_with(former) ? former.size() : 1;
    const std::size_t end = std::min(rest.find_first_not_of(digits, from), rest.size());
    const std::string tail = rest.substr(end);
    const bool isPart = rest.starts_with('.') && from == 1 && tail == ".part";
    const bool isFormer = from == former.size() && (tail.empty() || tail == "-journal" || tail == "-wal" || tail == "-shm");
    return isPart || isFormer ? rest.substr(from, end - from) : std::string();
}

void removeLeftOvers(const fs::path& target)
{
    std::error_code error;
    std::vector<fs::path> found;
    for (fs::directory_iterator entry(folderOf(target), error), end; !error && entry != end; entry.increment(error)) {
        const std::string process = leavingProcess(entry->path().filename().string(), target.filename().string());
        if (!process.empty() && (process == processNumber() || !isRunning(process)))
            found.push_back(entry->path());
    }
    for (const fs::path& each : found)
        fs::remove(each, error);
}

[[noreturn]] void fail(int code)
{
    throw std::system_error(code, std::generic_category());
}

}  // namespace

#ifdef _WIN32

class FileWriter::Sink {
public:
    explicit Sink(const fs::path& target) : m_target(followed(target)), m_part(partName(m_target)), m_file(m_part, std::ios::binary | std::ios::trunc)
    {
        removeLeftOvers(m_target);
        if (!m_file)
            fail(EACCES);
    }
    Sink(const Sink&) = delete;
    Sink& operator=(const Sink&) = delete;
    ~Sink()
    {
        m_file.close();
        std::error_code ignored;
        fs::remove(m_part, ignored);
    }
    std::ostream& stream() { return m_file; }
    void finish(Over over)
    {
        m_file.close();
        if (!m_file)
            fail(ENOSPC);
        if (over == Over::nothing && fs::exists(m_target))
            fail(EEXIST);
        fs::rename(m_part, m_target);
    }

private:
    fs::path m_target;
    fs::path m_part;
    std::ofstream m_file;
};

#else

namespace {

/// No signal ends the program while it lives.
class SignalsHeld {
public:
    SignalsHeld()
    {
        sigset_t all;
        sigfillset(&all);
        pthread_sigmask(SIG_SETMASK, &all, &m_former);
    }
    SignalsHeld(const SignalsHeld&) = delete;
    SignalsHeld& operator=(const SignalsHeld&) = delete;
    ~SignalsHeld() { pthread_sigmask(SIG_SETMASK, &m_former, nullptr); }

private:
    sigset_t m_former{};
};

/// Writes into an open file; keeps the first error.
class DescriptorBuffer final : public std::streambuf {
public:
    explicit DescriptorBuffer(int descriptor) : m_descriptor(descriptor) { setp(m_buffer.data(), m_buffer.data() + m_buffer.size()); }
    [[nodiscard]] int error() const { return m_error; }

protected:
    int_type overflow(int_type letter) override
    {
        if (sync() != 0)
            return traits_type::eof();
        if (!traits_type::eq_int_type(letter, traits_type::eof()))
            sputc(traits_type::to_char_type(letter));
        return traits_type::not_eof(letter);
    }
    int sync() override
    {
        for (const char* at = pbase(); at < pptr() && m_error == 0;) {
            const ssize_t written = ::write(m_descriptor, at, static_cast<std::size_t>(pptr() - at));
            if (written >= 0)
                at += written;
            else if (errno != EINTR)
                m_error = errno;
        }
        setp(m_buffer.data(), m_buffer.data() + m_buffer.size());
        return m_error == 0 ? 0 : -1;
    }

private:
    int m_descriptor;
    int m_error = 0;
    std::array<char, 1U << 16U> m_buffer{};
};

constexpr mode_t usualMode = 0666;  // less what the user's mask takes away

/// A new file that has no name.
int openUnnamed(const fs::path& target, bool* canBeLinked)
{
#ifdef O_TMPFILE
    const int unnamed = ::open(folderOf(target).c_str(), O_TMPFILE | O_RDWR | O_CLOEXEC, usualMode);
    *canBeLinked = unnamed >= 0 && ::access("/proc/self/fd", X_OK) == 0;
    if (unnamed >= 0 || (errno != EOPNOTSUPP && errno != EISDIR && errno != EINVAL))
        return unnamed;
#endif
    *canBeLinked = false;  // a file system without them: a file whose name goes at once
    const SignalsHeld held;
    const fs::path part = partName(target);
    ::unlink(part.c_str());
    const int file = ::open(part.c_str(), O_RDWR | O_CREAT | O_EXCL | O_CLOEXEC, usualMode);
    if (file >= 0)
        ::unlink(part.c_str());
    return file;
}

/// Copies an open file to a new file of that name, safe on the disk.
int copyTo(const fs::path& name, int from, mode_t mode)
{
    const int to = ::open(name.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, mode);
    if (to < 0)
        return errno;
    int error = ::lseek(from, 0, SEEK_SET) == 0 ? 0 : errno;
    std::array<char, 1U << 16U> block{};
    while (error == 0) {
        const ssize_t got = ::read(from, block.data(), block.size());
        if (got == 0)
            break;
        if (got < 0 || ::write(to, block.data(), static_cast<std::size_t>(got)) != got)
            error = got < 0 ? errno : ENOSPC;
    }
    if (error == 0 && (::fchmod(to, mode) != 0 || ::fsync(to) != 0))
        error = errno;
    if (::close(to) != 0 && error == 0)
        error = errno;
    if (error != 0)
        ::unlink(name.c_str());
    return error;
}

}  // namespace

class FileWriter::Sink {
public:
    explicit Sink(const fs::path& target) : m_target(followed(target))
    {
        struct stat found {};
        m_exists = ::stat(m_target.c_str(), &found) == 0;
        if (m_exists && S_ISDIR(found.st_mode))
            fail(EISDIR);
        m_isStraight = m_exists && !S_ISREG(found.st_mode);
        if (m_exists && !m_isStraight && !isWritable(m_target))
            fail(EACCES);
        if (!m_isStraight)
            removeLeftOvers(m_target);
        m_descriptor = m_isStraight ? ::open(m_target.c_str(), O_WRONLY | O_CLOEXEC) : openUnnamed(m_target, &m_canBeLinked);
        if (m_descriptor < 0)
            fail(errno);
        if (m_exists && !m_isStraight) {
            (void)!::fchown(m_descriptor, found.st_uid, found.st_gid);  // only an administrator may
            ::fchmod(m_descriptor, found.st_mode & 07777U);
        }
        m_buffer = std::make_unique<DescriptorBuffer>(m_descriptor);
        m_stream = std::make_unique<std::ostream>(m_buffer.get());
    }
    Sink(const Sink&) = delete;
    Sink& operator=(const Sink&) = delete;
    ~Sink() { ::close(m_descriptor); }

    std::ostream& stream() { return *m_stream; }

    void finish(Over over)
    {
        if (!m_stream->flush())
            fail(m_buffer->error() != 0 ? m_buffer->error() : EIO);
        if (m_isStraight)
            return;
        if (::fsync(m_descriptor) != 0)
            fail(errno);
        const int error = name(over);
        if (error != 0)
            fail(error);
        syncFolder(folderOf(m_target));
    }

private:
    /// Gives the bytes their name; 0, or what the system says.
    int name(Over over)
    {
        const SignalsHeld held;
        if (m_canBeLinked && over == Over::nothing)
            return linkTo(m_target);
        const fs::path part = partName(m_target);
        ::unlink(part.c_str());
        struct stat own {};
        ::fstat(m_descriptor, &own);
        int error = m_canBeLinked ? linkTo(part) : copyTo(part, m_descriptor, own.st_mode & 07777U);
        if (error != 0)
            return error;
        if (over == Over::existing)
            error = ::rename(part.c_str(), m_target.c_str()) == 0 ? 0 : errno;
        else if (::link(part.c_str(), m_target.c_str()) != 0)
            error = errno == EPERM || errno == EOPNOTSUPP ? renameToFreeName(part) : errno;  // a file system without hard links
        ::unlink(part.c_str());
        return error;
    }
    int renameToFreeName(const fs::path& part)
    {
        if (::access(m_target.c_str(), F_OK) == 0)
            return EEXIST;
        return ::rename(part.c_str(), m_target.c_str()) == 0 ? 0 : errno;
    }
    int linkTo(const fs::path& name)
    {
        const std::string own = "/proc/self/fd/" + std::to_string(m_descriptor);
        return ::linkat(AT_FDCWD, own.c_str(), AT_FDCWD, name.c_str(), AT_SYMLINK_FOLLOW) == 0 ? 0 : errno;
    }

    fs::path m_target;
    bool m_exists = false;
    bool m_isStraight = false;  ///< a pipe or the like, which takes the bytes as they come
    bool m_canBeLinked = false;
    int m_descriptor = -1;
    std::unique_ptr<DescriptorBuffer> m_buffer;
    std::unique_ptr<std::ostream> m_stream;
};

#endif

FileWriter::FileWriter(const std::filesystem::path& target) : m_sink(std::make_unique<Sink>(target)) {}

FileWriter::~FileWriter() = default;

std::ostream& FileWriter::stream()
{
    return m_sink->stream();
}

void FileWriter::finish(Over over)
{
    m_sink->finish(over);
}

}  // namespace zel::os
