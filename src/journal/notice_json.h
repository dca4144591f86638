#pragma once

#include "contract/notices.h"
#include "platform/modeldb/json_text.h"

namespace zel {

/// The changes of the last notice: a list of [table, "ADD", "DEL", "MFD" or "MFS", key].
Json changesToJson(const CViewBuff& changes);

}  // namespace zel
