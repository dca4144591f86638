#include "platform/text/nearest.h"

#include <algorithm>
#include <cstddef>
#include <numeric>
#include <vector>

namespace zel {

namespace {

char lower(char letter) { return letter >= 'A' && letter <= 'Z' ? static_cast<char>(letter - 'A' + 'a') : letter; }

/// Number of letters to insert, drop or change, by the usual table of which only the last row is kept.
std::size_t distance(std::string_view left, std::string_view right)
{
    std::vector<std::size_t> row(right.size() + 1);
    std::iota(row.begin(), row.end(), std::size_t{0});
    for (std::size_t i = 0; i < left.size(); ++i) {
        std::size_t diagonal = row[0];
        row[0] = i + 1;
        for (std::size_t j = 0; j < right.size(); ++j) {
            const std::size_t change = diagonal + (lower(left[i]) == lower(right[j]) ? 0 : 1);
            diagonal = row[j + 1];
            row[j + 1] = std::min({change, row[j] + 1, diagonal + 1});
        }
    }
    return row.back();
}

}  // namespace

std::string nearest(std::string_view word, std::span<const std::string_view> candidates)
{
    constexpr std::size_t longestWord = 200;    // a longer one is no typing error, and the comparison is quadratic
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

}  // namespace zel
