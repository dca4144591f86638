#include "contract/nearest.h"

#include <array>
#include <string>

#include <gtest/gtest.h>

namespace {

constexpr std::array<std::string_view, 3> words{"name", "description", "selfWeightFactor"};

TEST(Nearest, FindsTheWordThatWasMeantWithoutRegardToCase)
{
    EXPECT_EQ(zel::nearest("nmae", words), "name");
    EXPECT_EQ(zel::nearest("NAME", words), "name");
    EXPECT_EQ(zel::nearest("SelfweightFaktor", words), "selfWeightFactor");
}

TEST(Nearest, GivesNothingForAWordThatIsFarFromAll)
{
    EXPECT_EQ(zel::nearest("xyz", words), "");
    EXPECT_EQ(zel::nearest("", words), "");
    EXPECT_EQ(zel::nearest(std::string(100000, 'n'), words), "");
}

TEST(Nearest, SaysItAsAQuestion)
{
    EXPECT_EQ(zel::didYouMean("nmae", words), "; did you mean \"name\"?");
    EXPECT_EQ(zel::didYouMean("xyz", words), "");
}

}  // namespace
