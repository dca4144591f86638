#include "contract/nearest.h"

#include "contract/letter_case.h"

#include <algorithm>
#include <cstddef>
#include <numeric>
#include <utility>
#include <vector>

namespace zel {

namespace {

/// Number of letters to insert, drop or change, by the usual table of which only the last row is kept.
std::size_t distance(std::string_view left, std::string_view right)
{
    std::vector<std::size_t> row(right.size() + 1);
    std::iota(row.begin(), row.end(), std::size_t{0});
    for (std::size_t i = 0; i < left.size(); ++i) {
        std::size_t diagonal = row[0];
        row[0] = i + 1;
        for (std::size_t j = 0; j < right.size(); ++j) {
            const std::size_t change = diagonal + (lowerLetter(left[i]) == lowerLetter(right[j]) ? 0 : 1);
            diagonal = row[j + 1];
            row[j + 1] = std::min({change, row[j] + 1, diagonal + 1});
        }
    }
    return row.back();
}

constexpr std::size_t longestWord = 200;  // a longer one is no typing error, and the comparison is quadratic

bool holds(std::string_view text, std::string_view word)
{
    const auto found =
        std::search(text.begin(), text.end(), word.begin(), word.end(), [](char left, char right) { return lowerLetter(left) == lowerLetter(right); });
    return !word.empty() && found != text.end();
}

}  // namespace

std::string nearest(std::string_view word, std::span<const std::string_view> candidates)
{
    if (word.size() > longestWord)
        return {};
    std::string_view best;
    std::size_t bestDistance = std::max<std::size_t>(2, word.size() / 3) + 1;
    for (const std::string_view candidate : candidates) {
        if (candidate.size() > longestWord)
            continue;
        const std::size_t found = distance(word, candidate);
        if (found < bestDistance && found < std::max(word.size(), candidate.size())) {
            bestDistance = found;
            best = candidate;
        }
    }
    return std::string(best);
}

std::string didYouMean(std::string_view word, std::span<const std::string_view> candidates)
{
    const std::string best = nearest(word, candidates);
    return best.empty() ? std::string() : "; did you mean \"" + best + "\"?";
}

std::vector<std::string> nearestNames(std::string_view word, std::span<const std::string_view> candidates, std::size_t count)
{
    std::vector<std::pair<std::size_t, std::string>> ranked;
    for (const std::string_view candidate : candidates) {
        const bool same = holds(candidate, word) || holds(word, candidate);
        const std::size_t far = same ? 1 : distance(word.substr(0, longestWord), candidate.substr(0, longestWord));
        ranked.emplace_back(far, std::string(candidate));
    }
    std::stable_sort(ranked.begin(), ranked.end(), [](const auto& left, const auto& right) { return left.first < right.first; });
    std::vector<std::string> names;
    for (std::size_t i = 0; i < std::min(count, ranked.size()); ++i)
        names.push_back(std::move(ranked[i].second));
    return names;
}

std::string quotedList(const std::vector<std::string>& names)
{
    std::string list;
    for (std::size_t i = 0; i < names.size(); ++i) {
        if (i > 0)
            list += i + 1 == names.size() ? " and " : ", ";
        list += "\"" + names[i] + "\"";
    }
    return list;
}

}  // namespace zel
