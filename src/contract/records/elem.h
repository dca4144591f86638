#pragma once

#include <cstdint>
#include <vector>

/// One element of the analysis model.
struct T_ELEM {
    std::int32_t               type = 0;           ///< 2 beam, 20 or 21 plate
    std::uint32_t              materialKey = 0;
    std::uint32_t              propertyKey = 0;    ///< of the section of a beam, of the thickness of a plate
    std::vector<std::uint32_t> nodes;              ///< keys in element order

    bool operator==(const T_ELEM&) const = default;

    void Initialize() { *this = {}; }

    template <class F> static void visit(F& field)
    {
        field("type", &T_ELEM::type);
        field("materialKey", &T_ELEM::materialKey);
        field("propertyKey", &T_ELEM::propertyKey);
        field("nodes", &T_ELEM::nodes);
    }
};
