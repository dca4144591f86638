#pragma once

#include "contract/records/unit_index.h"

class QComboBox;

namespace zel::desktop {

/// Fills a choice with the units of length, or of force, in the order of their indices: "mm", "cm", ...
void fillLengthUnits(QComboBox& choice);
void fillForceUnits(QComboBox& choice);

}  // namespace zel::desktop
