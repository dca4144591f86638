CREATE TABLE zel_setting(
    name TEXT NOT NULL PRIMARY KEY,
    value TEXT NOT NULL
) STRICT, WITHOUT ROWID;
CREATE TABLE zel_check(
    code TEXT NOT NULL PRIMARY KEY,
    row_count INTEGER NOT NULL,
    row_hash INTEGER NOT NULL
) STRICT, WITHOUT ROWID;
CREATE TABLE zel_save(
    session INTEGER NOT NULL,
    changes INTEGER NOT NULL
) STRICT;
CREATE TABLE "STLD"(
    "key" INTEGER PRIMARY KEY,
    "name" TEXT NOT NULL,
    "no" INTEGER NOT NULL,
    "type" TEXT NOT NULL,
    "description" TEXT NOT NULL,
    "selfWeightFactor" REAL NOT NULL,
    "subLoadCaseCount" INTEGER NOT NULL,
    "combinationType" INTEGER NOT NULL,
    "majorCase" INTEGER NOT NULL
) STRICT;
CREATE TABLE "LCOM"(
    "kind" INTEGER NOT NULL,
    "key" INTEGER NOT NULL,
    "name" TEXT NOT NULL,
    "number" INTEGER NOT NULL,
    "active" INTEGER NOT NULL,
    "description" TEXT NOT NULL,
    PRIMARY KEY("kind", "key")
) STRICT, WITHOUT ROWID;
CREATE TABLE "LCOM_items"(
    "parent_kind" INTEGER NOT NULL,
    "parent" INTEGER NOT NULL,
    "seq" INTEGER NOT NULL,
    "type" INTEGER NOT NULL,
    "key" INTEGER NOT NULL,
    "factor" REAL NOT NULL,
    PRIMARY KEY("parent_kind", "parent", "seq"),
    FOREIGN KEY("parent_kind", "parent") REFERENCES "LCOM"("kind", "key") ON DELETE CASCADE
) STRICT, WITHOUT ROWID;
CREATE TABLE "ENVL"(
    "key" INTEGER PRIMARY KEY,
    "name" TEXT NOT NULL,
    "description" TEXT NOT NULL
) STRICT;
CREATE TABLE "ENVL_items"(
    "parent" INTEGER NOT NULL,
    "seq" INTEGER NOT NULL,
    "type" INTEGER NOT NULL,
    "key" INTEGER NOT NULL,
    PRIMARY KEY("parent", "seq"),
    FOREIGN KEY("parent") REFERENCES "ENVL"("key") ON DELETE CASCADE
) STRICT, WITHOUT ROWID;
CREATE TABLE "SPDI"(
    "key" INTEGER PRIMARY KEY,
    "loadCaseKey" INTEGER NOT NULL,
    "subLoadCaseNo" INTEGER NOT NULL,
    "point1" INTEGER NOT NULL,
    "point2" INTEGER NOT NULL,
    "dofFlags" TEXT NOT NULL
) STRICT;
CREATE TABLE "SPDI_rows"(
    "parent" INTEGER NOT NULL,
    "seq" INTEGER NOT NULL,
    "x" REAL NOT NULL,
    "value_1" REAL NOT NULL,
    "value_2" REAL NOT NULL,
    "value_3" REAL NOT NULL,
    "value_4" REAL NOT NULL,
    "value_5" REAL NOT NULL,
    "value_6" REAL NOT NULL,
    PRIMARY KEY("parent", "seq"),
    FOREIGN KEY("parent") REFERENCES "SPDI"("key") ON DELETE CASCADE
) STRICT, WITHOUT ROWID;
CREATE TABLE "LNLD"(
    "key" INTEGER PRIMARY KEY,
    "name" TEXT NOT NULL,
    "description" TEXT NOT NULL,
    "loadCase1" INTEGER NOT NULL,
    "loadCase2" INTEGER NOT NULL,
    "loadCase3" INTEGER NOT NULL,
    "load1" REAL NOT NULL,
    "load2" REAL NOT NULL,
    "load3" REAL NOT NULL
) STRICT;
CREATE TABLE "ARLD"(
    "key" INTEGER PRIMARY KEY,
    "name" TEXT NOT NULL,
    "description" TEXT NOT NULL,
    "loadCase1" INTEGER NOT NULL,
    "loadCase2" INTEGER NOT NULL,
    "loadCase3" INTEGER NOT NULL,
    "load1" REAL NOT NULL,
    "load2" REAL NOT NULL,
    "load3" REAL NOT NULL,
    "includeWeight1" INTEGER NOT NULL,
    "includeWeight2" INTEGER NOT NULL,
    "includeWeight3" INTEGER NOT NULL
) STRICT;
CREATE TABLE "THFC"(
    "key" INTEGER PRIMARY KEY,
    "name" TEXT NOT NULL,
    "functionType" INTEGER NOT NULL,
    "dataType" INTEGER NOT NULL,
    "scaleFactor" REAL NOT NULL,
    "gravity" REAL NOT NULL,
    "reservedInt" INTEGER NOT NULL,
    "sinA" REAL NOT NULL,
    "sinC" REAL NOT NULL,
    "sinFrequency" REAL NOT NULL,
    "sinDamping" REAL NOT NULL,
    "sinPhaseAngle" REAL NOT NULL
) STRICT;
CREATE TABLE "THFC_points"(
    "parent" INTEGER NOT NULL,
    "seq" INTEGER NOT NULL,
    "time" REAL NOT NULL,
    "value" REAL NOT NULL,
    PRIMARY KEY("parent", "seq"),
    FOREIGN KEY("parent") REFERENCES "THFC"("key") ON DELETE CASCADE
) STRICT, WITHOUT ROWID;
CREATE TABLE "THLD"(
    "key" INTEGER PRIMARY KEY,
    "name" TEXT NOT NULL,
    "description" TEXT NOT NULL,
    "endTime" REAL NOT NULL,
    "timeIncrement" REAL NOT NULL,
    "outputSteps" INTEGER NOT NULL,
    "analysisType" INTEGER NOT NULL,
    "dampingAllModes" REAL NOT NULL
) STRICT;
CREATE TABLE "THLD_modalDamping"(
    "parent" INTEGER NOT NULL,
    "seq" INTEGER NOT NULL,
    "mode" INTEGER NOT NULL,
    "damping" REAL NOT NULL,
    PRIMARY KEY("parent", "seq"),
    FOREIGN KEY("parent") REFERENCES "THLD"("key") ON DELETE CASCADE
) STRICT, WITHOUT ROWID;
CREATE TABLE "MATL"(
    "key" INTEGER PRIMARY KEY,
    "name" TEXT NOT NULL,
    "type" TEXT NOT NULL,
    "primary_standard" TEXT NOT NULL,
    "primary_code" TEXT NOT NULL,
    "primary_dbName" TEXT NOT NULL,
    "primary_elasticity" REAL NOT NULL,
    "primary_poisson" REAL NOT NULL,
    "primary_thermal" REAL NOT NULL,
    "primary_density" REAL NOT NULL,
    "secondary_standard" TEXT NOT NULL,
    "secondary_code" TEXT NOT NULL,
    "secondary_dbName" TEXT NOT NULL,
    "secondary_elasticity" REAL NOT NULL,
    "secondary_poisson" REAL NOT NULL,
    "secondary_thermal" REAL NOT NULL,
    "secondary_density" REAL NOT NULL
) STRICT;
CREATE TABLE "SECT"(
    "key" INTEGER PRIMARY KEY,
    "kind" INTEGER NOT NULL,
    "name" TEXT NOT NULL,
    "shapeName" TEXT NOT NULL,
    "offset" INTEGER NOT NULL,
    "base_dbName" TEXT NOT NULL,
    "base_sectName" TEXT NOT NULL,
    "base_sizes_1" REAL NOT NULL,
    "base_sizes_2" REAL NOT NULL,
    "base_sizes_3" REAL NOT NULL,
    "base_sizes_4" REAL NOT NULL,
    "base_sizes_5" REAL NOT NULL,
    "base_sizes_6" REAL NOT NULL,
    "base_sizes_7" REAL NOT NULL,
    "base_sizes_8" REAL NOT NULL,
    "base_sizes_9" REAL NOT NULL,
    "base_sizes_10" REAL NOT NULL,
    "base_perimeter" REAL NOT NULL,
    "base_builtUp" INTEGER NOT NULL,
    "base_stiffness_area" REAL NOT NULL,
    "base_stiffness_asy" REAL NOT NULL,
    "base_stiffness_asz" REAL NOT NULL,
    "base_stiffness_ixx" REAL NOT NULL,
    "base_stiffness_iyy" REAL NOT NULL,
    "base_stiffness_izz" REAL NOT NULL,
    "base_stiffness_cyp" REAL NOT NULL,
    "base_stiffness_cym" REAL NOT NULL,
    "base_stiffness_czp" REAL NOT NULL,
    "base_stiffness_czm" REAL NOT NULL,
    "base_stiffness_qyb" REAL NOT NULL,
    "base_stiffness_qzb" REAL NOT NULL,
    "base_stiffness_weightArea" REAL NOT NULL,
    "base_yBar" REAL NOT NULL,
    "base_zBar" REAL NOT NULL,
    "secondBase_dbName" TEXT NOT NULL,
    "secondBase_sectName" TEXT NOT NULL,
    "secondBase_sizes_1" REAL NOT NULL,
    "secondBase_sizes_2" REAL NOT NULL,
    "secondBase_sizes_3" REAL NOT NULL,
    "secondBase_sizes_4" REAL NOT NULL,
    "secondBase_sizes_5" REAL NOT NULL,
    "secondBase_sizes_6" REAL NOT NULL,
    "secondBase_sizes_7" REAL NOT NULL,
    "secondBase_sizes_8" REAL NOT NULL,
    "secondBase_sizes_9" REAL NOT NULL,
    "secondBase_sizes_10" REAL NOT NULL,
    "secondBase_perimeter" REAL NOT NULL,
    "secondBase_builtUp" INTEGER NOT NULL,
    "secondBase_stiffness_area" REAL NOT NULL,
    "secondBase_stiffness_asy" REAL NOT NULL,
    "secondBase_stiffness_asz" REAL NOT NULL,
    "secondBase_stiffness_ixx" REAL NOT NULL,
    "secondBase_stiffness_iyy" REAL NOT NULL,
    "secondBase_stiffness_izz" REAL NOT NULL,
    "secondBase_stiffness_cyp" REAL NOT NULL,
    "secondBase_stiffness_cym" REAL NOT NULL,
    "secondBase_stiffness_czp" REAL NOT NULL,
    "secondBase_stiffness_czm" REAL NOT NULL,
    "secondBase_stiffness_qyb" REAL NOT NULL,
    "secondBase_stiffness_qzb" REAL NOT NULL,
    "secondBase_stiffness_weightArea" REAL NOT NULL,
    "secondBase_yBar" REAL NOT NULL,
    "secondBase_zBar" REAL NOT NULL,
    "parts_1_stiffness_area" REAL NOT NULL,
    "parts_1_stiffness_asy" REAL NOT NULL,
    "parts_1_stiffness_asz" REAL NOT NULL,
    "parts_1_stiffness_ixx" REAL NOT NULL,
    "parts_1_stiffness_iyy" REAL NOT NULL,
    "parts_1_stiffness_izz" REAL NOT NULL,
    "parts_1_stiffness_cyp" REAL NOT NULL,
    "parts_1_stiffness_cym" REAL NOT NULL,
    "parts_1_stiffness_czp" REAL NOT NULL,
    "parts_1_stiffness_czm" REAL NOT NULL,
    "parts_1_stiffness_qyb" REAL NOT NULL,
    "parts_1_stiffness_qzb" REAL NOT NULL,
    "parts_1_stiffness_weightArea" REAL NOT NULL,
    "parts_1_perimeter" REAL NOT NULL,
    "parts_1_yBar" REAL NOT NULL,
    "parts_1_zBar" REAL NOT NULL,
    "parts_2_stiffness_area" REAL NOT NULL,
    "parts_2_stiffness_asy" REAL NOT NULL,
    "parts_2_stiffness_asz" REAL NOT NULL,
    "parts_2_stiffness_ixx" REAL NOT NULL,
    "parts_2_stiffness_iyy" REAL NOT NULL,
    "parts_2_stiffness_izz" REAL NOT NULL,
    "parts_2_stiffness_cyp" REAL NOT NULL,
    "parts_2_stiffness_cym" REAL NOT NULL,
    "parts_2_stiffness_czp" REAL NOT NULL,
    "parts_2_stiffness_czm" REAL NOT NULL,
    "parts_2_stiffness_qyb" REAL NOT NULL,
    "parts_2_stiffness_qzb" REAL NOT NULL,
    "parts_2_stiffness_weightArea" REAL NOT NULL,
    "parts_2_perimeter" REAL NOT NULL,
    "parts_2_yBar" REAL NOT NULL,
    "parts_2_zBar" REAL NOT NULL,
    "parts_3_stiffness_area" REAL NOT NULL,
    "parts_3_stiffness_asy" REAL NOT NULL,
    "parts_3_stiffness_asz" REAL NOT NULL,
    "parts_3_stiffness_ixx" REAL NOT NULL,
    "parts_3_stiffness_iyy" REAL NOT NULL,
    "parts_3_stiffness_izz" REAL NOT NULL,
    "parts_3_stiffness_cyp" REAL NOT NULL,
    "parts_3_stiffness_cym" REAL NOT NULL,
    "parts_3_stiffness_czp" REAL NOT NULL,
    "parts_3_stiffness_czm" REAL NOT NULL,
    "parts_3_stiffness_qyb" REAL NOT NULL,
    "parts_3_stiffness_qzb" REAL NOT NULL,
    "parts_3_stiffness_weightArea" REAL NOT NULL,
    "parts_3_perimeter" REAL NOT NULL,
    "parts_3_yBar" REAL NOT NULL,
    "parts_3_zBar" REAL NOT NULL,
    "parts_4_stiffness_area" REAL NOT NULL,
    "parts_4_stiffness_asy" REAL NOT NULL,
    "parts_4_stiffness_asz" REAL NOT NULL,
    "parts_4_stiffness_ixx" REAL NOT NULL,
    "parts_4_stiffness_iyy" REAL NOT NULL,
    "parts_4_stiffness_izz" REAL NOT NULL,
    "parts_4_stiffness_cyp" REAL NOT NULL,
    "parts_4_stiffness_cym" REAL NOT NULL,
    "parts_4_stiffness_czp" REAL NOT NULL,
    "parts_4_stiffness_czm" REAL NOT NULL,
    "parts_4_stiffness_qyb" REAL NOT NULL,
    "parts_4_stiffness_qzb" REAL NOT NULL,
    "parts_4_stiffness_weightArea" REAL NOT NULL,
    "parts_4_perimeter" REAL NOT NULL,
    "parts_4_yBar" REAL NOT NULL,
    "parts_4_zBar" REAL NOT NULL
) STRICT;
CREATE TABLE "THIK"(
    "key" INTEGER PRIMARY KEY,
    "name" TEXT NOT NULL,
    "separate" INTEGER NOT NULL,
    "outX" REAL NOT NULL,
    "outY" REAL NOT NULL,
    "outXY" REAL NOT NULL,
    "inX" REAL NOT NULL,
    "inY" REAL NOT NULL
) STRICT;
CREATE TABLE "SECF"(
    "key" INTEGER PRIMARY KEY,
    "fArea" REAL NOT NULL,
    "fAsy" REAL NOT NULL,
    "fAsz" REAL NOT NULL,
    "fIxx" REAL NOT NULL,
    "fIyy" REAL NOT NULL,
    "fIzz" REAL NOT NULL,
    "fWgt" REAL NOT NULL
) STRICT;
CREATE TABLE "THKF"(
    "key" INTEGER PRIMARY KEY,
    "fInPlane" REAL NOT NULL,
    "fOutOfPlaneShear" REAL NOT NULL,
    "fOutOfPlaneBending" REAL NOT NULL
) STRICT;
CREATE TABLE "COSD"(
    "key" INTEGER PRIMARY KEY,
    "name" TEXT NOT NULL,
    "type" INTEGER NOT NULL,
    "meshAndLink" INTEGER NOT NULL,
    "elasticity" REAL NOT NULL,
    "poisson" REAL NOT NULL,
    "aboveD" REAL NOT NULL,
    "aboveB" REAL NOT NULL,
    "aboveH" REAL NOT NULL,
    "belowD" REAL NOT NULL,
    "belowB" REAL NOT NULL,
    "belowH" REAL NOT NULL,
    "capitalD" REAL NOT NULL,
    "capitalB" REAL NOT NULL,
    "capitalH" REAL NOT NULL,
    "sdz" REAL NOT NULL,
    "srx" REAL NOT NULL,
    "sry" REAL NOT NULL,
    "fixSdz" INTEGER NOT NULL,
    "fixSrx" INTEGER NOT NULL,
    "fixSry" INTEGER NOT NULL,
    "includeBending" INTEGER NOT NULL,
    "bendingScale" REAL NOT NULL,
    "betaAngle" REAL NOT NULL
) STRICT;
CREATE TABLE "PISD"(
    "key" INTEGER PRIMARY KEY,
    "name" TEXT NOT NULL,
    "supportType" INTEGER NOT NULL,
    "dbCode" INTEGER NOT NULL,
    "pileType" INTEGER NOT NULL,
    "construction" INTEGER NOT NULL,
    "diameter" REAL NOT NULL,
    "thickness" REAL NOT NULL,
    "elasticity" REAL NOT NULL,
    "area" REAL NOT NULL,
    "length" REAL NOT NULL,
    "stiffness" REAL NOT NULL,
    "action" INTEGER NOT NULL,
    "shape" INTEGER NOT NULL,
    "hIndex" INTEGER NOT NULL,
    "coefficient" REAL NOT NULL,
    "isSpecial" INTEGER NOT NULL,
    "sectionIndex" INTEGER NOT NULL
) STRICT;
CREATE TABLE "WASD"(
    "key" INTEGER PRIMARY KEY,
    "name" TEXT NOT NULL,
    "type" INTEGER NOT NULL,
    "elasticity" REAL NOT NULL,
    "poisson" REAL NOT NULL,
    "aboveT" REAL NOT NULL,
    "aboveH" REAL NOT NULL,
    "belowT" REAL NOT NULL,
    "belowH" REAL NOT NULL,
    "sdz" REAL NOT NULL,
    "sr" REAL NOT NULL,
    "fixSdz" INTEGER NOT NULL,
    "fixSr" INTEGER NOT NULL,
    "includeBending" INTEGER NOT NULL,
    "bendingScale" REAL NOT NULL
) STRICT;
CREATE TABLE "SOSD"(
    "key" INTEGER PRIMARY KEY,
    "name" TEXT NOT NULL,
    "type" INTEGER NOT NULL,
    "qa" REAL NOT NULL,
    "sdz" REAL NOT NULL,
    "action" INTEGER NOT NULL
) STRICT;
CREATE TABLE "GSPD"(
    "key" INTEGER PRIMARY KEY,
    "name" TEXT NOT NULL,
    "sdzSdz" REAL NOT NULL,
    "sdzSrx" REAL NOT NULL,
    "sdzSry" REAL NOT NULL,
    "srxSrx" REAL NOT NULL,
    "srxSry" REAL NOT NULL,
    "srySry" REAL NOT NULL
) STRICT;
CREATE TABLE "WKAR"(
    "key" INTEGER PRIMARY KEY,
    "name" TEXT NOT NULL,
    "angle" REAL NOT NULL
) STRICT;
CREATE TABLE "WKAR_outerPoints"(
    "parent" INTEGER NOT NULL,
    "seq" INTEGER NOT NULL,
    "value" INTEGER NOT NULL,
    PRIMARY KEY("parent", "seq"),
    FOREIGN KEY("parent") REFERENCES "WKAR"("key") ON DELETE CASCADE
) STRICT, WITHOUT ROWID;
CREATE TABLE "WDIR"(
    "key" INTEGER PRIMARY KEY,
    "reserved" INTEGER NOT NULL
) STRICT;
CREATE TABLE "SLCF"(
    "key" INTEGER PRIMARY KEY,
    "verticalLoadFactor" REAL NOT NULL,
    "verticalForceFactor" REAL NOT NULL,
    "shortPeriodCoefficient" REAL NOT NULL
) STRICT;
CREATE TABLE "SLCF_overStrengthFactors"(
    "parent" INTEGER NOT NULL,
    "seq" INTEGER NOT NULL,
    "loadCaseKey" INTEGER NOT NULL,
    "factor" REAL NOT NULL,
    PRIMARY KEY("parent", "seq"),
    FOREIGN KEY("parent") REFERENCES "SLCF"("key") ON DELETE CASCADE
) STRICT, WITHOUT ROWID;
CREATE TABLE "SIFT"(
    "key" INTEGER PRIMARY KEY,
    "verticalLoadFactor" REAL NOT NULL,
    "shortPeriodCoefficient" REAL NOT NULL
) STRICT;
CREATE TABLE "SIFT_overStrengthFactors"(
    "parent" INTEGER NOT NULL,
    "seq" INTEGER NOT NULL,
    "loadCaseKey" INTEGER NOT NULL,
    "factor" REAL NOT NULL,
    PRIMARY KEY("parent", "seq"),
    FOREIGN KEY("parent") REFERENCES "SIFT"("key") ON DELETE CASCADE
) STRICT, WITHOUT ROWID;
CREATE TABLE "LCUG"(
    "key" INTEGER PRIMARY KEY
) STRICT;
CREATE TABLE "LCUG_scaleUps"(
    "parent" INTEGER NOT NULL,
    "seq" INTEGER NOT NULL,
    "factor" REAL NOT NULL,
    "loadCaseKey" INTEGER NOT NULL,
    "eccentricKey" INTEGER NOT NULL,
    PRIMARY KEY("parent", "seq"),
    FOREIGN KEY("parent") REFERENCES "LCUG"("key") ON DELETE CASCADE
) STRICT, WITHOUT ROWID;
CREATE TABLE "LCUG_groups"(
    "parent" INTEGER NOT NULL,
    "seq" INTEGER NOT NULL,
    "loadCaseKey" INTEGER NOT NULL,
    "direction" INTEGER NOT NULL,
    PRIMARY KEY("parent", "seq"),
    FOREIGN KEY("parent") REFERENCES "LCUG"("key") ON DELETE CASCADE
) STRICT, WITHOUT ROWID;
CREATE TABLE "LCUG_groups_seismicKeys"(
    "parent" INTEGER NOT NULL,
    "seq" INTEGER NOT NULL,
    "seq2" INTEGER NOT NULL,
    "value" INTEGER NOT NULL,
    PRIMARY KEY("parent", "seq", "seq2"),
    FOREIGN KEY("parent", "seq") REFERENCES "LCUG_groups"("parent", "seq") ON DELETE CASCADE
) STRICT, WITHOUT ROWID;
CREATE TABLE "LCUG_groups_staticKeys"(
    "parent" INTEGER NOT NULL,
    "seq" INTEGER NOT NULL,
    "seq2" INTEGER NOT NULL,
    "value" INTEGER NOT NULL,
    PRIMARY KEY("parent", "seq", "seq2"),
    FOREIGN KEY("parent", "seq") REFERENCES "LCUG_groups"("parent", "seq") ON DELETE CASCADE
) STRICT, WITHOUT ROWID;
CREATE TABLE "LCWD"(
    "key" INTEGER PRIMARY KEY,
    "reserved" INTEGER NOT NULL,
    "torsionDirection" INTEGER NOT NULL
) STRICT;
CREATE TABLE "LCWD_sets"(
    "parent" INTEGER NOT NULL,
    "seq" INTEGER NOT NULL,
    "groupNo" INTEGER NOT NULL,
    "buildingType" INTEGER NOT NULL,
    "along" INTEGER NOT NULL,
    "across" INTEGER NOT NULL,
    "torsion" INTEGER NOT NULL,
    "gd" REAL NOT NULL,
    "k" REAL NOT NULL,
    PRIMARY KEY("parent", "seq"),
    FOREIGN KEY("parent") REFERENCES "LCWD"("key") ON DELETE CASCADE
) STRICT, WITHOUT ROWID;
CREATE TABLE "LCOE"(
    "key" INTEGER PRIMARY KEY
) STRICT;
CREATE TABLE "LCOE_pairs"(
    "parent" INTEGER NOT NULL,
    "seq" INTEGER NOT NULL,
    "case1" INTEGER NOT NULL,
    "case2" INTEGER NOT NULL,
    PRIMARY KEY("parent", "seq"),
    FOREIGN KEY("parent") REFERENCES "LCOE"("key") ON DELETE CASCADE
) STRICT, WITHOUT ROWID;
CREATE TABLE "SURS"(
    "key" INTEGER PRIMARY KEY
) STRICT;
CREATE TABLE "SURS_scaleFactors"(
    "parent" INTEGER NOT NULL,
    "seq" INTEGER NOT NULL,
    "loadCaseKey" INTEGER NOT NULL,
    "factor" REAL NOT NULL,
    "eccentricKey" INTEGER NOT NULL,
    PRIMARY KEY("parent", "seq"),
    FOREIGN KEY("parent") REFERENCES "SURS"("key") ON DELETE CASCADE
) STRICT, WITHOUT ROWID;
CREATE TABLE "LTOM"(
    "key" INTEGER PRIMARY KEY,
    "usePointLoad" INTEGER NOT NULL,
    "useLineLoad" INTEGER NOT NULL,
    "useAreaLoad" INTEGER NOT NULL,
    "gravity" REAL NOT NULL
) STRICT;
CREATE TABLE "LTOM_cases"(
    "parent" INTEGER NOT NULL,
    "seq" INTEGER NOT NULL,
    "loadCase" INTEGER NOT NULL,
    "scale" REAL NOT NULL,
    PRIMARY KEY("parent", "seq"),
    FOREIGN KEY("parent") REFERENCES "LTOM"("key") ON DELETE CASCADE
) STRICT, WITHOUT ROWID;
CREATE TABLE "EIGV"(
    "key" INTEGER PRIMARY KEY,
    "frequencies" INTEGER NOT NULL,
    "lowerLimit" REAL NOT NULL,
    "upperLimit" REAL NOT NULL,
    "iterations" INTEGER NOT NULL,
    "subspaceDimension" INTEGER NOT NULL,
    "tolerance" REAL NOT NULL,
    "frequencyShift" REAL NOT NULL
) STRICT;
CREATE TABLE "MCTL"(
    "key" INTEGER PRIMARY KEY,
    "maxMeshDimension" REAL NOT NULL,
    "massConversion" INTEGER NOT NULL,
    "gravity" REAL NOT NULL,
    "alignBeamTop" INTEGER NOT NULL,
    "alignSlabTop" INTEGER NOT NULL,
    "loadCoordinates" INTEGER NOT NULL
) STRICT;
CREATE TABLE "ACTL"(
    "key" INTEGER PRIMARY KEY,
    "springMode" INTEGER NOT NULL,
    "iterations" INTEGER NOT NULL,
    "iterationsPerCase" INTEGER NOT NULL,
    "subIterations" INTEGER NOT NULL,
    "tolerance" REAL NOT NULL
) STRICT;
CREATE TABLE "CSDD"(
    "key" INTEGER PRIMARY KEY,
    "autoWidth" INTEGER NOT NULL,
    "widthOption" INTEGER NOT NULL,
    "factorA" REAL NOT NULL,
    "factorX" INTEGER NOT NULL,
    "widthType" INTEGER NOT NULL,
    "rounding" INTEGER NOT NULL,
    "roundingMode" INTEGER NOT NULL,
    "roundingDecimals" INTEGER NOT NULL,
    "forcePositions" INTEGER NOT NULL,
    "baseOnClearSpan" INTEGER NOT NULL
) STRICT;
CREATE TABLE "PJCF"(
    "key" INTEGER PRIMARY KEY,
    "projectName" TEXT NOT NULL,
    "revision" TEXT NOT NULL,
    "userName" TEXT NOT NULL,
    "email" TEXT NOT NULL,
    "address" TEXT NOT NULL,
    "telephone" TEXT NOT NULL,
    "fax" TEXT NOT NULL,
    "client" TEXT NOT NULL,
    "title" TEXT NOT NULL,
    "engineerName" TEXT NOT NULL,
    "engineerDate" TEXT NOT NULL,
    "check1Name" TEXT NOT NULL,
    "check1Date" TEXT NOT NULL,
    "check2Name" TEXT NOT NULL,
    "check2Date" TEXT NOT NULL,
    "check3Name" TEXT NOT NULL,
    "check3Date" TEXT NOT NULL,
    "approvedName" TEXT NOT NULL,
    "approvedDate" TEXT NOT NULL,
    "comments" TEXT NOT NULL
) STRICT;
CREATE TABLE "PONT"(
    "key" INTEGER PRIMARY KEY,
    "x" REAL NOT NULL,
    "y" REAL NOT NULL,
    "z" REAL NOT NULL
) STRICT;
CREATE TABLE "LINE"(
    "key" INTEGER PRIMARY KEY,
    "point1" INTEGER NOT NULL,
    "point2" INTEGER NOT NULL
) STRICT;
CREATE TABLE "AREA"(
    "key" INTEGER PRIMARY KEY
) STRICT;
CREATE TABLE "AREA_points"(
    "parent" INTEGER NOT NULL,
    "seq" INTEGER NOT NULL,
    "value" INTEGER NOT NULL,
    PRIMARY KEY("parent", "seq"),
    FOREIGN KEY("parent") REFERENCES "AREA"("key") ON DELETE CASCADE
) STRICT, WITHOUT ROWID;
CREATE TABLE "BEAM"(
    "key" INTEGER PRIMARY KEY,
    "lineKey" INTEGER NOT NULL,
    "materialKey" INTEGER NOT NULL,
    "sectionKey" INTEGER NOT NULL,
    "betaAngle" REAL NOT NULL
) STRICT;
CREATE TABLE "SLAB"(
    "key" INTEGER PRIMARY KEY,
    "areaKey" INTEGER NOT NULL,
    "materialKey" INTEGER NOT NULL,
    "thicknessKey" INTEGER NOT NULL
) STRICT;
CREATE TABLE "OPEN"(
    "key" INTEGER PRIMARY KEY,
    "areaKey" INTEGER NOT NULL
) STRICT;
CREATE TABLE "MSLN"(
    "key" INTEGER PRIMARY KEY,
    "lineKey" INTEGER NOT NULL,
    "dimension" REAL NOT NULL
) STRICT;
CREATE TABLE "COSA"(
    "key" INTEGER PRIMARY KEY,
    "pointKey" INTEGER NOT NULL,
    "typeKey" INTEGER NOT NULL
) STRICT;
CREATE TABLE "PISA"(
    "key" INTEGER PRIMARY KEY,
    "pointKey" INTEGER NOT NULL,
    "typeKey" INTEGER NOT NULL
) STRICT;
CREATE TABLE "WASA"(
    "key" INTEGER PRIMARY KEY,
    "lineKey" INTEGER NOT NULL,
    "typeKey" INTEGER NOT NULL
) STRICT;
CREATE TABLE "SOSA"(
    "key" INTEGER PRIMARY KEY,
    "areaKey" INTEGER NOT NULL,
    "typeKey" INTEGER NOT NULL
) STRICT;
CREATE TABLE "BRLS"(
    "key" INTEGER PRIMARY KEY,
    "objectKey" INTEGER NOT NULL,
    "flags_1" INTEGER NOT NULL,
    "flags_2" INTEGER NOT NULL,
    "flags_3" INTEGER NOT NULL,
    "flags_4" INTEGER NOT NULL,
    "flags_5" INTEGER NOT NULL,
    "flags_6" INTEGER NOT NULL,
    "flags_7" INTEGER NOT NULL,
    "flags_8" INTEGER NOT NULL,
    "flags_9" INTEGER NOT NULL,
    "flags_10" INTEGER NOT NULL,
    "flags_11" INTEGER NOT NULL,
    "flags_12" INTEGER NOT NULL
) STRICT;
CREATE TABLE "OFFS"(
    "key" INTEGER PRIMARY KEY,
    "lineKey" INTEGER NOT NULL,
    "offsets_1" REAL NOT NULL,
    "offsets_2" REAL NOT NULL,
    "offsets_3" REAL NOT NULL,
    "offsets_4" REAL NOT NULL,
    "offsets_5" REAL NOT NULL,
    "offsets_6" REAL NOT NULL
) STRICT;
CREATE TABLE "SRLS"(
    "key" INTEGER PRIMARY KEY,
    "objectKey" INTEGER NOT NULL,
    "flags_1" INTEGER NOT NULL,
    "flags_2" INTEGER NOT NULL,
    "flags_3" INTEGER NOT NULL,
    "flags_4" INTEGER NOT NULL,
    "flags_5" INTEGER NOT NULL,
    "flags_6" INTEGER NOT NULL,
    "flags_7" INTEGER NOT NULL,
    "flags_8" INTEGER NOT NULL,
    "flags_9" INTEGER NOT NULL,
    "flags_10" INTEGER NOT NULL,
    "flags_11" INTEGER NOT NULL,
    "flags_12" INTEGER NOT NULL
) STRICT;
CREATE TABLE "COIF"(
    "key" INTEGER PRIMARY KEY,
    "pointKey" INTEGER NOT NULL,
    "depth" REAL NOT NULL,
    "width" REAL NOT NULL
) STRICT;
CREATE TABLE "GDLN"(
    "key" INTEGER PRIMARY KEY,
    "name" TEXT NOT NULL,
    "angle" REAL NOT NULL,
    "origin_1" REAL NOT NULL,
    "origin_2" REAL NOT NULL,
    "origin_3" REAL NOT NULL
) STRICT;
CREATE TABLE "NUCS"(
    "key" INTEGER PRIMARY KEY,
    "name" TEXT NOT NULL,
    "origin_1" REAL NOT NULL,
    "origin_2" REAL NOT NULL,
    "origin_3" REAL NOT NULL,
    "axes_1" REAL NOT NULL,
    "axes_2" REAL NOT NULL,
    "axes_3" REAL NOT NULL,
    "axes_4" REAL NOT NULL,
    "axes_5" REAL NOT NULL,
    "axes_6" REAL NOT NULL
) STRICT;
CREATE TABLE "GRUP"(
    "key" INTEGER PRIMARY KEY,
    "name" TEXT NOT NULL
) STRICT;
CREATE TABLE "GRUP_points"(
    "parent" INTEGER NOT NULL,
    "seq" INTEGER NOT NULL,
    "value" INTEGER NOT NULL,
    PRIMARY KEY("parent", "seq"),
    FOREIGN KEY("parent") REFERENCES "GRUP"("key") ON DELETE CASCADE
) STRICT, WITHOUT ROWID;
CREATE TABLE "GRUP_lines"(
    "parent" INTEGER NOT NULL,
    "seq" INTEGER NOT NULL,
    "value" INTEGER NOT NULL,
    PRIMARY KEY("parent", "seq"),
    FOREIGN KEY("parent") REFERENCES "GRUP"("key") ON DELETE CASCADE
) STRICT, WITHOUT ROWID;
CREATE TABLE "GRUP_areas"(
    "parent" INTEGER NOT NULL,
    "seq" INTEGER NOT NULL,
    "value" INTEGER NOT NULL,
    PRIMARY KEY("parent", "seq"),
    FOREIGN KEY("parent") REFERENCES "GRUP"("key") ON DELETE CASCADE
) STRICT, WITHOUT ROWID;
CREATE TABLE "OMAS"(
    "key" INTEGER PRIMARY KEY,
    "type" INTEGER NOT NULL,
    "objectKey" INTEGER NOT NULL,
    "value" REAL NOT NULL
) STRICT;
CREATE TABLE "PTLA"(
    "key" INTEGER PRIMARY KEY,
    "pointKey" INTEGER NOT NULL,
    "loadCaseKey" INTEGER NOT NULL,
    "subLoadCaseNo" INTEGER NOT NULL,
    "value_1" REAL NOT NULL,
    "value_2" REAL NOT NULL,
    "value_3" REAL NOT NULL,
    "value_4" REAL NOT NULL,
    "value_5" REAL NOT NULL,
    "value_6" REAL NOT NULL
) STRICT;
CREATE TABLE "SPDP"(
    "key" INTEGER PRIMARY KEY,
    "pointKey" INTEGER NOT NULL,
    "loadCaseKey" INTEGER NOT NULL,
    "subLoadCaseNo" INTEGER NOT NULL,
    "dofFlags" TEXT NOT NULL,
    "value_1" REAL NOT NULL,
    "value_2" REAL NOT NULL,
    "value_3" REAL NOT NULL,
    "value_4" REAL NOT NULL,
    "value_5" REAL NOT NULL,
    "value_6" REAL NOT NULL
) STRICT;
CREATE TABLE "LNLA"(
    "key" INTEGER PRIMARY KEY,
    "lineKey" INTEGER NOT NULL,
    "typeKey" INTEGER NOT NULL
) STRICT;
CREATE TABLE "ARLA"(
    "key" INTEGER PRIMARY KEY,
    "areaKey" INTEGER NOT NULL,
    "typeKey" INTEGER NOT NULL
) STRICT;
CREATE TABLE "THPL"(
    "key" INTEGER PRIMARY KEY,
    "pointKey" INTEGER NOT NULL,
    "timeHistoryKey" INTEGER NOT NULL,
    "functionKey" INTEGER NOT NULL,
    "direction" INTEGER NOT NULL,
    "scale" REAL NOT NULL,
    "arrivalTime" REAL NOT NULL
) STRICT;
CREATE TABLE "NODE"(
    "key" INTEGER PRIMARY KEY,
    "x" REAL NOT NULL,
    "y" REAL NOT NULL,
    "z" REAL NOT NULL
) STRICT;
CREATE TABLE "ELEM"(
    "key" INTEGER PRIMARY KEY,
    "type" INTEGER NOT NULL,
    "materialKey" INTEGER NOT NULL,
    "propertyKey" INTEGER NOT NULL
) STRICT;
CREATE TABLE "ELEM_nodes"(
    "parent" INTEGER NOT NULL,
    "seq" INTEGER NOT NULL,
    "value" INTEGER NOT NULL,
    PRIMARY KEY("parent", "seq"),
    FOREIGN KEY("parent") REFERENCES "ELEM"("key") ON DELETE CASCADE
) STRICT, WITHOUT ROWID;
