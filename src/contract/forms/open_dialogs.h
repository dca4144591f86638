#pragma once

#include <vector>

class CDialog;

namespace zel {

/// All open dialogs that have appeared, modal and modeless, front first.
[[nodiscard]] const std::vector<CDialog*>& openDialogs();

/// The dialog that input goes to: the innermost modal one, else the modeless one opened or activated last; null if none is open.
[[nodiscard]] CDialog* activeDialog();

/// Whether a control or dialog is handling what the user did.
[[nodiscard]] bool userActionUnderWay();

/// Deletes the modeless dialogs that were closed, unless a user action is under way. A host calls it when idle.
void deleteClosedDialogs();

}  // namespace zel
