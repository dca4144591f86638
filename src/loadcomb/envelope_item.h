#pragma once

#include "contract/records/envl.h"
#include "contract/table_store.h"
#include "contract/text.h"

#include <vector>

/// What an envelope is made of: static load cases and combinations, by type and key.
namespace zel::loadcomb {

/// The label of an item type: "ST" for a static load case, "CB" to "CBR" for combinations of the kinds 1 to 5; empty for a type without one.
CString envelopeTypeLabel(int type);

/// The name of what an item stands for, read from its table; empty when it no longer exists.
CString envelopeItemName(const T_ENVL_BASE& item);

/// Everything that can be enveloped: the static load cases, then the combinations of the kinds 1 to 5, each in the sequence of its table.
std::vector<T_ENVL_BASE> envelopeCandidates();

}  // namespace zel::loadcomb
