#pragma once

#include <array>

namespace zel {

/// The design kinds of load combinations. Each has keys, names and a sequence of its own; the numbers are in files and journals.
enum class DesignKind : int { general = 1, steel = 2, concrete = 3, footing = 4, src = 5 };

inline constexpr std::array designKinds{DesignKind::general, DesignKind::steel, DesignKind::concrete, DesignKind::footing, DesignKind::src};

// As table handles and records count them.
inline constexpr int firstDesignKind = static_cast<int>(designKinds.front());
inline constexpr int lastDesignKind = static_cast<int>(designKinds.back());

constexpr bool isDesignKind(int kind)
{
    return kind >= firstDesignKind && kind <= lastDesignKind;
}

}  // namespace zel
