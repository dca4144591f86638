#include "contract/table_operations.h"

#include "contract/table_rows.h"
#include "contract/tables/all.h"

#include <array>

namespace zel {

namespace {

template <class Record, Ops operations> constexpr Ops operationsOf(const CTable<Record, operations>* /*handle*/)
{
    return operations;
}

/// A handle with operations of its own, as that on load combinations, or none.
constexpr Ops operationsOf(const CDBData* /*handle*/)
{
    return Ops(0);
}

#define ZEL_OPERATIONS(CODE, RECORD, HANDLE, ...) operationsOf(static_cast<const HANDLE*>(nullptr)),
constexpr std::array offered{ZEL_TABLES(ZEL_OPERATIONS)};
#undef ZEL_OPERATIONS

}  // namespace

bool offers(const TableInfo& table, Op operation)
{
    return offered[static_cast<std::size_t>(table.table)].has(operation);
}

}  // namespace zel
