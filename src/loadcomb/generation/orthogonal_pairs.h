#pragma once

#include "contract/records/lcom.h"
#include "loadcomb/generation/origin.h"

#include <cstdint>
#include <map>
#include <string>
#include <string_view>
#include <vector>

// The 100:30 rule: an earthquake case in full with a share of the case at right angles, each with its eccentric partner.
namespace zel::loadcomb {

struct ExpansionState;

/// The two cases of one combination, with all that does not depend on the row.
struct OrthogonalPair {
    EarthquakeChoice major, minor;
    std::string text;  ///< "(1.0(1.10)RX+0.3(1.15)RY)"

    /// Appends the items of both cases, for a row with this factor.
    void appendItems(std::vector<T_LCOM_ITEM>& items, double factor) const;
};

/// All pairs over some earthquake cases, in the two passes in which they are added. The rows of a run share them: they are made anew when
/// something that they depend on has changed.
class OrthogonalPairs {
public:
    void prepare(const ExpansionState& state, const std::vector<std::uint32_t>& cases);

    /// Eccentric partners of both members added, then of both subtracted.
    [[nodiscard]] const std::vector<OrthogonalPair>& together() const { return m_together; }
    /// One partner added and the other subtracted.
    [[nodiscard]] const std::vector<OrthogonalPair>& apart() const { return m_apart; }

private:
    /// What the pairs depend on, beside the names of the load cases, which stay for a run.
    struct Basis {
        std::vector<std::uint32_t> cases;
        std::map<std::uint32_t, std::uint32_t> orthoPairs, eccentricCases;
        std::map<std::uint32_t, double> scaleFactors, overstrength;
        bool usesOverstrength = false;
    };
    [[nodiscard]] bool areMadeOf(const ExpansionState& state, const std::vector<std::uint32_t>& cases) const;

    Basis m_basis;  // without cases in the beginning, like the pairs
    std::vector<OrthogonalPair> m_together, m_apart;
};

}  // namespace zel::loadcomb
