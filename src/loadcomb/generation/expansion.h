#pragma once

#include "contract/export.h"
#include "contract/records/lcom.h"
#include "loadcomb/generation/load_group.h"
#include "loadcomb/generation/origin.h"
#include "loadcomb/generation/orthogonal_pairs.h"

#include <cstdint>
#include <map>
#include <set>
#include <string>
#include <unordered_map>
#include <utility>
#include <vector>

// A row becomes records: each group with cases extends what the groups before it have made, by the form of its kind.
namespace zel::loadcomb {

using KeyFactors = std::map<std::uint32_t, double>;
using KeyPairs = std::map<std::uint32_t, std::uint32_t>;
/// By load case and sign (+1, -1): the keys of the cases that act with it.
using UndergroundSets = std::map<std::pair<std::uint32_t, int>, std::set<std::uint32_t>>;

using codes::CombType;

/// All that steers the expansion of rows. What concerns one row is set anew for each.
struct ZEL_CMD_API ExpansionState {
    bool orthoOption = false;
    CombType combType = CombType::strength;
    KeyFactors scaleFactors;                             ///< (SUF) values
    KeyPairs eccentricCases;                             ///< an earthquake case to its eccentric partner
    KeyPairs orthoPairs;                                 ///< in both directions
    KeyFactors overstrength;                             ///< (OMG) values
    UndergroundSets undergroundByCase;                   ///< static earth pressures
    UndergroundSets undergroundByCaseOther;              ///< seismic earth pressures
    double underground = 1.0;                            ///< of one row: ratio of its live load factor to its earthquake factor
    bool serviceRow = false;                             ///< of one row
    std::map<int, std::vector<T_LCOM_ITEM>> extraItems;  ///< of one row, by a record's temporary number
    double shortPeriodCoefficient = 0.0;
    double verticalLoadFactor = 0.0;
    double verticalForceFactor = 0.0;
    double alphaH = 1.0;
    std::vector<T_LCOM_D> windCombinations;
    std::unordered_map<std::uint32_t, std::string> names;  ///< of all load cases of the model
    bool tracing = false;                                  ///< keep the choices of each draft
    OrthogonalPairs orthogonalPairs;                       ///< over the cases of the last earthquake row

    [[nodiscard]] bool exists(std::uint32_t key) const { return names.count(key) != 0; }
    [[nodiscard]] bool isUnderground() const { return combType == CombType::underground || combType == CombType::undergroundSpecial; }
    [[nodiscard]] bool isSpecial() const { return combType == CombType::special || combType == CombType::undergroundSpecial; }
    /// Over-strength factors are used for special seismic loads, and never in service rows.
    [[nodiscard]] bool usesOverstrength() const { return !serviceRow && isSpecial(); }
    /// The (SUF) value s of a case; 1.0 if it has none.
    [[nodiscard]] double scaleOf(std::uint32_t key) const;
    /// The (OMG) value g of a case; 1.0 if it has none or none applies.
    [[nodiscard]] double overstrengthOf(std::uint32_t key) const;
    /// The eccentric partner of a case, which must be in the model; 0 if there is none.
    [[nodiscard]] std::uint32_t eccentricOf(std::uint32_t key) const;
    /// The case at right angles, which must be in the model; 0 if there is none.
    [[nodiscard]] std::uint32_t orthogonalOf(std::uint32_t key) const;
};

/// A combination in the making.
struct Draft {
    std::string text;
    std::vector<T_LCOM_ITEM> items;
    int number = 0;  ///< temporary, not 0 where `extraItems` holds something under it
};

/// The drafts of one row, in order. Nothing is in the list before the first group with cases starts it.
struct Drafts {
    bool started = false;
    std::vector<Draft> list;
    std::vector<Choices> choices;  ///< beside the list while tracing, else empty
};

/// A row that is being expanded.
class ZEL_CMD_API RowExpansion {
public:
    /// @param text  of the row, after its analysis
    RowExpansion(ExpansionState& state, std::string text) : m_state(state), m_text(std::move(text)) {}

    /// Extends the drafts by one group with its factor. A group without cases contributes nothing.
    void extend(const _CCmd_Loadcase& group, double factor);

    /// One item a case in every draft, in group order. DL and EV replace their number tokens.
    void plainForm(const _CCmd_Loadcase& group, double factor);
    /// One draft a wind case instead of each.
    void windForm(const _CCmd_Loadcase& group, double factor);
    /// One draft an entry of the wind combinations instead of each, named "WLCB" in the place of "WL".
    void combinationForm(double factor);
    /// The variants of the earthquake form: plain and eccentric, orthogonal, orthogonal and eccentric.
    void earthquakeForm(const _CCmd_Loadcase& group, double factor);

    /// Room for items that each draft gets at once, so that later groups need no new memory.
    void expectItems(std::size_t count) { m_expectedItems = count; }

    [[nodiscard]] Drafts& drafts() { return m_drafts; }

private:
    void start();
    [[nodiscard]] Draft copyOf(const Draft& draft, std::size_t moreItems) const;
    /// Replaces the list: `make` is called with each draft in turn and adds what comes of it.
    template <class Make> void replaceEach(std::size_t timesMore, const Make& make);
    void add(Drafts& to, Draft draft, std::size_t from, Choice choice) const;

    void separateEarthquakes(const _CCmd_Loadcase& group, double factor);
    void addSeparate(Drafts& to, std::size_t from, std::uint32_t key, std::uint32_t partner, int partnerSign, double factor);
    [[nodiscard]] std::vector<T_LCOM_ITEM> undergroundItems(std::uint32_t key, double factor, double g) const;

    void orthogonalEarthquakes(const _CCmd_Loadcase& group, double factor);
    void addOrthogonal(Drafts& to, std::size_t from, const std::vector<OrthogonalPair>& pairs, double factor) const;

    ExpansionState& m_state;
    std::string m_text;
    Drafts m_drafts;
    std::size_t m_expectedItems = 0;
};

}  // namespace zel::loadcomb
