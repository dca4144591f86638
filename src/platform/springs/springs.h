#pragma once

#include "contract/records/cosd.h"
#include "contract/records/pisd.h"
#include "contract/records/sosd.h"
#include "contract/records/wasd.h"

#include <optional>
#include <vector>

/// Spring constants of support types. All values are in the model's units, whichever they are.
namespace zel::springs {

/// One spring constant and how it was reckoned.
struct Spring {
    const char* name;     ///< as forms name it: "Kv", "SDz"
    int unitType;         ///< see `Unit`
    double value;         ///< in the model's units
    const char* formula;  ///< in symbols: "a x Ap x Ep / L"
    CString numbers;      ///< the formula in numbers, without its result: "1.00 x 105558 x 40 / 15000"
};

/// What became of a support type.
enum class Outcome {
    impossible,  ///< a value that the formula needs is missing, or the type is unknown
    kept,        ///< the stiffness is the engineer's own: there is nothing to reckon
    reckoned,
};

struct Springs {
    Outcome outcome = Outcome::impossible;
    std::vector<Spring> springs;  ///< of a reckoned type, in the order of the record
};

/// The pile coefficient a of a record; empty for a type that has none.
///
/// By kind of pile and construction, linear in L/D: the axial spring of a single pile by the tables of the specifications for highway bridge
/// foundations. Type 3 of construction (pre-boring) counts as augered. Database 3 takes the coefficient of the record.
/// @pre    D is not 0
std::optional<double> pileCoefficient(const T_PISD_D& pile);

/// Kv = a Ap Ep / L [force/length]: the axial spring of a single pile.
///
/// Impossible when L, D, Ap, Ep or a is not above 0, when the result is no finite number, and for a type or a database that is unknown.
/// A pile by value and the special type SAP keep their stiffness.
Springs pileSprings(const T_PISD_D& pile);

/// SDz = E / sum(h/A) of the column above plus that of the column below [force/length]; SRx, SRy = k E / sum(h/I) likewise [force length/rad],
/// 0 without bending.
///
/// For a prismatic column that is E A / H and k E I / H: k is 3 with the far end pinned, 4 with it fixed, 6 when both ends turn alike
/// (slope-deflection). In series E / sum(h/I) is exact for a constant moment. D lies along x and B along y at a beta angle of 0, so that SRy
/// turns about y with B D^3 / 12; 90 degrees swap the two, 45 give both their mean. A capital takes its height from the top of the lower
/// column and lies in series with the rest of it. A column without height or without section counts nothing.
/// A column by value keeps its springs. Impossible for an unknown type and when a result is no finite number.
Springs columnSprings(const T_COSD_D& column);

/// SDz = E T / H above plus below [force/length^2]; SR = k E T^3 / (12 (1 - nu^2)) / H above plus below [force/rad], 0 without bending:
/// per length of wall, which bends as a plate (cylindrical bending).
///
/// A Poisson's ratio of 1 or more in size gives an SR of 0; a size that is not above 0 counts as none. A wall by value keeps its springs.
/// Impossible for an unknown type and when a result is no finite number.
Springs wallSprings(const T_WASD_D& wall);

/// SDz = 40 SF qa per metre with SF = 3, for a settlement of 25 mm: 120 qa / (1 m) [force/length^3].
///
/// @param metre  one metre in the model's unit of length, > 0
/// A soil by value keeps its modulus. Impossible for a qa below 0 and for an unknown type.
/// @source  Bowles, Foundation Analysis and Design: modulus of subgrade reaction from the allowable bearing pressure
Springs soilSprings(const T_SOSD_D& soil, double metre);

}  // namespace zel::springs
