#pragma once

#include "contract/text.h"
#include "contract/unit_types.h"

#include <cstdint>
#include <vector>

/// One term of a load combination. Items are equal when all three fields are, the factor exactly.
struct T_LCOM_ITEM {
    std::int32_t  type = 0;        ///< what `key` refers to: 1 static load case
    std::uint32_t key = 0;         ///< of the load case
    double        factor = 0.0;

    bool operator==(const T_LCOM_ITEM&) const = default;

    void Initialize() { *this = {}; }

    template <class F> static void visit(F& field)
    {
        field("type", &T_LCOM_ITEM::type);
        field("key", &T_LCOM_ITEM::key);
        field("factor", &T_LCOM_ITEM::factor, Unit::none);
    }
};

/// One load combination of a design kind.
///
/// Equality here is that of all fields; duplicates of a generated set are found without regard to name and description.
struct T_LCOM_D {
    std::int32_t             kind = 0;       ///< design kind: 1 general, 2 steel, 3 concrete, 4 footing, 5 SRC; set by the table
    CString                  name;           ///< unique within its kind
    std::int32_t             number = 0;     ///< 1-based place in the sequence of its kind; set by the table, whatever is passed in
    std::int32_t             active = 1;     ///< 1 taken up by design, 0 not; service combinations of a code are generated with 0
    CString                  description;    ///< of a generated combination its formula
    std::vector<T_LCOM_ITEM> items;          ///< in the order of the formula

    bool operator==(const T_LCOM_D&) const = default;

    void Initialize() { *this = {}; }

    template <class F> static void visit(F& field)
    {
        field("kind", &T_LCOM_D::kind);
        field("name", &T_LCOM_D::name);
        field("number", &T_LCOM_D::number);
        field("active", &T_LCOM_D::active);
        field("description", &T_LCOM_D::description);
        field("items", &T_LCOM_D::items);
    }
};
