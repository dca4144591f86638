#pragma once

#include <cstdint>

/// Which loads are made when a load case is created from a combination; 1 each to make them.
struct T_LOAD_ATTR {
    std::int32_t selfWeight = 0;
    std::int32_t pointLoad = 0;
    std::int32_t specifiedDisplacement = 0;
    std::int32_t lineLoad = 0;
    std::int32_t areaLoad = 0;

    bool operator==(const T_LOAD_ATTR&) const = default;

    void Initialize() { *this = {}; }

    template <class F> static void visit(F& field)
    {
        field("selfWeight", &T_LOAD_ATTR::selfWeight);
        field("pointLoad", &T_LOAD_ATTR::pointLoad);
        field("specifiedDisplacement", &T_LOAD_ATTR::specifiedDisplacement);
        field("lineLoad", &T_LOAD_ATTR::lineLoad);
        field("areaLoad", &T_LOAD_ATTR::areaLoad);
    }
};
