#pragma once

#include "command/dialog_table.h"

#include <string_view>

namespace zel {

class UserHand;

}  // namespace zel

namespace zel::desktop {

/// The way to a dialog, or none.
struct DialogOpening {
    const DialogRow* row = nullptr;

    /// Whether it leads to a dialog that is built.
    [[nodiscard]] bool isThere() const { return row != nullptr && hasDialogClass(row->dialogClass); }
    /// Title of the dialog of an id or a command; empty for others.
    [[nodiscard]] std::string_view title() const;
    void run(UserHand& hand) const;
};

}  // namespace zel::desktop
