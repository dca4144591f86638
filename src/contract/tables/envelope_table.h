#pragma once

#include "contract/records/envl.h"
#include "contract/table_handle.h"

/// Envelopes over load cases and combinations.
class CDataEnvl : public CTable<T_ENVL_D,
                                Op::GetCount | Op::GetKeyList | Op::GetList | Op::GetByKey | Op::GetByName | Op::ExistName | Op::AddRecord | Op::ModifyByName |
                                    Op::DelName | Op::Initialize> {
public:
    ZEL_UPDATE_CODES(ENVL)
};
