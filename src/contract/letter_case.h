#pragma once

#include <algorithm>
#include <string_view>

/// Texts without regard to case: of A to Z alone, whatever the locale of the process is.
namespace zel {

[[nodiscard]] constexpr char lowerLetter(char letter)
{
    return letter >= 'A' && letter <= 'Z' ? static_cast<char>(letter - 'A' + 'a') : letter;
}

[[nodiscard]] constexpr bool equalIgnoringCase(std::string_view left, std::string_view right)
{
    return std::ranges::equal(left, right, {}, lowerLetter, lowerLetter);
}

}  // namespace zel
