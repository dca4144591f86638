#pragma once

#include "contract/forms/dialog.h"

#include <memory>
#include <span>
#include <string_view>

namespace zel {

/// A dialog class that the command library shows to its hosts, and which neither entry opens beside the views.
struct ExportedDialog {
    std::string_view name;
    std::unique_ptr<CInternationalDlg> (*make)();
};

/// All of them, as far as they are built.
std::span<const ExportedDialog> exportedDialogs();

}  // namespace zel
