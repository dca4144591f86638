#pragma once

#include <cstdint>
#include <span>
#include <string_view>

// A row of a code's table in the object-style generator: a combination over abstract load kinds. Texts have no blanks and steer nothing.
namespace zel::object_style {

enum class Flag : std::uint8_t { service = 0, strength = 1 };
using enum Flag;

/// A load kind, by its symbol, with its factor.
struct Pair {
    std::string_view kind;    ///< "" for none
    double factor = 0.0;
};

struct Row {
    Flag flag = strength;
    std::string_view text;
    Pair pairs[4];
};

/// The factors that are printed as 2/3 and 1/1.35, before they become 32-bit numbers.
inline constexpr double twoThirds = 0.6666666666666666;
inline constexpr double over1_35 = 0.7407407407407407;

/// Whether a text names a kind: "DL" for "D".
constexpr bool namesKind(std::string_view text, std::string_view kind)
{
    for (std::size_t at = text.find(kind); at != std::string_view::npos; at = text.find(kind, at + 1)) {
        if (text.substr(at + kind.size(), 1) == "L")
            return true;
    }
    return false;
}

/// Each pair's kind stands in its row's text.
constexpr bool textsNameTheirKinds(std::span<const Row> table)
{
    for (const Row& row : table) {
        for (const Pair& pair : row.pairs) {
            if (!pair.kind.empty() && !namesKind(row.text, pair.kind))
                return false;
        }
    }
    return true;
}

}  // namespace zel::object_style
