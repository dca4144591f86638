#pragma once

#include "contract/records/eigv.h"
#include "contract/records/ltom.h"
#include "contract/records/thfc.h"
#include "contract/records/thld.h"
#include "contract/table_handle.h"

// Dynamic input.

/// Time history functions.
class CDataThfc : public CTable<T_THFC_D, Table::THFC,
                                Op::GetCount | Op::GetList | Op::GetByKey | Op::GetByName | Op::AddRecord | Op::ModifyByName | Op::DelName | Op::Initialize> {
public:
    ZEL_UPDATE_CODES(THFC)
};

/// Time history load cases.
class CDataThld : public CTable<T_THLD_D, Table::THLD,
                                Op::GetCount | Op::GetList | Op::GetByKey | Op::GetByName | Op::AddRecord | Op::ModifyByName | Op::DelName | Op::Initialize> {
public:
    ZEL_UPDATE_CODES(THLD)
};

/// Loads-to-masses data.
class CDataLtom : public CTable<T_LTOM_D, Table::LTOM, Op::GetOut | Op::AddRecord | Op::DelSingle | Op::GetCount> {
public:
};

/// Eigenvalue control.
class CDataEigv : public CTable<T_EIGV_D, Table::EIGV, Op::GetSingle | Op::GetOut | Op::AddRecord | Op::DelSingle | Op::GetCount> {
public:
};
