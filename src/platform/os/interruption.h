#pragma once

namespace zel::os {

/// While it lives, the first Ctrl-C (or request to end) only raises a flag, and a closed pipe is a failing write; the second ends the program
/// as usual.
class Interruption {
public:
    Interruption();
    ~Interruption();
    Interruption(const Interruption&) = delete;
    Interruption& operator=(const Interruption&) = delete;

    /// Whether it was asked for since the last one was made.
    [[nodiscard]] static bool asked();
};

}  // namespace zel::os
