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
class CDataSlcf : public CTable<T_SLCF_D, Table::SLCF, Op::GetOut | Op::AddRecord> {
public:
    static constexpr int UR_SLCF_ADD = zel::updateCode(Table::SLCF, zel::Change::added);
    static constexpr int UR_SLCF_DEL = zel::updateCode(Table::SLCF, zel::Change::deleted);
};

/// Seismic factors for underground loads.
class CDataSift : public CTable<T_SIFT_D, Table::SIFT, Op::GetOut | Op::AddRecord> {
public:
    static constexpr int UR_SIFT_ADD = zel::updateCode(Table::SIFT, zel::Change::added);
    static constexpr int UR_SIFT_DEL = zel::updateCode(Table::SIFT, zel::Change::deleted);
};

/// Load-case set for underground loads.
class CDataLcug : public CTable<T_LCUG_D, Table::LCUG, Op::GetOut | Op::AddRecord> {
public:
};

/// Load-case set for wind directions.
class CDataLcwd : public CTable<T_LCWD_D, Table::LCWD, Op::GetOut | Op::AddRecord> {
public:
};

/// Load-case set for the orthogonal effect.
class CDataLcoe : public CTable<T_LCOE_D, Table::LCOE, Op::GetOut | Op::AddRecord> {
public:
};

/// Selections of the default load combination dialog.
class CDataSurs : public CTable<T_SURS_D, Table::SURS, Op::GetOut | Op::AddRecord> {
public:
};
