#pragma once

#include "contract/records/eigv.h"
#include "contract/records/ltom.h"
#include "contract/records/thfc.h"
#include "contract/records/thld.h"
#include "contract/table_handle.h"

// Dynamic input.

/// Time history functions.
class CDataThfc
    : public CTable<T_THFC_D, Op::GetCount | Op::GetList | Op::GetByKey | Op::GetByName | Op::AddRecord | Op::ModifyByName | Op::DelName | Op::Initialize> {
public:
    ZEL_UPDATE_CODES(THFC)
};

/// Time history load cases.
class CDataThld
    : public CTable<T_THLD_D, Op::GetCount | Op::GetList | Op::GetByKey | Op::GetByName | Op::AddRecord | Op::ModifyByName | Op::DelName | Op::Initialize> {
public:
    ZEL_UPDATE_CODES(THLD)
};

/// Loads-to-masses data.
class CDataLtom : public CTable<T_LTOM_D, Op::GetOut | Op::AddRecord | Op::DelSingle | Op::GetCount> {};

/// Eigenvalue control.
class CDataEigv : public CTable<T_EIGV_D, Op::GetSingle | Op::GetOut | Op::AddRecord | Op::DelSingle | Op::GetCount> {};
