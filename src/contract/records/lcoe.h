#pragma once

#include <cstdint>
#include <vector>

/// Two earthquake load cases at right angles to each other.
struct T_LCOE_BASE {
    std::uint32_t case1 = 0;    ///< key of a static load case
    std::uint32_t case2 = 0;    ///< key of a static load case

    bool operator==(const T_LCOE_BASE&) const = default;

    void Initialize() { *this = {}; }

    template <class F> static void visit(F& field)
    {
        field("case1", &T_LCOE_BASE::case1);
        field("case2", &T_LCOE_BASE::case2);
    }
};

/// The load-case pairs for the orthogonal effect: the one record of its table.
struct T_LCOE_D {
    std::vector<T_LCOE_BASE> pairs;    ///< in the order of the list

    bool operator==(const T_LCOE_D&) const = default;

    void Initialize() { *this = {}; }

    template <class F> static void visit(F& field)
    {
        field("pairs", &T_LCOE_D::pairs);
    }
};
