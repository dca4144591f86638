#pragma once

#include "contract/forms/dialog.h"
#include "platform/modeldb/json_text.h"

namespace zel {

/// What a user sees of a dialog: its head, and every control with its state, in reading order.
Json formToJson(const CDialog& dialog);

/// One control of a form.
Json controlToJson(const Control& control);

}  // namespace zel
