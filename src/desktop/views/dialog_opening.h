#pragma once

#include <string_view>

namespace zel {

class UserHand;

}  // namespace zel

namespace zel::desktop {

/// The way to a dialog: an exported id, a modal command's number, or an exported class; one of the three, or none.
struct DialogOpening {
    std::string_view id = {};
    unsigned number = 0;
    std::string_view dialogClass = {};

    /// Whether it leads to a dialog that is built.
    [[nodiscard]] bool isThere() const;
    /// Title of that dialog; empty if there is none.
    [[nodiscard]] std::string_view title() const;
    void run(UserHand& hand) const;
};

}  // namespace zel::desktop
