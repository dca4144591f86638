#pragma once

#include "contract/records/spdi.h"
#include "contract/table_handle.h"

/// Specified displacement interpolations.
class CDataSpdi : public CTable<T_SPDI_D, Op::GetCount | Op::Iterate | Op::GetByKey | Op::AddRecord | Op::ModifyRecord | Op::DelKey | Op::Initialize> {
public:
    ZEL_UPDATE_CODES(SPDI)
};
