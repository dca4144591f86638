#include "contract/units.h"

#include "contract/document.h"

#include <array>
#include <string_view>

namespace zel {

namespace {

struct NamedUnit {
    const char* name;    ///< in files and journals
    const char* symbol;  ///< in texts
    double size;         ///< in metres or newtons
};

// Sizes: the international inch, foot and pound of 1959; standard gravity 9.80665 m/s^2.
constexpr std::array<NamedUnit, lengthUnitCount> lengthUnits{{
    {"MM", "mm", 0.001},
    {"CM", "cm", 0.01},
    {"M", "m", 1.0},
    {"INCH", "in", 0.0254},
    {"FEET", "ft", 0.3048},
}};
constexpr std::array<NamedUnit, forceUnitCount> forceUnits{{
    {"KG", "kgf", 9.80665},
    {"TON", "tonf", 9806.65},
    {"N", "N", 1.0},
    {"KN", "kN", 1000.0},
    {"LBF", "lbf", 4.4482216152605},
    {"KIP", "kips", 4448.2216152605},
}};

/// What a unit type measures: powers of length and force, and its text, where L and F stand for the symbols.
struct Quantity {
    int length;
    int force;
    std::string_view text;
};

// The place in this list is the unit type. Time is always seconds; angle and temperature have no size of their own.
// clang-format off
constexpr std::array<Quantity, Unit::count> quantities{{
    {0, 0, ""},               // none
    {1, 0, "L"},              // length
    {0, 1, "F"},              // force
    {2, 0, "L^2"},            // area
    {3, 0, "L^3"},            // first moment of area
    {4, 0, "L^4"},            // moment of inertia
    {-2, 1, "F/L^2"},         // stress
    {-1, 1, "F/L"},           // line load
    {-2, 1, "F/L^2"},         // area load
    {-3, 1, "F/L^3"},         // weight density
    {-3, 1, "F/L^3"},         // subgrade modulus
    {1, 0, "L/sec^2"},        // acceleration
    {1, 1, "F*L"},            // moment
    {-1, 1, "F/L"},           // spring, translation
    {1, 1, "F*L/[rad]"},      // spring, rotation
    {-2, 1, "F/L/L"},         // spring, translation, per length
    {0, 1, "F*L/[rad]/L"},    // spring, rotation, per length
    {0, 1, "F/[rad]"},        // spring, translation against rotation
    {0, 0, "[deg]"},          // angle in degrees
    {0, 0, "[rad]"},          // angle in radians
    {0, 0, "sec"},            // time
    {0, 0, "[cps]"},          // frequency
    {0, 0, "1/[C]"},          // thermal coefficient
    {0, 0, "[C]"},            // temperature
    {-1, 1, "F*sec^2/L"},     // mass
    {-2, 1, "F*sec^2/L^2"},   // mass per length
    {-3, 1, "F*sec^2/L^3"},   // mass per area
    {-4, 1, "F*sec^2/L^4"},   // mass density
    {1, 0, "L/sec"},          // velocity
    {0, 1, "F/sec"},          // force per time
    {1, 1, "F*L/sec"},        // moment per time
}};
// clang-format on

const Quantity& quantity(int unitType)
{
    return quantities[unitType >= 0 && unitType < Unit::count ? static_cast<std::size_t>(unitType) : 0];
}

const NamedUnit& lengthUnit(const T_UNIT_INDEX& system)
{
    return lengthUnits.at(static_cast<std::size_t>(system.length));
}
const NamedUnit& forceUnit(const T_UNIT_INDEX& system)
{
    return forceUnits.at(static_cast<std::size_t>(system.force));
}

double power(double base, int exponent)
{
    double result = 1.0;
    for (int i = 0; i < (exponent < 0 ? -exponent : exponent); ++i)
        result *= base;
    return exponent < 0 ? 1.0 / result : result;
}

template <std::size_t N> int indexOf(const std::array<NamedUnit, N>& units, std::string_view name)
{
    for (std::size_t i = 0; i < N; ++i) {
        if (units[i].name == name)
            return static_cast<int>(i);
    }
    return -1;
}

}  // namespace

double unitFactor(int unitType, const T_UNIT_INDEX& system)
{
    const Quantity& what = quantity(unitType);
    return power(lengthUnit(system).size, what.length) * power(forceUnit(system).size, what.force);
}

CString unitText(int unitType, const T_UNIT_INDEX& system)
{
    CString text;
    for (const char letter : quantity(unitType).text) {
        if (letter == 'L')
            text += lengthUnit(system).symbol;
        else if (letter == 'F')
            text += forceUnit(system).symbol;
        else
            text += letter;
    }
    return text;
}

const char* lengthUnitName(int index)
{
    return lengthUnits.at(static_cast<std::size_t>(index)).name;
}
const char* forceUnitName(int index)
{
    return forceUnits.at(static_cast<std::size_t>(index)).name;
}
int lengthUnitIndex(std::string_view name)
{
    return indexOf(lengthUnits, name);
}
int forceUnitIndex(std::string_view name)
{
    return indexOf(forceUnits, name);
}

}  // namespace zel

void CUnitCtrl::GetUnitSystem(int unitType, CString& text)
{
    T_UNIT_INDEX system;
    if (CDBDoc* document = CDBDoc::GetDocPoint())
        document->GetUnitCtrl()->GetUnitIndexCurrent(system);
    text = zel::unitText(unitType, system);
}
