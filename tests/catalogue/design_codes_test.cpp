#include "contract/design_codes.h"

#include <algorithm>

#include <gtest/gtest.h>

namespace {

using Names = CArray<CString, CString&>;

/// The catalogue with codes of its own, one for each thing that a table may read.
class DesignCodes : public testing::Test {
protected:
    static constexpr zel::DesignCode handedIn[] = {
        {"plain"}, {"wind", true, false, false}, {"Seismic : 1", false, true, false}, {"underground", false, false, true}, {"all", true, true, true},
    };

    DesignCodes() { zel::setDesignCodes(handedIn); }
    DesignCodes(const DesignCodes&) = delete;
    DesignCodes& operator=(const DesignCodes&) = delete;
    ~DesignCodes() override { zel::setDesignCodes({}); }

    static Names names()
    {
        Names found{"old"};
        CDBLib::GetConLcomCodeNameList(found);
        return found;
    }

    /// The codes of the list that pass `test`.
    static Names codes(bool (*test)(const CString&))
    {
        Names passed;
        for (const CString& name : names()) {
            if (test(name))
                passed.push_back(name);
        }
        return passed;
    }
};

TEST_F(DesignCodes, AreThoseThatWereHandedInInTheirOrder)
{
    const Names expected{"plain", "wind", "Seismic : 1", "underground", "all"};
    EXPECT_EQ(names(), expected);
    Names concrete{"old"};
    CDBLib::GetConCodeNameList(concrete);
    EXPECT_EQ(concrete, expected);
    EXPECT_EQ(codes(CDBLib::IsConCodeName), expected);
}

TEST_F(DesignCodes, TellWhatTheirTablesRead)
{
    EXPECT_EQ(codes(CDBLib::IsConCode_WindLcom), (Names{"wind", "all"}));
    EXPECT_EQ(codes(CDBLib::IsConCode_SeisLcom), (Names{"Seismic : 1", "all"}));
    EXPECT_EQ(codes(CDBLib::IsConCode_Ortho), (Names{"Seismic : 1", "all"}));
    EXPECT_EQ(codes(CDBLib::IsConCode_UnderGroundLcom), (Names{"underground", "all"}));
}

TEST_F(DesignCodes, TakeThePlaceOfThoseBefore)
{
    static constexpr zel::DesignCode others[] = {{"other"}};
    zel::setDesignCodes(others);
    EXPECT_EQ(names(), (Names{"other"}));
    EXPECT_FALSE(CDBLib::IsConCodeName("plain"));
    zel::setDesignCodes({});
    EXPECT_EQ(names(), Names());
}

TEST_F(DesignCodes, ANameIsKnownAsItStandsOnly)
{
    for (const char* name : {"ALL", "al", "all ", "Seismic: 1", ""}) {
        EXPECT_FALSE(CDBLib::IsConCodeName(name)) << name;
        EXPECT_FALSE(CDBLib::IsConCode_WindLcom(name)) << name;
        EXPECT_FALSE(CDBLib::IsConCode_SeisLcom(name)) << name;
        EXPECT_FALSE(CDBLib::IsConCode_UnderGroundLcom(name)) << name;
        EXPECT_FALSE(CDBLib::IsConCode_Ortho(name)) << name;
    }
}

}  // namespace
