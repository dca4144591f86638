#include "contract/design_codes.h"

#include <algorithm>

#include <gtest/gtest.h>

namespace {

using Names = CArray<CString, CString&>;

/// The codes of the list that pass `test`.
Names codes(bool (*test)(const CString&))
{
    Names all;
    CDBLib::GetConLcomCodeNameList(all);
    Names passed;
    for (const CString& name : all) {
        if (test(name))
            passed.push_back(name);
    }
    return passed;
}

TEST(DesignCodes, AreSixteenInTheOrderOfTheForm)
{
    const Names expected{"AIK-USD94",  "KBC-USD16", "KDS 41 30 : 2018", "KDS 41 20 : 2022", "KCI-USD12", "KBC-USD09", "KBC-USD05",  "KCI-USD99",
                         "KSCE-USD96", "ACI318-89", "ACI318-95",        "ACI318-99",        "ACI318-02", "BS8110-97", "GB50010-02", "CSA-A23.3-94"};
    Names names{"old"};
    CDBLib::GetConLcomCodeNameList(names);
    EXPECT_EQ(names, expected);
    CDBLib::GetConCodeNameList(names);
    EXPECT_EQ(names, expected);
    EXPECT_EQ(codes(CDBLib::IsConCodeName), expected);
}

TEST(DesignCodes, WindSetsAreReadByThreeCodes)
{
    EXPECT_EQ(codes(CDBLib::IsConCode_WindLcom), (Names{"KBC-USD16", "KDS 41 30 : 2018", "KDS 41 20 : 2022"}));
}

TEST(DesignCodes, SeismicFactorsAndOrthogonalPairsAreReadBySixCodes)
{
    const Names expected{"KBC-USD16", "KDS 41 30 : 2018", "KDS 41 20 : 2022", "KCI-USD12", "KBC-USD09", "KBC-USD05"};
    EXPECT_EQ(codes(CDBLib::IsConCode_SeisLcom), expected);
    EXPECT_EQ(codes(CDBLib::IsConCode_Ortho), expected);
}

TEST(DesignCodes, UndergroundSetsAreReadByTwoCodes)
{
    EXPECT_EQ(codes(CDBLib::IsConCode_UnderGroundLcom), (Names{"KDS 41 30 : 2018", "KDS 41 20 : 2022"}));
}

TEST(DesignCodes, ANameIsKnownAsItStandsOnly)
{
    EXPECT_FALSE(CDBLib::IsConCodeName("aik-usd94"));
    EXPECT_FALSE(CDBLib::IsConCodeName("KDS 41 20: 2022"));
    EXPECT_FALSE(CDBLib::IsConCodeName(""));
    EXPECT_FALSE(CDBLib::IsConCode_WindLcom("KBC"));
    EXPECT_FALSE(CDBLib::IsConCode_SeisLcom("KBC"));
    EXPECT_FALSE(CDBLib::IsConCode_UnderGroundLcom("KDS"));
    EXPECT_FALSE(CDBLib::IsConCode_Ortho(""));
}

}  // namespace
