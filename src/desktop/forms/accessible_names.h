#pragma once

#include "contract/forms/dialog.h"

#include <QString>

#include <vector>

namespace zel::desktop {

/// What assistive tools call each of these controls, in reading order: its label; for "..." the field that it belongs to; for a control without label
/// the field before it or the frame around it, else the dialog. Where several would bear one name, the frame, then a number, tells them apart.
std::vector<QString> accessibleNames(const CDialog& dialog, const std::vector<Control*>& controls);

}  // namespace zel::desktop
