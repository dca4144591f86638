#include "loadcomb/generation/combination_list.h"

#include "contract/design_kind.h"

#include <algorithm>
#include <bit>
#include <charconv>
#include <limits>

namespace zel::loadcomb {

namespace {

constexpr std::string_view kindLetters = "gscfr";  // of the design kinds
static_assert(kindLetters.size() == designKinds.size());
constexpr std::string_view commonName = "LCB";
constexpr std::ptrdiff_t numberWidth = 3;

std::uint64_t mixed(std::uint64_t hash, std::uint64_t value)
{
    hash = (hash ^ value) * 0x9E3779B97F4A7C15ULL;
    return hash ^ (hash >> 29);
}

/// Equal for duplicates.
std::uint32_t hashOf(const T_LCOM_D& record)
{
    std::uint64_t hash = mixed(static_cast<std::uint32_t>(record.active), static_cast<std::uint32_t>(record.number));
    for (const T_LCOM_ITEM& item : record.items) {
        const double factor = item.factor + 0.0;  // -0.0 and 0.0 are equal
        hash = mixed(hash, (std::uint64_t{item.key} << 32) | static_cast<std::uint32_t>(item.type));
        hash = mixed(hash, std::bit_cast<std::uint64_t>(factor));
    }
    return static_cast<std::uint32_t>(hash >> 32);
}

std::int64_t leadingInteger(std::string_view text)
{
    text.remove_prefix(std::min(text.find_first_not_of(" \t\n\v\f\r"), text.size()));
    if (text.starts_with('+'))
        text.remove_prefix(1);
    std::int64_t number = 0;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number);
    if (error == std::errc::result_out_of_range)
        number = text.front() == '-' ? std::numeric_limits<std::int64_t>::min() : std::numeric_limits<std::int64_t>::max() / 2;
    return number;
}

}  // namespace

std::string combinationName(int kind, std::int64_t number)
{
    if (!isDesignKind(kind))
        return {};
    char name[32];
    name[0] = kindLetters[static_cast<std::size_t>(kind - firstDesignKind)];
    char* const digits = std::copy(commonName.begin(), commonName.end(), name + 1);
    char* end = std::to_chars(digits, name + sizeof name, number).ptr;
    while (end < digits + numberWidth)
        *end++ = ' ';
    return {name, end};
}

std::int64_t highestNumber(const std::vector<std::string>& names)
{
    std::int64_t highest = 0;
    for (const std::string& name : names) {
        if (name.size() >= 1 + commonName.size() && name.compare(1, commonName.size(), commonName) == 0)
            highest = std::max(highest, leadingInteger(std::string_view(name).substr(1 + commonName.size())));
    }
    return highest;
}

bool isDuplicate(const T_LCOM_D& left, const T_LCOM_D& right)
{
    return left.kind == right.kind && left.active == right.active && left.number == right.number && left.items == right.items;
}

void CombinationList::reset(int kind, int rowCount, std::int64_t lastNumber)
{
    m_kind = kind;
    m_rowCount = rowCount;
    m_lastNumber = lastNumber;
    m_rows.clear();
    m_slots.clear();
}

void CombinationList::grow()
{
    std::vector<Slot> old(std::max<std::size_t>(64, m_slots.size() * 2));
    old.swap(m_slots);
    const std::size_t mask = m_slots.size() - 1;
    for (const Slot& slot : old) {
        if (slot.place == 0)
            continue;
        std::size_t at = slot.hash & mask;
        while (m_slots[at].place != 0)
            at = (at + 1) & mask;
        m_slots[at] = slot;
    }
}

std::size_t CombinationList::store(T_LCOM_D&& record)
{
    if ((m_rows.size() + 1) * 2 > m_slots.size())
        grow();
    record.kind = 0;
    const std::uint32_t hash = hashOf(record);
    const std::size_t mask = m_slots.size() - 1;
    std::size_t at = hash & mask;
    for (; m_slots[at].place != 0; at = (at + 1) & mask) {
        if (m_slots[at].hash == hash && isDuplicate(m_rows[m_slots[at].place - 1], record))
            return m_slots[at].place - 1;
    }
    ++m_rowCount;
    ++m_lastNumber;
    record.name = combinationName(m_kind, m_lastNumber);
    m_rows.push_back(std::move(record));
    m_slots[at] = {hash, static_cast<std::uint32_t>(m_rows.size())};
    return stored;
}

}  // namespace zel::loadcomb
