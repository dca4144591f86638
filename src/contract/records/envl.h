#pragma once

#include "contract/text.h"

#include <cstdint>
#include <vector>

/// One member of an envelope. Its type: 0 static load case, 1 response spectrum, 2 time history, 3 moving load,
/// 4 settlement, 6 to 10 a combination of design kind 1 to 5.
struct T_ENVL_BASE {
    std::int32_t  type = 0;
    std::uint32_t key = 0;     ///< of the load case or combination

    bool operator==(const T_ENVL_BASE&) const = default;

    void Initialize() { *this = {}; }

    template <class F> static void visit(F& field)
    {
        field("type", &T_ENVL_BASE::type);
        field("key", &T_ENVL_BASE::key);
    }
};

/// An envelope: load cases and combinations whose extremes are shown as one result.
struct T_ENVL_D {
    CString                  name;           ///< unique; the address for writes. Blanks alone are a name, the empty text is not
    CString                  description;
    std::vector<T_ENVL_BASE> items;          ///< in the order of the selected list

    bool operator==(const T_ENVL_D&) const = default;

    void Initialize() { *this = {}; }

    template <class F> static void visit(F& field)
    {
        field("name", &T_ENVL_D::name);
        field("description", &T_ENVL_D::description);
        field("items", &T_ENVL_D::items);
    }
};
