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
class CDataWkar : public CTable<T_WKAR_D,
                                Op::GetCount | Op::Initialize | Op::GetKeyList | Op::GetList | Op::GetNameList | Op::GetByKey | Op::GetByName | Op::ExistName |
                                    Op::AddRecord | Op::ModifyByKey | Op::DelKey> {
public:
    ZEL_UPDATE_CODES(WKAR)
};

/// Major directions of walls, under the keys of their lines.
class CDataWdir : public CTable<T_WDIR_D, Op::GetCount | Op::Initialize | Op::GetKeyList | Op::GetList | Op::AddForKeys | Op::DelKeys> {
public:
    ZEL_UPDATE_CODES(WDIR)
};

/// Model control data.
class CDataMctl : public CTable<T_MCTL_D, Op::GetSingle | Op::AddCurrent | Op::ModifySingle | Op::GetCount | Op::Initialize> {};

/// Main control data.
class CDataActl : public CTable<T_ACTL_D, Op::GetSingle | Op::AddCurrent | Op::ModifySingle | Op::GetCount | Op::Initialize> {};

/// Strip design control data. Modify also stores the first record.
class CDataCsdd : public CTable<T_CSDD_D, Op::GetSingle | Op::ModifySingle | Op::GetCount | Op::Initialize> {};

/// Project information.
class CDataPjcf : public CTable<T_PJCF_D, Op::GetSingle | Op::AddCurrent | Op::GetCount | Op::Initialize> {};

/// Points. `Get` with a position copies the three coordinates out.
class CDataPont : public CTable<T_PONT_D, Op::GetCount | Op::GetLargeKey | Op::GetKeyList | Op::GetByKey | Op::Initialize> {
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
class CDataLine : public CTable<T_LINE_D, Op::GetCount | Op::GetLargeKey | Op::GetKeyList | Op::GetByKey> {};

/// Areas.
class CDataArea : public CTable<T_AREA_D, Op::GetCount | Op::GetLargeKey | Op::GetKeyList | Op::GetByKey> {};

/// Groups of objects.
class CDataGrup : public CTable<T_GRUP_D, Op::GetCount | Op::GetList | Op::GetByKey> {
public:
    ZEL_UPDATE_CODES(GRUP)
};

/// Beams.
class CDataBeam : public CTable<T_BEAM_D, Op::GetCount | Op::GetList | Op::GetByKey> {
public:
    ZEL_UPDATE_CODES(BEAM)
};

/// Slabs.
class CDataSlab : public CTable<T_SLAB_D, Op::GetCount | Op::GetList | Op::GetByKey> {
public:
    ZEL_UPDATE_CODES(SLAB)
};

/// Openings.
class CDataOpen : public CTable<T_OPEN_D, Op::GetCount | Op::GetByKey> {};

/// Mesh line dimensions.
class CDataMsln : public CTable<T_MSLN_D, Op::GetCount | Op::GetByKey> {};

/// Column supports, assigned to points.
class CDataCosa : public CTable<T_COSA_D, Op::GetCount | Op::GetByKey> {};

/// Pile supports, assigned to points.
class CDataPisa : public CTable<T_PISA_D, Op::GetCount | Op::GetByKey> {};

/// Wall supports, assigned to lines.
class CDataWasa : public CTable<T_WASA_D, Op::GetCount | Op::GetByKey> {};

/// Soil supports, assigned to areas.
class CDataSosa : public CTable<T_SOSA_D, Op::GetCount | Op::GetByKey> {};

/// Beam end releases.
class CDataBrls : public CTable<T_BRLS_D, Op::GetCount | Op::GetByKey> {};

/// Beam end offsets.
class CDataOffs : public CTable<T_OFFS_D, Op::GetCount | Op::GetByKey> {};

/// Slab end releases.
class CDataSrls : public CTable<T_SRLS_D, Op::GetCount | Op::GetByKey> {};

/// Punching check sizes.
class CDataCoif : public CTable<T_COIF_D, Op::GetCount | Op::GetByKey> {};

/// Grid lines.
class CDataGdln : public CTable<T_GDLN_D, Op::GetCount | Op::GetByKey> {};

/// Named coordinate systems.
class CDataNucs : public CTable<T_NUCS_D, Op::GetCount | Op::GetByKey> {};

/// Point loads.
class CDataPtla : public CTable<T_PTLA_D, Op::GetCount | Op::GetByKey> {};

/// Specified displacements.
class CDataSpdp : public CTable<T_SPDP_D, Op::GetCount | Op::GetByKey> {};

/// Line loads, assigned to lines.
class CDataLnla : public CTable<T_LNLA_D, Op::GetCount | Op::GetByKey> {};

/// Area loads, assigned to areas.
class CDataArla : public CTable<T_ARLA_D, Op::GetCount | Op::GetByKey> {};

/// Dynamic point loads.
class CDataThpl : public CTable<T_THPL_D, Op::GetCount | Op::GetByKey> {};

/// Masses; the type of each says whether it is of a point, a line or an area.
class CDataOmas : public CTable<T_OMAS_D, Op::GetCount | Op::Iterate> {};
