#include "cli/job_checks.h"

#include "cli/shortest.h"
#include "contract/nearest.h"
#include "contract/tables/static_load_case_table.h"
#include "loadcomb/tables/code_registry.h"

#include <algorithm>
#include <cmath>
#include <stdexcept>
#include <vector>

namespace zel::cli {

namespace {

constexpr double greatestAlphaH = 2.0;
constexpr std::size_t shownNames = 3;

}  // namespace

void requireCode(const std::string& code)
{
    if (codes::findCode(code) != nullptr)
        return;
    std::vector<std::string_view> names;
    for (const codes::CodeEntry& entry : codes::codeRegistry)
        names.push_back(entry.name);
    throw std::runtime_error("there is no design code \"" + code + "\". The nearest are " + quotedList(nearestNames(code, names, shownNames)) +
                             "; \"zel codes\" lists all.");
}

void requireAlphaH(double value)
{
    if (!(value >= 0.0 && value <= greatestAlphaH))
        throw std::runtime_error("alpha_H must be from 0 to " + shortest(greatestAlphaH) + ", not " + shortest(value));
}

void requireScaleFactor(double factor)
{
    if (!(factor >= 0.0 && std::isfinite(factor)))
        throw std::runtime_error("a scale factor must not be below 0, and this is " + shortest(factor));
}

void requireLoadCase(Key key)
{
    CDataStld cases;
    if (cases.Exist(key) != 0)
        return;
    std::vector<Key> keys;
    cases.GetKeyList(keys);
    const auto away = [key](Key other) { return other > key ? other - key : key - other; };
    std::stable_sort(keys.begin(), keys.end(), [&](Key left, Key right) { return away(left) < away(right); });
    std::string nearby;
    for (std::size_t i = 0; i < std::min(keys.size(), shownNames); ++i)
        nearby += (i == 0 ? "" : ", ") + std::to_string(keys[i]) + " \"" + cases.GetNameByKey(keys[i]) + "\"";
    throw std::runtime_error("there is no load case with the key " + std::to_string(key) +
                             (nearby.empty() ? "; the model has none" : "; the nearest are " + nearby));
}

}  // namespace zel::cli
