#pragma once

#include "contract/export.h"
#include "contract/records/lcom.h"

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

// Names and duplicates of generated combinations.
namespace zel::loadcomb {

/// The name of a combination: "gLCB7  " for number 7 of the general kind. Empty for a kind that is none.
ZEL_CMD_API std::string combinationName(int kind, std::int64_t number);

/// The highest number among names such as "gLCB12": characters 2 to 4 are "LCB", the rest reads as a decimal integer (leading blanks, a
/// sign, digits; what follows is ignored). 0 if there is none above.
ZEL_CMD_API std::int64_t highestNumber(const std::vector<std::string>& names);

/// Whether two records are the same combination: `kind`, `active`, `number` and the items in order. Names and descriptions don't count.
ZEL_CMD_API bool isDuplicate(const T_LCOM_D& left, const T_LCOM_D& right);

/// The finished records of a run, without duplicates.
class ZEL_CMD_API CombinationList {
public:
    static constexpr std::size_t stored = SIZE_MAX;

    /// Starts over with the names that follow `lastNumber`.
    void reset(int kind, int rowCount, std::int64_t lastNumber);

    /// Names a record with the next number and appends it, unless a duplicate is in the list; the number then stays free.
    /// @return  `stored`, or the place of the record in the list that it repeats
    std::size_t store(T_LCOM_D&& record);

    [[nodiscard]] std::vector<T_LCOM_D>& rows() { return m_rows; }
    [[nodiscard]] const std::vector<T_LCOM_D>& rows() const { return m_rows; }
    /// Combinations of the kind, those that were stored before the run included.
    [[nodiscard]] int rowCount() const { return m_rowCount; }
    [[nodiscard]] std::int64_t lastNumber() const { return m_lastNumber; }

private:
    struct Slot {
        std::uint32_t hash = 0;
        std::uint32_t place = 0;  ///< in the list, counted from 1; 0 is free
    };
    void grow();

    int m_kind = 1;
    int m_rowCount = 0;
    std::int64_t m_lastNumber = 0;
    std::vector<T_LCOM_D> m_rows;
    std::vector<Slot> m_slots;  ///< open addressing over a power of two, at most half full
};

}  // namespace zel::loadcomb
