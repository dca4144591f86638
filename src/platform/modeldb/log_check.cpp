#include "platform/modeldb/log_check.h"

#include <cstddef>
#include <cstdint>

namespace zel {

namespace {

constexpr std::size_t headSize = 32;
constexpr std::size_t frameHeadSize = 24;
constexpr std::uint32_t littleMagic = 0x377f0682;  ///< checksums over little-endian words
constexpr std::uint32_t bigMagic = 0x377f0683;
constexpr std::uint32_t formatVersion = 3007000;

std::uint32_t bigEndian(std::string_view bytes, std::size_t at)
{
    std::uint32_t value = 0;
    for (std::size_t i = 0; i < 4; ++i)
        value = value << 8U | static_cast<unsigned char>(bytes[at + i]);
    return value;
}

std::uint32_t littleEndian(std::string_view bytes, std::size_t at)
{
    std::uint32_t value = 0;
    for (std::size_t i = 4; i > 0; --i)
        value = value << 8U | static_cast<unsigned char>(bytes[at + i - 1]);
    return value;
}

/// The running checksum of a log.
struct Sum {
    std::uint32_t first = 0;
    std::uint32_t second = 0;

    void add(std::string_view bytes, bool little)
    {
        for (std::size_t at = 0; at + 8 <= bytes.size(); at += 8) {
            first += (little ? littleEndian(bytes, at) : bigEndian(bytes, at)) + second;
            second += (little ? littleEndian(bytes, at + 4) : bigEndian(bytes, at + 4)) + first;
        }
    }
    [[nodiscard]] bool standsAt(std::string_view bytes, std::size_t at) const { return bigEndian(bytes, at) == first && bigEndian(bytes, at + 4) == second; }
};

}  // namespace

bool isDamagedLog(std::string_view log)
{
    if (log.substr(0, headSize).find_first_not_of('\0') == std::string_view::npos || log.size() < headSize)  // the loss of power before its first sync
        return false;
    const std::uint32_t magic = bigEndian(log, 0);
    const std::uint32_t pageSize = bigEndian(log, 8);
    const bool little = magic == littleMagic;
    Sum sum;
    sum.add(log.substr(0, 24), little);
    const bool isHead = (little || magic == bigMagic) && bigEndian(log, 4) == formatVersion && pageSize >= 512 && pageSize <= 65536 && sum.standsAt(log, 24);
    if (!isHead)
        return true;

    const std::string_view salts = log.substr(16, 8);
    bool whole = true;
    bool changeEnded = false;  // behind the first fault
    for (std::size_t at = headSize; at + frameHeadSize + pageSize <= log.size(); at += frameHeadSize + pageSize) {
        const bool ours = log.substr(at + 8, 8) == salts;  // else left from before the log was begun anew
        if (whole) {
            sum.add(log.substr(at, 8), little);
            sum.add(log.substr(at + frameHeadSize, pageSize), little);
            whole = ours && sum.standsAt(log, at + 16);
        }
        if (whole || !ours)
            continue;
        if (changeEnded)
            return true;
        changeEnded = bigEndian(log, at + 4) != 0;
    }
    return false;
}

}  // namespace zel
