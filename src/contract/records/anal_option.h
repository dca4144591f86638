#pragma once

#include <cstdint>

/// Options of the solver. The host keeps them in its settings, not in the model.
struct T_ANALOPTION {
    std::int32_t solver = 3;            ///< 0 skyline, 3 multi frontal
    std::int32_t memoryMode = 0;        ///< 0 automatic, 1 `memoryMBytes`
    std::int32_t memoryMBytes = 256;    ///< memory for the solver [MByte]
    std::int32_t multiProcessor = 0;    ///< 1: more than one processor; multi frontal only
    std::int32_t processors = 1;        ///< number of processors

    bool operator==(const T_ANALOPTION&) const = default;

    void Initialize() { *this = {}; }

    template <class F> static void visit(F& field)
    {
        field("solver", &T_ANALOPTION::solver);
        field("memoryMode", &T_ANALOPTION::memoryMode);
        field("memoryMBytes", &T_ANALOPTION::memoryMBytes);
        field("multiProcessor", &T_ANALOPTION::multiProcessor);
        field("processors", &T_ANALOPTION::processors);
    }
};
