#pragma once

#include "contract/table_rows.h"

#include <cstdint>

/// The tables of the model by their four-letter codes. Who only passes a table on, or works on a handle, is well served by the
/// declaration in table_list.h: this list grows with every new table.
enum class Table : std::int32_t {
#define ZEL_ENUMERATOR(code, ...) code,
    ZEL_TABLES(ZEL_ENUMERATOR)
#undef ZEL_ENUMERATOR
};
