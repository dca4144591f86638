#pragma once

#include "contract/document.h"
#include "journal/host_commands.h"
#include "platform/modeldb/json_text.h"

namespace zel {

/// What `view` replies where it changes nothing: the selection, which objects are active (null: all), "Activated Object Only", the modelling
/// mode, and whether the host is in the post-processing mode.
Json viewToJson(CDBDoc& document, const HostCommands& host);

}  // namespace zel
