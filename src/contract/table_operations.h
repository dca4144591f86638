#pragma once

#include "contract/table_handle.h"

/// What the handle of a table offers, for who knows only the table.
namespace zel {

/// Whether the handle of the table has the operation; false for a table without a handle.
bool offers(const TableInfo& table, Op operation);

}  // namespace zel
