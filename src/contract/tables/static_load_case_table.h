#pragma once

#include "contract/records/stld.h"
#include "contract/table_handle.h"

/// Static load cases, in the sequence that the user gave them.
class CDataStld : public CTable<T_STLD_D,
                                Op::GetCount | Op::GetKeyList | Op::GetList | Op::GetDataList | Op::GetNameList | Op::GetByKey | Op::GetByName | Op::ExistName |
                                    Op::ExistKey | Op::Translate | Op::GetNewKey | Op::AddRecord | Op::AddRecords | Op::ModifyByName | Op::ModifyNames |
                                    Op::DelName | Op::DelNames | Op::Initialize | Op::ChangeSequence | Op::ConvertUnitPrev> {
public:
    ZEL_UPDATE_CODES(STLD)
};
