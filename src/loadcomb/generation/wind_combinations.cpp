#include "loadcomb/generation/wind_combinations.h"

#include "contract/load_types.h"
#include "loadcomb/generation/number_token.h"

#include <algorithm>
#include <array>
#include <string_view>
#include <unordered_map>

namespace zel::loadcomb {

namespace {

struct Sign {
    double factor;
    std::string_view text;
};
constexpr std::array<Sign, 2> bothSigns{{{1.0, "+"}, {-1.0, "-"}}};

/// The factors of the three parts. In each of the three rows one part is at its full value.
struct WindFactors {
    std::array<double, 3> along, across, torsion;

    explicit WindFactors(const T_LCWD_BASE& set) : along{1.0, 0.4 + 0.6 / set.gd, 0.4 + 0.6 / set.gd}, across{0.4, 1.0, set.k}, torsion{0.4, set.k, 1.0} {}
};

class WindCombiner {
public:
    WindCombiner(const T_LCWD_D& sets, const std::vector<LoadCase>& cases, int kind) : m_sets(sets), m_kind(kind)
    {
        for (const LoadCase& loadCase : cases)
            m_names.emplace(loadCase.key, loadCase.name);
        for (const Sign& sign : bothSigns) {
            const int left = sign.factor > 0.0 ? 2 : 1;  // the direction that leaves this sign out
            if (sets.torsionDirection != left)
                m_torsionSigns.push_back(sign);
        }
    }

    std::vector<T_LCOM_D> combine(const std::vector<LoadCase>& cases)
    {
        for (const LoadCase& loadCase : cases) {
            if (loadCase.type != load_type::wind)
                continue;
            bool hasSet = false;
            for (const T_LCWD_BASE& set : m_sets.sets) {
                if (set.along != loadCase.key)
                    continue;
                hasSet = true;
                addSet(set);
            }
            if (!hasSet)
                addAlone(loadCase.key);
        }
        return std::move(m_made);
    }

private:
    void addSet(const T_LCWD_BASE& set)
    {
        const WindFactors factors(set);
        switch (windForm(set, m_names.count(set.across) != 0, m_names.count(set.torsion) != 0)) {
        case WindForm::along:
            addAlone(set.along);
            break;
        case WindForm::alongAcross:
            for (const Sign& sign : bothSigns) {
                begin();
                plain(set.along, 1.0, {});
                plain(set.across, sign.factor, sign.text);
            }
            break;
        case WindForm::alongAcrossHigh:
            for (std::size_t i = 0; i < 3; ++i) {
                for (const Sign& sign : bothSigns) {
                    begin();
                    factored(set.along, factors.along[i], {1.0, {}});
                    factored(set.across, factors.across[i], sign);
                }
            }
            break;
        case WindForm::alongTorsion:
            for (std::size_t i = 0; i < 3; ++i) {
                for (const Sign& sign : m_torsionSigns) {
                    begin();
                    factored(set.along, factors.along[i], {1.0, {}});
                    factored(set.torsion, factors.torsion[i], sign);
                }
            }
            break;
        case WindForm::all:
            for (std::size_t i = 0; i < 3; ++i) {
                for (const Sign& acrossSign : bothSigns) {
                    for (const Sign& torsionSign : m_torsionSigns) {
                        begin();
                        factored(set.along, factors.along[i], {1.0, {}});
                        factored(set.across, factors.across[i], acrossSign);
                        factored(set.torsion, factors.torsion[i], torsionSign);
                    }
                }
            }
            break;
        }
    }

    void addAlone(std::uint32_t key)
    {
        begin();
        plain(key, 1.0, {});
    }

    void begin()
    {
        T_LCOM_D& made = m_made.emplace_back();
        made.kind = m_kind;
        made.active = 0;
    }

    /// A term without its factor in the text: " + WA".
    void plain(std::uint32_t key, double factor, std::string_view sign) { term(key, factor, sign, {}); }

    /// A term with its factor in the text: " - 0.8WT". The sign stands in the text and not in the factor.
    void factored(std::uint32_t key, double factor, const Sign& sign) { term(key, factor * sign.factor, sign.text, windFactorText(factor)); }

    void term(std::uint32_t key, double factor, std::string_view sign, std::string_view factorText)
    {
        T_LCOM_D& made = m_made.back();
        made.items.push_back({staticCaseItem, key, factor});
        if (!sign.empty())
            made.description.append(" ").append(sign).append(" ");
        made.description.append(factorText).append(m_names.at(key));
    }

    const T_LCWD_D& m_sets;
    int m_kind;
    std::unordered_map<std::uint32_t, std::string_view> m_names;
    std::vector<Sign> m_torsionSigns;
    std::vector<T_LCOM_D> m_made;
};

}  // namespace

WindForm windForm(const T_LCWD_BASE& set, bool acrossExists, bool torsionExists)
{
    if (acrossExists && torsionExists)
        return WindForm::all;
    if (acrossExists)
        return set.buildingType == 0 ? WindForm::alongAcross : WindForm::alongAcrossHigh;
    return torsionExists ? WindForm::alongTorsion : WindForm::along;
}

std::vector<T_LCOM_D> makeWindCombinations(const T_LCWD_D& sets, const std::vector<LoadCase>& cases, int kind)
{
    if (sets.sets.empty())
        return {};
    return WindCombiner(sets, cases, kind).combine(cases);
}

}  // namespace zel::loadcomb
