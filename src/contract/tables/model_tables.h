#pragma once

#include "contract/records/actl.h"
#include "contract/records/area.h"
#include "contract/records/arla.h"
#include "contract/records/beam.h"
#include "contract/records/brls.h"
#include "contract/records/coif.h"
#include "contract/records/cosa.h"
#include "contract/records/csdd.h"
#include "contract/records/gdln.h"
#include "contract/records/grup.h"
#include "contract/records/line.h"
#include "contract/records/lnla.h"
#include "contract/records/mctl.h"
#include "contract/records/msln.h"
#include "contract/records/nucs.h"
#include "contract/records/offs.h"
#include "contract/records/omas.h"
#include "contract/records/open.h"
#include "contract/records/pisa.h"
#include "contract/records/pjcf.h"
#include "contract/records/point3.h"
#include "contract/records/pont.h"
#include "contract/records/ptla.h"
#include "contract/records/slab.h"
#include "contract/records/sosa.h"
#include "contract/records/spdp.h"
#include "contract/records/srls.h"
#include "contract/records/thpl.h"
#include "contract/records/wasa.h"
#include "contract/records/wdir.h"
#include "contract/records/wkar.h"
#include "contract/table_handle.h"

// The model itself: objects, assignments and control data. The commands only read or count most of them.

/// Domains.
class CDataWkar : public CTable<T_WKAR_D, Table::WKAR,
                                Op::GetCount | Op::Initialize | Op::GetKeyList | Op::GetList | Op::GetNameList | Op::GetByKey | Op::GetByName | Op::ExistName |
                                    Op::AddRecord | Op::ModifyByKey | Op::DelKey> {
public:
    ZEL_UPDATE_CODES(WKAR)
};

/// Major directions of walls, under the keys of their lines.
class CDataWdir : public CTable<T_WDIR_D, Table::WDIR, Op::GetCount | Op::Initialize | Op::GetKeyList | Op::GetList | Op::AddForKeys | Op::DelKeys> {
public:
    ZEL_UPDATE_CODES(WDIR)
};

/// Model control data.
class CDataMctl : public CTable<T_MCTL_D, Table::MCTL, Op::GetSingle | Op::AddCurrent | Op::ModifySingle | Op::GetCount | Op::Initialize> {
public:
};

/// Main control data.
class CDataActl : public CTable<T_ACTL_D, Table::ACTL, Op::GetSingle | Op::AddCurrent | Op::ModifySingle | Op::GetCount | Op::Initialize> {
public:
};

/// Strip design control data. Modify also stores the first record.
class CDataCsdd : public CTable<T_CSDD_D, Table::CSDD, Op::GetSingle | Op::ModifySingle | Op::GetCount | Op::Initialize> {
public:
};

/// Project information.
class CDataPjcf : public CTable<T_PJCF_D, Table::PJCF, Op::GetSingle | Op::AddCurrent | Op::GetCount | Op::Initialize> {
public:
};

/// Points. `Get` with a position copies the three coordinates out.
class CDataPont : public CTable<T_PONT_D, Table::PONT, Op::GetCount | Op::GetLargeKey | Op::GetKeyList | Op::GetByKey | Op::Initialize> {
public:
    using CTable::Get;

    int Get(zel::Key key, T_POINT3& position)
    {
        if (Get(key) == 0)
            return 0;
        position = {currentRecord.x, currentRecord.y, currentRecord.z};
        return 1;
    }
};

/// Lines.
class CDataLine : public CTable<T_LINE_D, Table::LINE, Op::GetCount | Op::GetLargeKey | Op::GetKeyList | Op::GetByKey> {
public:
};

/// Areas.
class CDataArea : public CTable<T_AREA_D, Table::AREA, Op::GetCount | Op::GetLargeKey | Op::GetKeyList | Op::GetByKey> {
public:
};

/// Groups of objects.
class CDataGrup : public CTable<T_GRUP_D, Table::GRUP, Op::GetCount | Op::GetList | Op::GetByKey> {
public:
    ZEL_UPDATE_CODES(GRUP)
};

/// Beams.
class CDataBeam : public CTable<T_BEAM_D, Table::BEAM, Op::GetCount | Op::GetList | Op::GetByKey> {
public:
    ZEL_UPDATE_CODES(BEAM)
};

/// Slabs.
class CDataSlab : public CTable<T_SLAB_D, Table::SLAB, Op::GetCount | Op::GetList | Op::GetByKey> {
public:
    ZEL_UPDATE_CODES(SLAB)
};

/// Openings.
class CDataOpen : public CTable<T_OPEN_D, Table::OPEN, Op::GetCount | Op::GetByKey> {
public:
};

/// Mesh line dimensions.
class CDataMsln : public CTable<T_MSLN_D, Table::MSLN, Op::GetCount | Op::GetByKey> {
public:
};

/// Column supports, assigned to points.
class CDataCosa : public CTable<T_COSA_D, Table::COSA, Op::GetCount | Op::GetByKey> {
public:
};

/// Pile supports, assigned to points.
class CDataPisa : public CTable<T_PISA_D, Table::PISA, Op::GetCount | Op::GetByKey> {
public:
};

/// Wall supports, assigned to lines.
class CDataWasa : public CTable<T_WASA_D, Table::WASA, Op::GetCount | Op::GetByKey> {
public:
};

/// Soil supports, assigned to areas.
class CDataSosa : public CTable<T_SOSA_D, Table::SOSA, Op::GetCount | Op::GetByKey> {
public:
};

/// Beam end releases.
class CDataBrls : public CTable<T_BRLS_D, Table::BRLS, Op::GetCount | Op::GetByKey> {
public:
};

/// Beam end offsets.
class CDataOffs : public CTable<T_OFFS_D, Table::OFFS, Op::GetCount | Op::GetByKey> {
public:
};

/// Slab end releases.
class CDataSrls : public CTable<T_SRLS_D, Table::SRLS, Op::GetCount | Op::GetByKey> {
public:
};

/// Punching check sizes.
class CDataCoif : public CTable<T_COIF_D, Table::COIF, Op::GetCount | Op::GetByKey> {
public:
};

/// Grid lines.
class CDataGdln : public CTable<T_GDLN_D, Table::GDLN, Op::GetCount | Op::GetByKey> {
public:
};

/// Named coordinate systems.
class CDataNucs : public CTable<T_NUCS_D, Table::NUCS, Op::GetCount | Op::GetByKey> {
public:
};

/// Point loads.
class CDataPtla : public CTable<T_PTLA_D, Table::PTLA, Op::GetCount | Op::GetByKey> {
public:
};

/// Specified displacements.
class CDataSpdp : public CTable<T_SPDP_D, Table::SPDP, Op::GetCount | Op::GetByKey> {
public:
};

/// Line loads, assigned to lines.
class CDataLnla : public CTable<T_LNLA_D, Table::LNLA, Op::GetCount | Op::GetByKey> {
public:
};

/// Area loads, assigned to areas.
class CDataArla : public CTable<T_ARLA_D, Table::ARLA, Op::GetCount | Op::GetByKey> {
public:
};

/// Dynamic point loads.
class CDataThpl : public CTable<T_THPL_D, Table::THPL, Op::GetCount | Op::GetByKey> {
public:
};

/// Masses; the type of each says whether it is of a point, a line or an area.
class CDataOmas : public CTable<T_OMAS_D, Table::OMAS, Op::GetCount | Op::Iterate> {
public:
};
