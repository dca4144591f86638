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
    codes::Flag flag = codes::strength;
    std::string_view clause;  ///< of the printed code; "" where the table names none
    std::string text;
    std::vector<Factor> factors;
};

/// Gives the rows of one part to `add`, in their order.
/// @param facts  the groups with cases, X, and the type of combinations; this adds what concerns the row and the part
ZEL_CMD_API void writeRows(const codes::Part& part, const codes::WindScale& wind, codes::Facts facts, const RowValues& values,
                           const std::function<void(const WrittenRow&)>& add);

/// The fact of a type of combinations; no fact for a number that is none.
ZEL_CMD_API codes::Facts typeFact(codes::CombType type);

/// A row of a code as a list of its rows shows it.
struct ListedRow {
    std::string_view block;
    codes::Flag flag = codes::strength;
    std::string formula;             ///< "1.2(DL+EV) + 1.6LR + 0.65WL"; (SUF), (OMG), (SPC), (ZEL), (APH) and (VER) stand for numbers of the model
    std::string_view partCondition;  ///< when the row's part is used, in the words of `code_table.h`; "" for always
    std::string_view condition;      ///< when the row itself is used
    std::string_view part;           ///< title
    std::string_view clause;         ///< of the printed code; "" where the table names none
};

/// All rows of a table in the order of the table, with "±", X and the wind numbers written out, whatever their conditions.
ZEL_CMD_API std::vector<ListedRow> listRows(const codes::CodeTable& table);

/// Number of rows that a table prints, with "±" and X written out: the number of `listRows`.
ZEL_CMD_API int countRows(const codes::CodeTable& table);

}  // namespace zel::loadcomb
