#pragma once

#include "contract/records/matl.h"
#include "contract/records/secf.h"
#include "contract/records/sect.h"
#include "contract/records/thik.h"
#include "contract/records/thkf.h"
#include "contract/table_handle.h"

// Materials, sections and thicknesses.

/// Materials.
class CDataMatl : public CTable<T_MATL_D,
                                Op::GetCount | Op::GetLargeKey | Op::GetNewKey | Op::GetNewKeyAfter | Op::GetByKey | Op::GetList | Op::GetKeyList | Op::AddKey |
                                    Op::AddKeys | Op::ModifyByKey | Op::DelKey | Op::Initialize> {
public:
    ZEL_UPDATE_CODES(MATL)
};

/// Sections.
class CDataSect : public CTable<T_SECT_D,
                                Op::GetCount | Op::GetLargeKey | Op::GetNewKey | Op::GetNewKeyAfter | Op::GetByKey | Op::GetList | Op::GetKeyList | Op::AddKey |
                                    Op::AddKeys | Op::ModifyByKey | Op::DelKey | Op::Initialize> {
public:
    ZEL_UPDATE_CODES(SECT)
};

/// Slab thicknesses.
class CDataThik : public CTable<T_THIK_D,
                                Op::GetCount | Op::GetLargeKey | Op::GetNewKey | Op::GetNewKeyAfter | Op::GetByKey | Op::GetList | Op::GetKeyList | Op::AddKey |
                                    Op::AddKeys | Op::ModifyByKey | Op::DelKey | Op::Initialize> {
public:
    ZEL_UPDATE_CODES(THIK)
};

/// Section stiffness scale factors.
class CDataSecf : public CTable<T_SECF_D, Op::GetCount | Op::GetList | Op::GetByKey | Op::AddForKeys | Op::DelKeys> {};

/// Thickness stiffness scale factors.
class CDataThkf : public CTable<T_THKF_D, Op::GetCount | Op::GetList | Op::GetByKey | Op::AddForKeys | Op::DelKeys> {};
