#pragma once

#include "contract/records/unit_index.h"
#include "contract/text.h"
#include "contract/unit_types.h"

/// The unit system of the model, and conversions between the previous system and the current one.
class CUnitCtrl {
public:
    CUnitCtrl() = default;
    CUnitCtrl(const CUnitCtrl&) = delete;
    CUnitCtrl& operator=(const CUnitCtrl&) = delete;
    virtual ~CUnitCtrl() = default;

    /// The text of a unit type in the current system of the current document: "kN/m^2"; empty for type 0.
    static void GetUnitSystem(int unitType, CString& text);

    /// `value` of the previous system, in the current one.
    [[nodiscard]] virtual double ConvertUnitDataPrevious(int unitType, double value) const = 0;
    /// Size of the type's unit in metres, newtons and seconds.
    [[nodiscard]] virtual double GetConvertFactorCurrent(int unitType) const = 0;
    [[nodiscard]] virtual double GetConvertFactorPrevious(int unitType) const = 0;

    virtual void GetUnitIndexCurrent(T_UNIT_INDEX& index) const = 0;
    /// Makes `index` the current system and the current one the previous. With `convertModel` 0 no stored value changes and
    /// nobody is told: the caller converts and goes back. With 1 it is a change of the model: every table is converted, one
    /// undo step, and listeners get hint 4. Returns 0 if the change was refused.
    virtual int SetUnitIndexCurrent(const T_UNIT_INDEX& index, int convertModel) = 0;

    /// Bracket a temporary change: the pair of previous and current system is pushed and popped.
    virtual void SaveUnitChangeFactor() = 0;
    virtual void RestoreUnitChangeFactor() = 0;
};

namespace zel {

/// Size of a unit type's unit in metres, newtons and seconds: L^l * F^f.
double unitFactor(int unitType, const T_UNIT_INDEX& system);

/// The text of a unit type in a system.
CString unitText(int unitType, const T_UNIT_INDEX& system);

inline constexpr int lengthUnitCount = 5;  ///< MM, CM, M, INCH, FEET
inline constexpr int forceUnitCount = 6;   ///< KG, TON, N, KN, LBF, KIP

/// The names of the units in files and journals: "MM", "KN".
const char* lengthUnitName(int index);
const char* forceUnitName(int index);

/// Index of a unit name; -1 for an unknown one.
int lengthUnitIndex(std::string_view name);
int forceUnitIndex(std::string_view name);

}  // namespace zel
