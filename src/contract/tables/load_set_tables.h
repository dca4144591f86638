#pragma once

#include "contract/records/lcoe.h"
#include "contract/records/lcug.h"
#include "contract/records/lcwd.h"
#include "contract/records/sift.h"
#include "contract/records/slcf.h"
#include "contract/records/surs.h"
#include "contract/table_handle.h"

// The sets and factors that the generation of load combinations reads: one record each.

/// Seismic design factors.
class CDataSlcf : public CTable<T_SLCF_D, Op::GetOut | Op::AddRecord> {
public:
    ZEL_ADD_AND_DELETE_CODES(SLCF)
};

/// Seismic factors for underground loads.
class CDataSift : public CTable<T_SIFT_D, Op::GetOut | Op::AddRecord> {
public:
    ZEL_ADD_AND_DELETE_CODES(SIFT)
};

/// Load-case set for underground loads.
class CDataLcug : public CTable<T_LCUG_D, Op::GetOut | Op::AddRecord> {};

/// Load-case set for wind directions.
class CDataLcwd : public CTable<T_LCWD_D, Op::GetOut | Op::AddRecord> {};

/// Load-case set for the orthogonal effect.
class CDataLcoe : public CTable<T_LCOE_D, Op::GetOut | Op::AddRecord> {};

/// Selections of the default load combination dialog.
class CDataSurs : public CTable<T_SURS_D, Op::GetOut | Op::AddRecord> {};
