#include "contract/record.h"
#include "contract/records/all.h"

#include <gtest/gtest.h>

#include <map>
#include <ostream>
#include <span>
#include <string>

namespace {

/// The `unit` of one record: entries by number, in the numbers that journals and forms use. What is not given is 0.
struct Expected {
    const char* name;
    std::span<const int> unit;
    std::size_t size;
    std::map<std::size_t, int> entries;
};

void PrintTo(const Expected& record, std::ostream* out)
{
    *out << record.name;
}

const Expected unitLists[] = {
    {"T_STLD_D", T_STLD_D::unit, 5, {}},
    {"T_LNLD_D", T_LNLD_D::unit, 4, {{3, 7}}},
    {"T_ARLD_D", T_ARLD_D::unit, 5, {{3, 8}}},
    {"T_SPDI_D", T_SPDI_D::unit, 6, {{0, 1}, {1, 1}, {2, 1}, {3, 19}, {4, 19}, {5, 19}}},
    {"T_THFC_D", T_THFC_D::unit, 22, {{8, 2}, {9, 12}, {12, 29}, {13, 30}, {14, 21}, {16, 18}, {17, 20}, {20, 2}, {21, 12}}},
    {"T_THLD_D", T_THLD_D::unit, 9, {{3, 20}, {4, 20}}},
    {"T_EIGV_D", T_EIGV_D::unit, 7, {{1, 21}, {2, 21}, {6, 21}}},
    {"T_LTOM_D", T_LTOM_D::unit, 5, {{3, 11}}},
    {"T_MCTL_D", T_MCTL_D::unit, 6, {{0, 1}, {2, 11}}},
    {"T_ACTL_D", T_ACTL_D::unit, 5, {}},
    {"T_MATL_D", T_MATL_D::unit, 16, {{5, 6}, {7, 22}, {8, 9}, {12, 6}, {14, 22}, {15, 9}}},
    {"T_SECT_STIFFNESS", T_SECT_STIFFNESS::unit, 12, {{0, 3}, {1, 3}, {2, 3}, {3, 5}, {4, 5}, {5, 5}, {6, 1}, {7, 1}, {8, 1}, {9, 1}, {10, 4}, {11, 4}}},
    {"T_SECT_SECTBASE_D", T_SECT_SECTBASE_D::unit, 8, {{2, 1}, {3, 1}, {4, 1}}},
    {"T_SECT_DESIGN", T_SECT_DESIGN::unit, 2, {{0, 1}, {1, 1}}},
    {"T_THIK_D", T_THIK_D::unit, 7, {{2, 1}, {3, 1}, {4, 1}, {5, 1}, {6, 1}}},
    {"T_PISD_D", T_PISD_D::unit, 17, {{5, 1}, {6, 1}, {7, 6}, {8, 3}, {9, 1}, {10, 13}}},
    {"T_COSD_D", T_COSD_D::unit, 13, {{3, 6}, {5, 1}, {6, 13}, {7, 14}, {8, 14}, {12, 18}}},
    {"T_WASD_D", T_WASD_D::unit, 10, {{2, 6}, {4, 1}, {5, 15}, {6, 16}}},
    {"T_SOSD_D", T_SOSD_D::unit, 5, {{2, 8}, {3, 10}}},
    {"T_GSPD_D", T_GSPD_D::unit, 7, {{1, 13}, {2, 17}, {3, 17}, {4, 14}, {5, 14}, {6, 14}}},
};

class UnitList : public testing::TestWithParam<Expected> {};

TEST_P(UnitList, HoldsTheUnitTypesUnderTheirEntryNumbers)
{
    const Expected& expected = GetParam();
    ASSERT_EQ(expected.unit.size(), expected.size);
    for (std::size_t entry = 0; entry < expected.size; ++entry) {
        const auto given = expected.entries.find(entry);
        EXPECT_EQ(expected.unit[entry], given == expected.entries.end() ? 0 : given->second) << "entry " << entry;
    }
}

INSTANTIATE_TEST_SUITE_P(Records, UnitList, testing::ValuesIn(unitLists), [](const auto& list) { return std::string{list.param.name}; });

template <class Record> int unitOf(const Record& record, std::string_view field, std::size_t element = 0)
{
    return zel::describe<Record>().unitOf(&record, field, element);
}

TEST(UnitByRecord, TimeHistoryFunctionsFollowTheirDataType)
{
    struct Row {
        std::int32_t dataType;
        int sinA, sinC, value;
    };
    const Row rows[] = {{0, 0, 0, 0}, {1, 0, 0, 0}, {2, 0, 0, 0}, {3, 2, 29, 2}, {4, 12, 30, 12}, {5, 0, 0, 0}, {-1, 0, 0, 0}};
    for (const Row& row : rows) {
        T_THFC_D function;
        function.dataType = row.dataType;
        EXPECT_EQ(unitOf(function, "sinA"), row.sinA) << row.dataType;
        EXPECT_EQ(unitOf(function, "sinC"), row.sinC) << row.dataType;
        EXPECT_EQ(unitOf(function, "value"), row.value) << row.dataType;
    }
}

TEST(UnitByRecord, MassesFollowTheirType)
{
    T_OMAS_D mass;
    const int expected[] = {0, 24, 25, 26, 0};  // by type; 0 and 4 are none
    for (std::int32_t type = 0; type < 5; ++type) {
        mass.type = type;
        EXPECT_EQ(unitOf(mass, "value"), expected[type]) << type;
    }
}

TEST(UnitByRecord, SixComponentsAreThreeTranslationsAndThreeRotations)
{
    for (std::size_t i = 0; i < 6; ++i) {
        EXPECT_EQ(unitOf(T_PTLA_D{}, "value", i), i < 3 ? 2 : 12) << i;
        EXPECT_EQ(unitOf(T_SPDP_D{}, "value", i), i < 3 ? 1 : 19) << i;
        EXPECT_EQ(unitOf(T_SPDI_D{}, "value", i), i < 3 ? 1 : 19) << i;
    }
}

TEST(UnitByRecord, ARecordWithoutSuchFieldsAnswersNone)
{
    EXPECT_EQ(unitOf(T_STLD_D{}, "selfWeightFactor"), 0);
    EXPECT_EQ(unitOf(T_OMAS_D{}, "no such field"), 0);
}

}  // namespace
