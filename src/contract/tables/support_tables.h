#pragma once

#include "contract/records/cosd.h"
#include "contract/records/gspd.h"
#include "contract/records/pisd.h"
#include "contract/records/sosd.h"
#include "contract/records/wasd.h"
#include "contract/table_handle.h"

// Support types.

/// Column support types.
class CDataCosd : public CTable<T_COSD_D,
                                Op::GetCount | Op::GetList | Op::GetNameList | Op::GetByKey | Op::ExistName | Op::AddRecord | Op::AddRecords | Op::ModifyByKey |
                                    Op::DelKey | Op::Initialize> {
public:
    ZEL_UPDATE_CODES(COSD)
};

/// Pile support types.
class CDataPisd : public CTable<T_PISD_D,
                                Op::GetCount | Op::GetList | Op::GetNameList | Op::GetByKey | Op::ExistName | Op::AddRecord | Op::AddRecords | Op::ModifyByKey |
                                    Op::DelKey | Op::Initialize> {
public:
    ZEL_UPDATE_CODES(PISD)
};

/// Wall support types.
class CDataWasd : public CTable<T_WASD_D,
                                Op::GetCount | Op::GetList | Op::GetNameList | Op::GetByKey | Op::ExistName | Op::AddRecord | Op::AddRecords | Op::ModifyByKey |
                                    Op::DelKey | Op::Initialize> {
public:
    ZEL_UPDATE_CODES(WASD)
};

/// Soil support types.
class CDataSosd : public CTable<T_SOSD_D,
                                Op::GetCount | Op::GetList | Op::GetNameList | Op::GetByKey | Op::ExistName | Op::AddRecord | Op::AddRecords | Op::ModifyByKey |
                                    Op::DelKey | Op::Initialize> {
public:
    ZEL_UPDATE_CODES(SOSD)
};

/// General spring types.
class CDataGspd : public CTable<T_GSPD_D,
                                Op::GetCount | Op::GetList | Op::GetNameList | Op::GetByKey | Op::ExistName | Op::AddRecord | Op::AddRecords | Op::ModifyByKey |
                                    Op::DelKey | Op::Initialize> {
public:
    ZEL_UPDATE_CODES(GSPD)
};
