#include "contract/compare.h"

#include <algorithm>
#include <cmath>
#include <limits>

#include <gtest/gtest.h>

namespace {

constexpr double eps = std::numeric_limits<double>::epsilon();

TEST(CompareDoubles, TellsBelowEqualAndAbove)
{
    EXPECT_EQ(CCompFunc::FastCompDouble(1.0, 2.0), -1);
    EXPECT_EQ(CCompFunc::FastCompDouble(2.0, 1.0), 1);
    EXPECT_EQ(CCompFunc::FastCompDouble(-2.0, 1.0), -1);
    EXPECT_EQ(CCompFunc::FastCompDouble(0.3, 0.3), 0);
}

TEST(CompareDoubles, ToleranceGrowsWithTheNumbersAboveOne)
{
    EXPECT_EQ(CCompFunc::FastCompDouble(0.1 + 0.2, 0.3), 0);
    EXPECT_EQ(CCompFunc::FastCompDouble(1.0, 1.0 + eps), 0);
    EXPECT_EQ(CCompFunc::FastCompDouble(1.0, 1.0 + 2 * eps), -1);
    EXPECT_EQ(CCompFunc::FastCompDouble(0.0, eps), 0) << "the tolerance is not below one unit of 1";
    EXPECT_EQ(CCompFunc::FastCompDouble(2 * eps, 0.0), 1);
    EXPECT_EQ(CCompFunc::FastCompDouble(1000.0, std::nextafter(1000.0, 2000.0)), 0);
    EXPECT_EQ(CCompFunc::FastCompDouble(1000.0, 1000.0 + 1e-9), -1);
    EXPECT_EQ(CCompFunc::FastCompDouble(-1000.0, std::nextafter(-1000.0, -2000.0)), 0);
}

TEST(CompareDoubles, SortsAscending)
{
    CArray<double> values{3.0, -1.0, 2.0};
    std::sort(values.begin(), values.end(), CCompFunc::doubleAsc);
    EXPECT_EQ(values, (CArray<double>{-1.0, 2.0, 3.0}));
}

TEST(IntersectKeys, KeepsTheOrderOfTheFirstList)
{
    using Keys = CArray<std::uint32_t>;
    EXPECT_EQ(CArrayUtil::IntersectUINT({5, 1, 9, 3}, {3, 4, 5}), (Keys{5, 3}));
    EXPECT_EQ(CArrayUtil::IntersectUINT({}, {3}), Keys{});
    EXPECT_EQ(CArrayUtil::IntersectUINT({3}, {}), Keys{});
}

}  // namespace
