#pragma once

#include "contract/text.h"

#include <cstdint>

class CCompFunc {
public:
    /// -1, 0 or 1 as `a` is below, equal to or above `b`. Numbers are equal when they differ by at most one unit in the
    /// last place of the greatest of 1, |a| and |b| (2^-52 of it).
    static int FastCompDouble(double a, double b);

    /// Order of an ascending sort.
    static bool doubleAsc(double a, double b) { return a < b; }
};

class CArrayUtil {
public:
    /// The keys of `a` that are in `b` too, in the order of `a`.
    static CArray<std::uint32_t> IntersectUINT(const CArray<std::uint32_t>& a, const CArray<std::uint32_t>& b);
};
