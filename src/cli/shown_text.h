#pragma once

#include <string>
#include <string_view>

namespace zel::cli {

/// A text as a table or a message shows it: control characters, which could move a terminal's cursor or change what it shows, are written out
/// ("\n", "\t", "\x1B"). Anything else stays as it is.
[[nodiscard]] std::string shownText(std::string_view text);

}  // namespace zel::cli
