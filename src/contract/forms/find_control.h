#pragma once

#include "contract/text.h"

#include <string_view>

class CDialog;

namespace zel {

class Control;

/// A label as names are compared: without "&", runs of blanks folded to one, blanks and ":" cut from the end.
[[nodiscard]] CString normalisedLabel(std::string_view label);

/// What findControl found: the control, or the sentence that says why there is none.
struct FoundControl {
    Control* control = nullptr;
    CString error;
};

/// Finds a control by name: its label (whole or normalised), "Group/Name" with the caption of its group or page, "Name#2"
/// counted in reading order from 1, or its id. Where a plain name fits several, the only visible one of them is meant.
[[nodiscard]] FoundControl findControl(const CDialog& dialog, std::string_view name);

}  // namespace zel
