#pragma once

#include "desktop/forms/form_window.h"

#include <string>
#include <vector>

namespace desktop_test {

/// What is wrong with the drawing of a form, a sentence each; empty when all is well.
using Complaints = std::vector<std::string>;

/// Every visible widget lies inside the one around it, none covers another, and each text has room.
Complaints clippedOrCovered(const zel::desktop::FormWindow& form);
/// Fields below each other begin at one line, within a frame and across frames.
Complaints misaligned(const zel::desktop::FormWindow& form);
/// Label, value, enabling and visibility are the controller's.
Complaints unlikeController(const zel::desktop::FormWindow& form);
/// Below each other or side by side in the order of the controls, and so does Tab go.
Complaints outOfOrder(const zel::desktop::FormWindow& form);
/// Mnemonics are unique; whatever takes the focus has a name that nothing else in the form has.
Complaints badlyNamed(const zel::desktop::FormWindow& form);

/// One line each, for a failure's message.
std::string joined(const Complaints& complaints);

}  // namespace desktop_test
