#pragma once

#include "contract/records/arld.h"
#include "contract/records/lnld.h"
#include "contract/table_handle.h"

/// Line load types.
class CDataLnld : public CTable<T_LNLD_D,
                                Op::GetCount | Op::GetKeyList | Op::GetList | Op::GetNameList | Op::GetByKey | Op::ExistName | Op::Initialize | Op::AddRecord |
                                    Op::AddRecords | Op::ModifyByKey | Op::DelKey> {
public:
    ZEL_UPDATE_CODES(LNLD)
};

/// Area load types.
class CDataArld : public CTable<T_ARLD_D,
                                Op::GetCount | Op::GetKeyList | Op::GetList | Op::GetNameList | Op::GetByKey | Op::ExistName | Op::Initialize | Op::AddRecord |
                                    Op::AddRecords | Op::ModifyByKey | Op::DelKey> {
public:
    ZEL_UPDATE_CODES(ARLD)
};
