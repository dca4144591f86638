#pragma once

#include "contract/init_ctrl.h"
#include "contract/units.h"

namespace zel {

/// Program settings, kept for the life of the document; a host that stores them puts them in when it opens a model.
class Settings final : public CInitCtrl {
public:
    explicit Settings(const CUnitCtrl& units) : m_units(units) {}

    [[nodiscard]] double DefaultGravity() const override
    {
        constexpr double standardGravity = 9.80665;  // m/s^2; 3rd General Conference on Weights and Measures, 1901
        return standardGravity / m_units.GetConvertFactorCurrent(Unit::acceleration);
    }
    void GetPreference(T_PREFERENCE& preference) const override { preference = m_preference; }
    void SetPreference(const T_PREFERENCE& preference) override { m_preference = preference; }
    void GetAnalysisOption(T_ANALOPTION& option) const override { option = m_option; }
    void SetAnalysisOption(const T_ANALOPTION& option) override { m_option = option; }

private:
    const CUnitCtrl& m_units;
    T_PREFERENCE m_preference;
    T_ANALOPTION m_option;
};

}  // namespace zel
