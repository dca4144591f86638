#include "contract/record.h"
#include "contract/records/all.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdio>
#include <memory>
#include <ostream>
#include <string>
#include <vector>

using zel::describe;
using zel::FieldInfo;
using zel::FieldShape;
using zel::FieldType;
using zel::RecordInfo;

namespace {

std::string number(double value)
{
    char text[32];
    std::snprintf(text, sizeof text, "%g", value);
    return text;
}

/// "name s", "gravity d11", "value d*[6]", "points r[]": type s text, i int32, u uint32, d real with its unit type (* where the
/// record decides), r record; [n] an array, [] a list.
std::string written(const FieldInfo& field)
{
    std::string text{field.name};
    switch (field.type) {
    case FieldType::text:
        text += " s";
        break;
    case FieldType::int32:
        text += " i";
        break;
    case FieldType::uint32:
        text += " u";
        break;
    case FieldType::real:
        text += field.unit == Unit::byRecord ? " d*" : " d" + std::to_string(field.unit);
        break;
    case FieldType::record:
        text += " r";
        break;
    }
    if (field.shape == FieldShape::array)
        text += "[" + std::to_string(field.count) + "]";
    if (field.shape == FieldShape::list)
        text += "[]";
    return text;
}

/// Appends ", " between entries.
void append(std::string& list, const std::string& entry)
{
    if (!list.empty())
        list += ", ";
    list += entry;
}

/// What in the record is neither 0 nor empty: "kind=1, base.builtUp=2".
void appendNonZero(std::string& list, const RecordInfo& info, const void* record, const std::string& prefix)
{
    for (const FieldInfo& field : info.fields) {
        for (std::size_t i = 0; i < field.sizeIn(record); ++i) {
            const void* element = field.element(record, i);
            std::string value;
            switch (field.type) {
            case FieldType::text:
                value = *static_cast<const CString*>(element);
                break;
            case FieldType::int32:
                value = number(*static_cast<const std::int32_t*>(element));
                break;
            case FieldType::uint32:
                value = number(*static_cast<const std::uint32_t*>(element));
                break;
            case FieldType::real:
                value = number(*static_cast<const double*>(element));
                break;
            case FieldType::record:
                appendNonZero(list, *field.inner, element, prefix + std::string{field.name} + ".");
                continue;
            }
            if (!value.empty() && value != "0")
                append(list, prefix + std::string{field.name} + "=" + value);
        }
    }
}

std::size_t alignmentOf(const RecordInfo& info);

std::size_t alignmentOf(const FieldInfo& field)
{
    if (field.shape == FieldShape::list)
        return alignof(std::vector<int>);
    switch (field.type) {
    case FieldType::text:
        return alignof(CString);
    case FieldType::real:
        return alignof(double);
    case FieldType::record:
        return alignmentOf(*field.inner);
    default:
        return alignof(std::int32_t);
    }
}

std::size_t alignmentOf(const RecordInfo& info)
{
    std::size_t alignment = 1;
    for (const FieldInfo& field : info.fields)
        alignment = std::max(alignment, alignmentOf(field));
    return alignment;
}

std::size_t alignedUp(std::size_t offset, std::size_t alignment)
{
    return (offset + alignment - 1) / alignment * alignment;
}

/// Changes one field of a record to something that is not its default.
void change(const FieldInfo& field, void* record)
{
    if (field.list != nullptr && field.sizeIn(record) == 0) {
        field.list->resize(field.in(record), 1);
        return;
    }
    void* element = field.element(record, field.sizeIn(record) - 1);
    switch (field.type) {
    case FieldType::text:
        *static_cast<CString*>(element) += "changed";
        break;
    case FieldType::int32:
        *static_cast<std::int32_t*>(element) += 7;
        break;
    case FieldType::uint32:
        *static_cast<std::uint32_t*>(element) += 7;
        break;
    case FieldType::real:
        *static_cast<double*>(element) += 0.25;
        break;
    case FieldType::record:
        change(field.inner->fields.back(), element);
        break;
    }
}

template <class Record> bool initializeRestoresDefaults()
{
    Record record;
    for (const FieldInfo& field : describe<Record>().fields)
        change(field, &record);
    record.Initialize();
    return record == Record{};
}

/// What one record must look like from outside.
struct Expected {
    const char* name;
    const char* fields;    ///< in order, as `written` puts them
    const char* defaults;  ///< all that is neither 0 nor empty in a new one
    const RecordInfo& (*info)();
    std::size_t size;  ///< of the struct [bytes]
    bool (*initializeRestores)();
};

void PrintTo(const Expected& record, std::ostream* out)
{
    *out << record.name;
}

template <class Record> Expected expect(const char* name, const char* fields, const char* defaults = "")
{
    return {name, fields, defaults, &describe<Record>, sizeof(Record), &initializeRestoresDefaults<Record>};
}

const char* const materialFields = "elasticity d6, poisson d0, thermal d22, density d9";
const char* const lineAndType = "lineKey u, typeKey u";
const char* const areaAndType = "areaKey u, typeKey u";
const char* const pointAndType = "pointKey u, typeKey u";
const char* const position = "x d1, y d1, z d1";
const char* const overStrength = "loadCaseKey u, factor d0";

const Expected loadRecords[] = {
    expect<T_STLD_D>("T_STLD_D", "name s, no i, type s, description s, selfWeightFactor d0, subLoadCaseCount i, combinationType u, majorCase i", "type=D"),
    expect<T_LCOM_ITEM>("T_LCOM_ITEM", "type i, key u, factor d0"),
    expect<T_LCOM_D>("T_LCOM_D", "kind i, name s, number i, active i, description s, items r[]", "active=1"),
    expect<T_ENVL_BASE>("T_ENVL_BASE", "type i, key u"),
    expect<T_ENVL_D>("T_ENVL_D", "name s, description s, items r[]"),
    expect<T_SPDI_BASE>("T_SPDI_BASE", "x d0, value d*[6]"),
    expect<T_SPDI_D>("T_SPDI_D", "loadCaseKey u, subLoadCaseNo i, point1 u, point2 u, dofFlags s, rows r[]", "dofFlags=111111"),
    expect<T_LNLD_D>("T_LNLD_D", "name s, description s, loadCase1 u, loadCase2 u, loadCase3 u, load1 d7, load2 d7, load3 d7"),
    expect<T_ARLD_D>("T_ARLD_D",
                     "name s, description s, loadCase1 u, loadCase2 u, loadCase3 u, load1 d8, load2 d8, load3 d8, "
                     "includeWeight1 i, includeWeight2 i, includeWeight3 i"),
    expect<T_SOSF_BASE>("T_SOSF_BASE", overStrength, "factor=0.2"),
    expect<T_SLCF_D>("T_SLCF_D", "verticalLoadFactor d0, verticalForceFactor d0, shortPeriodCoefficient d0, overStrengthFactors r[]",
                     "verticalLoadFactor=0.2, verticalForceFactor=0.2"),
    expect<T_SIFT_BASE>("T_SIFT_BASE", overStrength, "factor=0.2"),
    expect<T_SIFT_D>("T_SIFT_D", "verticalLoadFactor d0, shortPeriodCoefficient d0, overStrengthFactors r[]", "verticalLoadFactor=0.2"),
    expect<T_LCUG_SF>("T_LCUG_SF", "factor d0, loadCaseKey u, eccentricKey u", "factor=1"),
    expect<T_LCUG_SEIS>("T_LCUG_SEIS", "loadCaseKey u, direction i, seismicKeys u[], staticKeys u[]"),
    expect<T_LCUG_D>("T_LCUG_D", "scaleUps r[], groups r[]"),
    expect<T_LCWD_BASE>("T_LCWD_BASE", "groupNo i, buildingType i, along u, across u, torsion u, gd d0, k d0", "buildingType=1, gd=2.2, k=0.8"),
    expect<T_LCWD_D>("T_LCWD_D", "reserved i, torsionDirection i, sets r[]"),
    expect<T_LCOE_BASE>("T_LCOE_BASE", "case1 u, case2 u"),
    expect<T_LCOE_D>("T_LCOE_D", "pairs r[]"),
    expect<T_SURS_SF>("T_SURS_SF", "loadCaseKey u, factor d0, eccentricKey u", "factor=1"),
    expect<T_SURS_D>("T_SURS_D", "scaleFactors r[]"),
    expect<T_LOAD_ATTR>("T_LOAD_ATTR", "selfWeight i, pointLoad i, specifiedDisplacement i, lineLoad i, areaLoad i"),
};

const Expected dynamicRecords[] = {
    expect<T_THFC_BASE>("T_THFC_BASE", "time d20, value d*"),
    expect<T_THFC_D>("T_THFC_D",
                     "name s, functionType i, dataType i, scaleFactor d0, gravity d11, reservedInt i, sinA d*, sinC d*, sinFrequency d21, "
                     "sinDamping d0, sinPhaseAngle d18, points r[]",
                     "functionType=1, scaleFactor=1, sinA=1, sinFrequency=1"),
    expect<T_THLD_BASE>("T_THLD_BASE", "mode i, damping d0"),
    expect<T_THLD_D>("T_THLD_D",
                     "name s, description s, key u, endTime d20, timeIncrement d20, outputSteps i, analysisType i, dampingAllModes d0, modalDamping r[]",
                     "endTime=1, timeIncrement=0.1, outputSteps=1, analysisType=1, dampingAllModes=0.05"),
    expect<T_EIGV_D>("T_EIGV_D", "frequencies i, lowerLimit d21, upperLimit d21, iterations i, subspaceDimension i, tolerance d0, frequencyShift d21",
                     "frequencies=10, iterations=20, tolerance=1e-06"),
    expect<T_LTOM_BASE>("T_LTOM_BASE", "loadCase u, scale d0"),
    expect<T_LTOM_D>("T_LTOM_D", "usePointLoad i, useLineLoad i, useAreaLoad i, gravity d11, cases r[]"),
};

const Expected controlRecords[] = {
    expect<T_MCTL_D>("T_MCTL_D", "maxMeshDimension d1, massConversion i, gravity d11, alignBeamTop i, alignSlabTop i, loadCoordinates i",
                     "maxMeshDimension=1000"),
    expect<T_ACTL_D>("T_ACTL_D", "springMode i, iterations i, iterationsPerCase i, subIterations i, tolerance d0",
                     "springMode=1, iterations=20, iterationsPerCase=20, subIterations=10, tolerance=0.001"),
    expect<T_CSDD_D>("T_CSDD_D",
                     "autoWidth i, widthOption i, factorA d0, factorX i, widthType i, rounding i, roundingMode i, roundingDecimals i, forcePositions i, "
                     "baseOnClearSpan i",
                     "autoWidth=1, factorA=1, factorX=4, roundingDecimals=2, forcePositions=9"),
    expect<T_PJCF_D>("T_PJCF_D",
                     "projectName s, revision s, userName s, email s, address s, telephone s, fax s, client s, title s, engineerName s, engineerDate s, "
                     "check1Name s, check1Date s, check2Name s, check2Date s, check3Name s, check3Date s, approvedName s, approvedDate s, comments s"),
    expect<T_PREFERENCE>("T_PREFERENCE",
                         "sectionDbName s, steelStandard s, concreteStandard s, concreteCode s, minPileSpaceFactor d0, standardPileSpaceFactor d0",
                         "concreteStandard=KS01(RC), minPileSpaceFactor=2.5, standardPileSpaceFactor=2.5"),
    expect<T_ANALOPTION>("T_ANALOPTION", "solver i, memoryMode i, memoryMBytes i, multiProcessor i, processors i", "solver=3, memoryMBytes=256, processors=1"),
    expect<T_UNIT_INDEX>("T_UNIT_INDEX", "length i, force i", "force=3"),
};

const Expected propertyRecords[] = {
    expect<MatlData>("MatlData", "standard s, code s, dbName s, elasticity d6, poisson d0, thermal d22, density d9"),
    expect<T_MATL_D>("T_MATL_D", "name s, type s, primary r, secondary r", "type=C"),
    expect<T_MATL_STEEL>("T_MATL_STEEL", materialFields),
    expect<T_MATL_CONCRETE>("T_MATL_CONCRETE", materialFields),
    expect<T_SECT_STIFFNESS>("T_SECT_STIFFNESS",
                             "area d3, asy d3, asz d3, ixx d5, iyy d5, izz d5, cyp d1, cym d1, czp d1, czm d1, qyb d4, qzb d4, weightArea d3"),
    expect<T_SECT_SECTBASE_D>("T_SECT_SECTBASE_D", "dbName s, sectName s, sizes d1[10], perimeter d1, builtUp i, stiffness r, yBar d1, zBar d1", "builtUp=2"),
    expect<T_SECT_DESIGN>("T_SECT_DESIGN", "yBar d1, zBar d1"),
    expect<T_SECT_PART>("T_SECT_PART", "stiffness r, perimeter d1, yBar d1, zBar d1"),
    expect<T_SECT_D>("T_SECT_D", "kind i, name s, shapeName s, offset i, base r, secondBase r, parts r[4]",
                     "kind=1, shapeName=SB, offset=5, base.builtUp=2, secondBase.builtUp=2"),
    expect<T_THIK_D>("T_THIK_D", "name s, separate i, outX d1, outY d1, outXY d1, inX d1, inY d1"),
    expect<T_SECF_D>("T_SECF_D", "fArea d0, fAsy d0, fAsz d0, fIxx d0, fIyy d0, fIzz d0, fWgt d0", "fArea=1, fAsy=1, fAsz=1, fIxx=1, fIyy=1, fIzz=1, fWgt=1"),
    expect<T_THKF_D>("T_THKF_D", "fInPlane d0, fOutOfPlaneShear d0, fOutOfPlaneBending d0", "fInPlane=1, fOutOfPlaneShear=1, fOutOfPlaneBending=1"),
    expect<SCMPoint2D>("SCMPoint2D", "x d1, y d1"),
};

const Expected supportRecords[] = {
    expect<T_PISD_D>("T_PISD_D",
                     "name s, supportType i, dbCode i, pileType i, construction i, diameter d1, thickness d1, elasticity d6, area d3, length d1, "
                     "stiffness d13, action i, shape i, hIndex i, coefficient d0, isSpecial i, sectionIndex i",
                     "supportType=1, construction=1, action=1, shape=1"),
    expect<T_PILE_DB>("T_PILE_DB", "diameter d1, thickness d1, elasticity d6, area d3, hName s"),
    expect<T_COSD_D>("T_COSD_D",
                     "name s, type i, meshAndLink i, elasticity d6, poisson d0, aboveD d1, aboveB d1, aboveH d1, belowD d1, belowB d1, belowH d1, "
                     "capitalD d1, capitalB d1, capitalH d1, sdz d13, srx d14, sry d14, fixSdz i, fixSrx i, fixSry i, includeBending i, "
                     "bendingScale d0, betaAngle d18",
                     "type=1, includeBending=1, bendingScale=6"),
    expect<T_WASD_D>("T_WASD_D",
                     "name s, type i, elasticity d6, poisson d0, aboveT d1, aboveH d1, belowT d1, belowH d1, sdz d15, sr d16, fixSdz i, fixSr i, "
                     "includeBending i, bendingScale d0",
                     "type=1, includeBending=1, bendingScale=6"),
    expect<T_SOSD_D>("T_SOSD_D", "name s, type i, qa d8, sdz d10, action i", "type=1, action=1"),
    expect<T_GSPD_D>("T_GSPD_D", "name s, sdzSdz d13, sdzSrx d17, sdzSry d17, srxSrx d14, srxSry d14, srySry d14"),
    expect<T_AUTOPILE>("T_AUTOPILE",
                       "pileKey u, minSpace d1, standardSpace d1, allowableForce d2, loadScale d0, selectionMode i, method i, pileCount i, pointKeys u[], "
                       "lineKeys u[], unitsPerMetre d0"),
    expect<T_AUTOMAT>("T_AUTOMAT", "edgeDistance d1, material i, thickness i, matType i, createLineGrid i, lineGridName s, connectivity u[]"),
    expect<T_WKAR_D>("T_WKAR_D", "name s, key u, angle d18, outerPoints u[]"),
    expect<T_WDIR_D>("T_WDIR_D", "reserved i"),
};

const Expected objectRecords[] = {
    expect<T_PONT_D>("T_PONT_D", position),
    expect<T_LINE_D>("T_LINE_D", "point1 u, point2 u"),
    expect<T_AREA_D>("T_AREA_D", "points u[]"),
    expect<T_BEAM_D>("T_BEAM_D", "lineKey u, materialKey u, sectionKey u, betaAngle d18"),
    expect<T_SLAB_D>("T_SLAB_D", "areaKey u, materialKey u, thicknessKey u"),
    expect<T_OPEN_D>("T_OPEN_D", "areaKey u"),
    expect<T_MSLN_D>("T_MSLN_D", "lineKey u, dimension d1"),
    expect<T_COSA_D>("T_COSA_D", pointAndType),
    expect<T_PISA_D>("T_PISA_D", pointAndType),
    expect<T_WASA_D>("T_WASA_D", lineAndType),
    expect<T_SOSA_D>("T_SOSA_D", areaAndType),
    expect<T_BRLS_D>("T_BRLS_D", "objectKey u, flags i[12]"),
    expect<T_SRLS_D>("T_SRLS_D", "objectKey u, flags i[12]"),
    expect<T_OFFS_D>("T_OFFS_D", "lineKey u, offsets d1[6]"),
    expect<T_COIF_D>("T_COIF_D", "pointKey u, depth d1, width d1"),
    expect<T_GDLN_D>("T_GDLN_D", "name s, angle d18, origin d1[3]"),
    expect<T_NUCS_D>("T_NUCS_D", "name s, origin d1[3], axes d0[6]"),
    expect<T_GRUP_D>("T_GRUP_D", "name s, points u[], lines u[], areas u[]"),
    expect<T_OMAS_D>("T_OMAS_D", "type i, objectKey u, value d*"),
    expect<T_PTLA_D>("T_PTLA_D", "pointKey u, loadCaseKey u, subLoadCaseNo i, value d*[6]"),
    expect<T_SPDP_D>("T_SPDP_D", "pointKey u, loadCaseKey u, subLoadCaseNo i, dofFlags s, value d*[6]"),
    expect<T_LNLA_D>("T_LNLA_D", lineAndType),
    expect<T_ARLA_D>("T_ARLA_D", areaAndType),
    expect<T_THPL_D>("T_THPL_D", "pointKey u, timeHistoryKey u, functionKey u, direction i, scale d0, arrivalTime d20"),
    expect<T_NODE>("T_NODE", position),
    expect<T_ELEM>("T_ELEM", "type i, materialKey u, propertyKey u, nodes u[]"),
    expect<T_POINT3>("T_POINT3", position),
};

class ModelRecord : public testing::TestWithParam<Expected> {};

TEST_P(ModelRecord, NamesItsFieldsInTheirPermanentOrderWithTheirUnits)
{
    std::string fields;
    for (const FieldInfo& field : GetParam().info().fields)
        append(fields, written(field));
    EXPECT_EQ(fields, GetParam().fields);
}

TEST_P(ModelRecord, StartsWithItsDefaults)
{
    const RecordInfo& info = GetParam().info();
    std::string defaults;
    appendNonZero(defaults, info, info.create().get(), "");
    EXPECT_EQ(defaults, GetParam().defaults);
}

TEST_P(ModelRecord, LeavesNoMemberUnnamed)
{
    std::size_t end = 0;
    for (const FieldInfo& field : GetParam().info().fields) {
        EXPECT_EQ(field.offset, alignedUp(end, alignmentOf(field))) << "a member before " << field.name << " is not named";
        end = field.offset + (field.shape == FieldShape::list ? sizeof(std::vector<int>) : field.stride * field.count);
    }
    EXPECT_EQ(GetParam().size, alignedUp(end, alignmentOf(GetParam().info()))) << "the last member is not named";
}

TEST_P(ModelRecord, DiffersWhenAnyOneFieldDiffers)
{
    const RecordInfo& info = GetParam().info();
    const std::shared_ptr<void> untouched = info.create();
    for (const FieldInfo& field : info.fields) {
        const std::shared_ptr<void> changed = info.copy(untouched.get());
        EXPECT_TRUE(info.equal(untouched.get(), changed.get()));
        change(field, changed.get());
        EXPECT_FALSE(info.equal(untouched.get(), changed.get())) << field.name;
    }
}

TEST_P(ModelRecord, InitializeRestoresTheDefaults)
{
    EXPECT_TRUE(GetParam().initializeRestores());
}

std::string nameOf(const testing::TestParamInfo<Expected>& info)
{
    return info.param.name;
}

INSTANTIATE_TEST_SUITE_P(Loads, ModelRecord, testing::ValuesIn(loadRecords), nameOf);
INSTANTIATE_TEST_SUITE_P(Dynamic, ModelRecord, testing::ValuesIn(dynamicRecords), nameOf);
INSTANTIATE_TEST_SUITE_P(Control, ModelRecord, testing::ValuesIn(controlRecords), nameOf);
INSTANTIATE_TEST_SUITE_P(Properties, ModelRecord, testing::ValuesIn(propertyRecords), nameOf);
INSTANTIATE_TEST_SUITE_P(Supports, ModelRecord, testing::ValuesIn(supportRecords), nameOf);
INSTANTIATE_TEST_SUITE_P(Objects, ModelRecord, testing::ValuesIn(objectRecords), nameOf);

}  // namespace
