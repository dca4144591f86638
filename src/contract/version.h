#pragma once

namespace zel {

/// The version of the program; stands in model files ("created_by") and in `zel --version`.
inline constexpr const char* versionText = "0.1.0";

}  // namespace zel
