#pragma once

#include "contract/records/lcom.h"
#include "loadcomb/tables/code_table.h"

#include <cstdint>
#include <string>
#include <utility>
#include <vector>

// Where a combination comes from, kept only when it is asked for.
namespace zel::loadcomb {

/// One earthquake case in a combination.
struct EarthquakeChoice {
    std::uint32_t key = 0;
    double coefficient = 1.0;   ///< 1.0, or 0.3 with the sign of the orthogonal member
    double scale = 1.0;         ///< (SUF)
    double overstrength = 1.0;  ///< (OMG)
    std::uint32_t partner = 0;  ///< eccentric case, 0 for none
    int partnerSign = 0;        ///< +1 added, -1 subtracted, 0 none
};

/// What one group of the row decided.
struct Choice {
    std::uint32_t windCase = 0;                 ///< a wind case by itself
    int windEntry = -1;                         ///< or an entry of the wind combinations, counted from 0
    std::vector<EarthquakeChoice> earthquakes;  ///< one case, or two at right angles
};
using Choices = std::vector<Choice>;

/// A row of a code as it was added.
struct RowSource {
    std::string block;   ///< the row's number or block in the table of the code
    std::string clause;  ///< of the printed code; "" where the table names none
    std::string text;
    codes::Flag flag = codes::strength;
    std::vector<std::pair<std::string, double>> factors;  ///< by group name, in order, without pairs that are none
};

/// Where one stored combination comes from.
struct Origin {
    std::size_t row = 0;  ///< index into the rows that were added
    Choices choices;
    std::vector<T_LCOM_ITEM> extras;        ///< of the underground sets; the last items of the record
    std::vector<std::size_t> absorbedRows;  ///< rows that gave the same combination again, one entry each time
};

/// Why a row gave what it gave.
enum class RowResult : std::uint8_t {
    gave,               ///< at least one combination of its own
    noFactors,          ///< every factor came out as 0
    groupWithoutCases,  ///< a mandatory group has no cases
    setWithoutCases,    ///< no group of a set in parentheses has cases
    noOrthogonalPair,   ///< no earthquake case has a partner at right angles
    onlyDuplicates      ///< other rows gave the same combinations before
};
struct RowOutcome {
    RowSource source;
    RowResult result = RowResult::gave;
    std::string missing;   ///< the group, or the groups of the set joined by ", "
    int combinations = 0;  ///< that it gave
    int duplicates = 0;
};

}  // namespace zel::loadcomb
