#pragma once

#include "contract/records/anal_option.h"
#include "contract/records/preference.h"

/// Program settings. The host keeps preferences and analysis options in its own settings, not in the model.
class CInitCtrl {
public:
    CInitCtrl() = default;
    CInitCtrl(const CInitCtrl&) = delete;
    CInitCtrl& operator=(const CInitCtrl&) = delete;
    virtual ~CInitCtrl() = default;

    /// Standard gravity, 9.80665 m/s^2, in the current units.
    [[nodiscard]] virtual double DefaultGravity() const = 0;

    virtual void GetPreference(T_PREFERENCE& preference) const = 0;
    virtual void SetPreference(const T_PREFERENCE& preference) = 0;
    virtual void GetAnalysisOption(T_ANALOPTION& option) const = 0;
    virtual void SetAnalysisOption(const T_ANALOPTION& option) = 0;
};
