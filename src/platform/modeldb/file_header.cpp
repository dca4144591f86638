#include "platform/modeldb/file_header.h"

#include "platform/modeldb/file_format.h"
#include "platform/modeldb/file_refusal.h"
#include "platform/modeldb/model_copy.h"
#include "platform/modeldb/open_files.h"
#include "platform/os/file_contents.h"

#include <cstdint>
#include <string>
#include <string_view>
#include <system_error>

namespace zel {

namespace {

using Reason = FileRefusal::Reason;

// The header of an SQLite database file: https://www.sqlite.org/fileformat.html, section 1.3. Numbers are big-endian.
constexpr std::size_t headerSize = 100;
constexpr std::string_view magic("SQLite format 3\0", 16);
constexpr std::size_t pageSizeAt = 16;
constexpr std::size_t writeVersionAt = 18;
constexpr std::size_t readVersionAt = 19;
constexpr std::size_t changeCounterAt = 24;
constexpr std::size_t pageCountAt = 28;
constexpr std::size_t userVersionAt = 60;
constexpr std::size_t applicationIdAt = 68;
constexpr std::size_t validForAt = 92;

std::uint32_t number(const std::string& header, std::size_t at, std::size_t bytes)
{
    std::uint32_t value = 0;
    for (std::size_t i = 0; i < bytes; ++i)
        value = value << 8U | static_cast<unsigned char>(header[at + i]);
    return value;
}

bool isModelHeader(const std::string& header)
{
    return header.size() >= headerSize && header.starts_with(magic) && number(header, applicationIdAt, 4) == static_cast<std::uint32_t>(applicationId);
}

std::string readHeader(const std::filesystem::path& path)
{
    try {
        return os::contentsOf(path, headerSize).value_or("");
    } catch (const std::system_error& error) {
        const bool forbidden = error.code() == std::errc::permission_denied;
        throw FileRefusal(forbidden ? Reason::readOnly : Reason::failed, path,
                          "can't be read (" + error.code().message() + "). Check " + (forbidden ? "its permissions." : "the disk."));
    }
}

void checkSize(const std::filesystem::path& path, const std::string& header, std::uintmax_t size)
{
    const std::uint32_t stored = number(header, pageSizeAt, 2);
    const std::uint32_t pageSize = stored == 1 ? 65536 : stored;
    const bool power = pageSize >= 512 && (pageSize & (pageSize - 1)) == 0;
    const bool counted = number(header, changeCounterAt, 4) == number(header, validForAt, 4);
    const bool whole = power && size % pageSize == 0 && (!counted || size / pageSize == number(header, pageCountAt, 4));
    if (!power || (!whole && !hasCompanions(path)))  // with a log beside it, a crash has left work for SQLite to finish
        throw FileRefusal(Reason::damaged, path, "is damaged: it is not as long as it says. Restore it from a copy.");
}

}  // namespace

void checkFileHeader(const std::filesystem::path& path)
{
    std::error_code error;
    const std::filesystem::file_status status = std::filesystem::status(path, error);
    if (!std::filesystem::exists(status)) {
        const std::filesystem::path folder = path.parent_path();
        if (!folder.empty() && !std::filesystem::is_directory(folder, error))
            throw FileRefusal(Reason::missing, path, "can't be opened: the folder \"" + folder.string() + "\" does not exist. Check the path.");
        throw FileRefusal(Reason::missing, path, "does not exist. Check the path, or make a new model with \"zel new\".");
    }
    if (!std::filesystem::is_regular_file(status))
        throw FileRefusal(Reason::notAModel, path, "is not a file. Give the path of a model file (*.qvx).");

    if (openFiles::find(path) != nullptr)
        return;  // it was looked at when it was opened
    const std::string header = readHeader(path);
    const std::uintmax_t size = std::filesystem::file_size(path, error);
    if (header.empty())
        throw FileRefusal(Reason::notAModel, path, "is empty, so it is not a model file. Make a new model under another name, or delete the file first.");
    if (header.size() < headerSize || !header.starts_with(magic))
        throw FileRefusal(Reason::notAModel, path, "is not a model file. Choose a file that was made as a model (*.qvx).");
    if (!isModelHeader(header))
        throw FileRefusal(Reason::notAModel, path, "is a database of another program, not a model file. Choose a file that was made as a model (*.qvx).");

    const auto schema = static_cast<std::int64_t>(number(header, userVersionAt, 4));
    if (schema > schemaVersion)
        throw FileRefusal(Reason::newer, path,
                          "was written by a newer version of the program (file version " + std::to_string(schema) + ", this program reads up to " +
                              std::to_string(schemaVersion) + "). Open it with the newer version.");
    const bool journals = header[writeVersionAt] == header[readVersionAt] && (header[readVersionAt] == 1 || header[readVersionAt] == 2);
    if (schema < 1 || !journals)
        throw FileRefusal(Reason::damaged, path, "is damaged: its header does not make sense. Restore it from a copy.");
    checkSize(path, header, size);
}

bool isModelFile(const std::filesystem::path& path)
{
    std::error_code error;
    if (!std::filesystem::is_regular_file(path, error))
        return false;
    if (openFiles::find(path) != nullptr)
        return true;
    try {
        return isModelHeader(os::contentsOf(path, headerSize).value_or(""));
    } catch (const std::system_error&) {
        return false;
    }
}

}  // namespace zel
