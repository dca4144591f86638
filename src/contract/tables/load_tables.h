#pragma once

#include "contract/records/arld.h"
#include "contract/records/envl.h"
#include "contract/records/lnld.h"
#include "contract/records/spdi.h"
#include "contract/records/stld.h"
#include "contract/table_handle.h"

// Static load cases, envelopes, and the load types.

/// Static load cases, in the sequence that the user gave them.
class CDataStld : public CTable<T_STLD_D, Table::STLD,
                                Op::GetCount | Op::GetKeyList | Op::GetList | Op::GetDataList | Op::GetNameList | Op::GetByKey | Op::GetByName | Op::ExistName |
                                    Op::ExistKey | Op::Translate | Op::GetNewKey | Op::AddRecord | Op::AddRecords | Op::ModifyByName | Op::ModifyNames |
                                    Op::DelName | Op::DelNames | Op::Initialize | Op::ChangeSequence | Op::ConvertUnitPrev> {
public:
    ZEL_UPDATE_CODES(STLD)
};

/// Envelopes over load cases and combinations.
class CDataEnvl : public CTable<T_ENVL_D, Table::ENVL,
                                Op::GetCount | Op::GetKeyList | Op::GetList | Op::GetByKey | Op::GetByName | Op::ExistName | Op::AddRecord | Op::ModifyByName |
                                    Op::DelName | Op::Initialize> {
public:
    ZEL_UPDATE_CODES(ENVL)
};

/// Specified displacement interpolations.
class CDataSpdi
    : public CTable<T_SPDI_D, Table::SPDI, Op::GetCount | Op::Iterate | Op::GetByKey | Op::AddRecord | Op::ModifyRecord | Op::DelKey | Op::Initialize> {
public:
    ZEL_UPDATE_CODES(SPDI)
};

/// Line load types.
class CDataLnld : public CTable<T_LNLD_D, Table::LNLD,
                                Op::GetCount | Op::GetKeyList | Op::GetList | Op::GetNameList | Op::GetByKey | Op::ExistName | Op::Initialize | Op::AddRecord |
                                    Op::AddRecords | Op::ModifyByKey | Op::DelKey> {
public:
    ZEL_UPDATE_CODES(LNLD)
};

/// Area load types.
class CDataArld : public CTable<T_ARLD_D, Table::ARLD,
                                Op::GetCount | Op::GetKeyList | Op::GetList | Op::GetNameList | Op::GetByKey | Op::ExistName | Op::Initialize | Op::AddRecord |
                                    Op::AddRecords | Op::ModifyByKey | Op::DelKey> {
public:
    ZEL_UPDATE_CODES(ARLD)
};
