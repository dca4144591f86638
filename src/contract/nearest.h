#pragma once

#include <cstddef>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace zel {

/// The candidate that `word` was probably meant to be, comparing without case: the one with the fewest letters to insert,
/// drop or change. Empty when even that one differs in more than a third of the word's letters, at least in two.
std::string nearest(std::string_view word, std::span<const std::string_view> candidates);

/// "; did you mean \"name\"?" for the nearest candidate, and an empty text when none is near.
std::string didYouMean(std::string_view word, std::span<const std::string_view> candidates);

/// At most `count` candidates, however far they are, the nearest first. One that holds the word is as near as one letter.
std::vector<std::string> nearestNames(std::string_view word, std::span<const std::string_view> candidates, std::size_t count);

/// "\"A\", \"B\" and \"C\""; empty for no names.
std::string quotedList(const std::vector<std::string>& names);

}  // namespace zel
