#include "contract/compare.h"

#include <algorithm>
#include <cmath>
#include <iterator>
#include <limits>

int CCompFunc::FastCompDouble(double a, double b)
{
    const double scale = std::max({1.0, std::abs(a), std::abs(b)});
    if (std::abs(a - b) <= std::numeric_limits<double>::epsilon() * scale)
        return 0;
    return a < b ? -1 : 1;
}

CArray<std::uint32_t> CArrayUtil::IntersectUINT(const CArray<std::uint32_t>& a, const CArray<std::uint32_t>& b)
{
    CArray<std::uint32_t> sorted = b;
    std::sort(sorted.begin(), sorted.end());
    CArray<std::uint32_t> both;
    std::copy_if(a.begin(), a.end(), std::back_inserter(both), [&sorted](std::uint32_t key) { return std::binary_search(sorted.begin(), sorted.end(), key); });
    return both;
}
