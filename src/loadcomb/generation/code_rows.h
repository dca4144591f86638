#pragma once

#include "contract/export.h"
#include "loadcomb/tables/code_table.h"

#include <functional>
#include <string>
#include <vector>

// From a code's printed rows to the rows that are added: "±" and X are written out, and factors are computed.
namespace zel::loadcomb {

/// The numbers that factors may take from the model and the options.
struct RowValues {
    double alphaH = 1.0;
    double shortPeriodCoefficient = 0.0;
    double verticalLoadFactor = 0.0;
    double verticalForceFactor = 0.0;
};

/// A row as it is added.
struct WrittenRow {
    struct Factor {
        std::string_view group;  ///< "" for a pair without a group
        double factor = 0.0;
    };
    std::string_view block;
    int flag = 1;  ///< 0 service, 1 strength; 10 more in a part with `liveRoofIsSnow`
    std::string text;
    std::vector<Factor> factors;
};

/// Gives the rows of one part to `add`, in their order.
/// @param facts  the groups with cases, X, and the type of combinations; this adds what concerns the row and the part
ZEL_CMD_API void writeRows(const codes::Part& part, const codes::WindScale& wind, codes::Facts facts, const RowValues& values,
                           const std::function<void(const WrittenRow&)>& add);

/// The fact of a type of combinations, 0 to 4; no fact for any other number.
ZEL_CMD_API codes::Facts typeFact(int combType);

/// Number of rows that a table prints, with "±" and X written out.
ZEL_CMD_API int countRows(const codes::CodeTable& table);

}  // namespace zel::loadcomb
