#include "platform/catalogue/load_types.h"

#include <set>

#include <gtest/gtest.h>

namespace {

TEST(LoadTypes, AreListedInCatalogueOrder)
{
    CArray<CString, CString&> types{"old"};
    zel::LoadTypes().GetLoadTypeList(&types);
    EXPECT_EQ(types, (CArray<CString>{"USER", "D", "L", "LR", "W", "WA", "WT", "E", "S", "R", "IL", "B", "FP", "EP", "WP", "EH", "EV", "EEP"}));
}

TEST(LoadTypes, DisplayNameEndsWithTheCode)
{
    const zel::LoadTypes catalogue;
    EXPECT_EQ(catalogue.GetLoadTypeName("D"), "Dead Load (D)");
    EXPECT_EQ(catalogue.GetLoadTypeName("USER"), "User Defined Load (USER)");
    EXPECT_EQ(catalogue.GetLoadTypeName("WA"), "Across Wind Load (WA)");
    EXPECT_EQ(catalogue.GetLoadTypeName("EEP"), "Seismic Earth Pressure (EEP)");
}

TEST(LoadTypes, CodeAndDisplayNameTellEachOther)
{
    const zel::LoadTypes catalogue;
    CArray<CString, CString&> types;
    catalogue.GetLoadTypeList(&types);
    std::set<CString> names;
    for (const CString& type : types) {
        const CString name = catalogue.GetLoadTypeName(type);
        EXPECT_EQ(catalogue.GetLoadType(name), type);
        names.insert(name);
    }
    EXPECT_EQ(names.size(), types.size()) << "display names are unambiguous";
}

TEST(LoadTypes, UnknownCodeOrNameGivesAnEmptyText)
{
    const zel::LoadTypes catalogue;
    EXPECT_EQ(catalogue.GetLoadTypeName("d"), "");
    EXPECT_EQ(catalogue.GetLoadTypeName(""), "");
    EXPECT_EQ(catalogue.GetLoadType("Dead Load"), "");
    EXPECT_EQ(catalogue.GetLoadType("D"), "");
}

}  // namespace
