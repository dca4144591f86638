#pragma once

#include "contract/units.h"

#include <functional>
#include <utility>
#include <vector>

namespace zel {

/// The pair of previous and current unit system.
class UnitCtrl final : public CUnitCtrl {
public:
    /// @param convertModel  makes the change of the whole model to a system; 0 when it was refused
    UnitCtrl(const T_UNIT_INDEX& start, std::function<int(const T_UNIT_INDEX&)> convertModel)
        : m_previous(start), m_current(start), m_convertModel(std::move(convertModel))
    {
    }

    [[nodiscard]] double ConvertUnitDataPrevious(int unitType, double value) const override;
    [[nodiscard]] double GetConvertFactorCurrent(int unitType) const override { return unitFactor(unitType, m_current); }
    [[nodiscard]] double GetConvertFactorPrevious(int unitType) const override { return unitFactor(unitType, m_previous); }
    void GetUnitIndexCurrent(T_UNIT_INDEX& index) const override { index = m_current; }
    int SetUnitIndexCurrent(const T_UNIT_INDEX& index, int convertModel) override;
    void SaveUnitChangeFactor() override { m_saved.emplace_back(m_previous, m_current); }
    void RestoreUnitChangeFactor() override;

    /// Moves on to another current system; the present one becomes the previous.
    void moveTo(const T_UNIT_INDEX& system);

    [[nodiscard]] const T_UNIT_INDEX& previous() const { return m_previous; }
    [[nodiscard]] const T_UNIT_INDEX& current() const { return m_current; }

private:
    T_UNIT_INDEX m_previous;
    T_UNIT_INDEX m_current;
    std::vector<std::pair<T_UNIT_INDEX, T_UNIT_INDEX>> m_saved;
    std::function<int(const T_UNIT_INDEX&)> m_convertModel;
};

}  // namespace zel
