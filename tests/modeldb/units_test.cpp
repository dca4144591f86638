#include "contract/init_ctrl.h"
#include "contract/table.h"
#include "contract/tables/dynamic_tables.h"
#include "contract/tables/model_tables.h"
#include "contract/tables/static_load_case_table.h"
#include "contract/units.h"
#include "model_fixture.h"

#include <array>
#include <cstdio>
#include <random>

namespace zel::test {

constexpr T_UNIT_INDEX millimetreNewton{T_UNIT_INDEX::MM, T_UNIT_INDEX::N};
constexpr T_UNIT_INDEX metreKilonewton{T_UNIT_INDEX::M, T_UNIT_INDEX::KN};
constexpr T_UNIT_INDEX footKip{T_UNIT_INDEX::FEET, T_UNIT_INDEX::KIP};

std::string shown(double value)
{
    std::array<char, 40> text{};
    (void)std::snprintf(text.data(), text.size(), "%.15g", value);
    return text.data();
}

struct TypeText {
    int type;
    const char* text;  // in millimetres and newtons
};
void PrintTo(const TypeText& row, std::ostream* out)
{
    *out << "unit type " << row.type;
}

constexpr std::array typeTexts{
    TypeText{0, ""},
    TypeText{1, "mm"},
    TypeText{2, "N"},
    TypeText{3, "mm^2"},
    TypeText{4, "mm^3"},
    TypeText{5, "mm^4"},
    TypeText{6, "N/mm^2"},
    TypeText{7, "N/mm"},
    TypeText{8, "N/mm^2"},
    TypeText{9, "N/mm^3"},
    TypeText{10, "N/mm^3"},
    TypeText{11, "mm/sec^2"},
    TypeText{12, "N*mm"},
    TypeText{13, "N/mm"},
    TypeText{14, "N*mm/[rad]"},
    TypeText{15, "N/mm/mm"},
    TypeText{16, "N*mm/[rad]/mm"},
    TypeText{17, "N/[rad]"},
    TypeText{18, "[deg]"},
    TypeText{19, "[rad]"},
    TypeText{20, "sec"},
    TypeText{21, "[cps]"},
    TypeText{22, "1/[C]"},
    TypeText{23, "[C]"},
    TypeText{24, "N*sec^2/mm"},
    TypeText{25, "N*sec^2/mm^2"},
    TypeText{26, "N*sec^2/mm^3"},
    TypeText{27, "N*sec^2/mm^4"},
    TypeText{28, "mm/sec"},
    TypeText{29, "N/sec"},
    TypeText{30, "N*mm/sec"},
};

TEST(UnitTypes, HaveTheirTexts)
{
    for (const TypeText& row : typeTexts)
        EXPECT_EQ(unitText(row.type, millimetreNewton), row.text) << row.type;
    EXPECT_EQ(unitText(6, {T_UNIT_INDEX::INCH, T_UNIT_INDEX::LBF}), "lbf/in^2");
    EXPECT_EQ(unitText(2, {T_UNIT_INDEX::M, T_UNIT_INDEX::TON}), "tonf");
}

TEST(UnitTypes, HaveTheSizesOfTheirQuantities)
{
    EXPECT_DOUBLE_EQ(unitFactor(1, millimetreNewton), 0.001);
    EXPECT_DOUBLE_EQ(unitFactor(2, footKip), 4448.2216152605);
    EXPECT_DOUBLE_EQ(unitFactor(6, millimetreNewton), 1e6);
    EXPECT_DOUBLE_EQ(unitFactor(5, {T_UNIT_INDEX::CM, T_UNIT_INDEX::N}), 1e-8);
    EXPECT_DOUBLE_EQ(unitFactor(12, {T_UNIT_INDEX::M, T_UNIT_INDEX::KG}), 9.80665);
    EXPECT_DOUBLE_EQ(unitFactor(24, metreKilonewton), 1000.0);
    EXPECT_DOUBLE_EQ(unitFactor(18, footKip), 1.0);
    EXPECT_DOUBLE_EQ(unitFactor(20, footKip), 1.0);
}

TEST(UnitTypes, ValuesConvertedThereAndBackShowTheSame15Digits)
{
    std::mt19937 random(7);  // any start: the property holds for all
    std::uniform_real_distribution<double> mantissa(-10.0, 10.0);
    for (int i = 0; i < 20000; ++i) {
        const int type = static_cast<int>(random() % Unit::count);
        const T_UNIT_INDEX from{static_cast<int>(random() % lengthUnitCount), static_cast<int>(random() % forceUnitCount)};
        const T_UNIT_INDEX to{static_cast<int>(random() % lengthUnitCount), static_cast<int>(random() % forceUnitCount)};
        const double value = std::strtod(shown(mantissa(random)).c_str(), nullptr);  // as a person types it
        UnitCtrl units(from, nullptr);
        units.moveTo(to);
        const double there = units.ConvertUnitDataPrevious(type, value);
        units.moveTo(from);
        EXPECT_EQ(shown(units.ConvertUnitDataPrevious(type, there)), shown(value)) << "type " << type;
    }
}

class UnitSystem : public InMemoryModel {};

TEST_F(UnitSystem, ANewModelIsInMillimetresAndKilonewtons)
{
    T_UNIT_INDEX units;
    model->GetUnitCtrl()->GetUnitIndexCurrent(units);
    EXPECT_EQ(units, (T_UNIT_INDEX{T_UNIT_INDEX::MM, T_UNIT_INDEX::KN}));
    CString text;
    CUnitCtrl::GetUnitSystem(12, text);
    EXPECT_EQ(text, "kN*mm");
}

TEST_F(UnitSystem, AChangeConvertsStoredRecordsAndIsOneUndoStepWithHint4)
{
    ITable& points = model->table(Table::PONT);
    points.add(0, {1}, {share(T_PONT_D{1000.0, 2000.0, -500.0})}, false);
    const NoticeLog log;
    EXPECT_NE(model->GetUnitCtrl()->SetUnitIndexCurrent(metreKilonewton, 1), 0);
    CDataPont handle;
    T_POINT3 position;
    ASSERT_NE(handle.Get(1, position), 0);
    EXPECT_DOUBLE_EQ(position.x, 1.0);
    EXPECT_DOUBLE_EQ(position.z, -0.5);
    ASSERT_EQ(log.notices.size(), 1U);
    EXPECT_EQ(log.notices[0].hint, 4);
    EXPECT_EQ(model->undoName(), "Change the units");
}

TEST_F(UnitSystem, ACurveIsConvertedByItsDataType)
{
    CDataThfc functions;
    for (const auto& [name, dataType] : {std::pair("force", 3), std::pair("moment", 4), std::pair("normal", 1)}) {
        T_THFC_D function;
        function.name = name;
        function.dataType = dataType;
        function.points.push_back({0.5, 2000.0});
        functions.Add(function);
    }
    model->GetUnitCtrl()->SetUnitIndexCurrent({T_UNIT_INDEX::M, T_UNIT_INDEX::N}, 1);  // from mm, kN
    const auto valueOf = [&](const char* name) {
        functions.Get(name);
        EXPECT_DOUBLE_EQ(functions.currentRecord.points[0].time, 0.5);
        return functions.currentRecord.points[0].value;
    };
    EXPECT_DOUBLE_EQ(valueOf("force"), 2.0e6);
    EXPECT_DOUBLE_EQ(valueOf("moment"), 2000.0);
    EXPECT_DOUBLE_EQ(valueOf("normal"), 2000.0);
}

TEST_F(UnitSystem, ATemporaryChangeTouchesNothingAndComesBack)
{
    CUnitCtrl& units = *model->GetUnitCtrl();
    ITable& points = model->table(Table::PONT);
    points.add(0, {1}, {share(T_PONT_D{1000.0, 0.0, 0.0})}, false);
    const NoticeLog log;
    units.SaveUnitChangeFactor();
    EXPECT_NE(units.SetUnitIndexCurrent(metreKilonewton, 0), 0);
    EXPECT_DOUBLE_EQ(units.ConvertUnitDataPrevious(1, 1000.0), 1.0);
    EXPECT_DOUBLE_EQ(units.GetConvertFactorPrevious(1), 0.001);
    EXPECT_DOUBLE_EQ(units.GetConvertFactorCurrent(1), 1.0);
    units.RestoreUnitChangeFactor();
    T_UNIT_INDEX current;
    units.GetUnitIndexCurrent(current);
    EXPECT_EQ(current.length, T_UNIT_INDEX::MM);
    EXPECT_TRUE(log.notices.empty());
    T_POINT3 position;
    CDataPont().Get(1, position);
    EXPECT_EQ(position.x, 1000.0);
}

TEST_F(UnitSystem, AnUnknownSystemIsRefused)
{
    EXPECT_EQ(model->GetUnitCtrl()->SetUnitIndexCurrent({5, 0}, 1), 0);
    EXPECT_EQ(model->GetUnitCtrl()->SetUnitIndexCurrent({0, -1}, 0), 0);
}

TEST_F(UnitSystem, DefaultGravityIsInCurrentUnits)
{
    EXPECT_DOUBLE_EQ(model->GetInitCtrl()->DefaultGravity(), 9806.65);
    model->GetUnitCtrl()->SetUnitIndexCurrent(footKip, 1);
    EXPECT_DOUBLE_EQ(model->GetInitCtrl()->DefaultGravity(), 9.80665 / 0.3048);
}

TEST_F(UnitSystem, ConvertUnitPrevConvertsTheCurrentRecordOfAHandle)
{
    CDataStld cases;
    cases.currentRecord.selfWeightFactor = -1.0;
    model->GetUnitCtrl()->SetUnitIndexCurrent(footKip, 1);
    cases.ConvertUnitPrev();
    EXPECT_EQ(cases.currentRecord.selfWeightFactor, -1.0) << "a factor has no unit";
}

}  // namespace zel::test
