#pragma once

/// The tables of the model, one line each: the enumerators of `Table`, the registry behind `tableList` and the update codes of the
/// handles follow from it. The order gives each table its update codes. A code and its place are permanent: they stand in files and
/// journals. A new table goes to the end.
///
///     ROW(code, record, handle, noun of one record, shape, names, update codes, fields that the table keeps itself)
///
/// The words are those of `TableInfo`. A table without a handle has `CDBData` there.
// clang-format off
#define ZEL_TABLES(ROW) \
    ROW(STLD, T_STLD_D, CDataStld, "static load case",                    keyed,  filled,   all, .sequenceField = fieldOf(&T_STLD_D::no)) \
    ROW(LCOM, T_LCOM_D, CDataLcom, "load combination",                    kinded, any,      all, .sequenceField = fieldOf(&T_LCOM_D::number), .kindField = fieldOf(&T_LCOM_D::kind)) \
    ROW(ENVL, T_ENVL_D, CDataEnvl, "envelope",                            keyed,  notEmpty, all) \
    ROW(SPDI, T_SPDI_D, CDataSpdi, "specified displacement interpolation", keyed, none,     all) \
    ROW(LNLD, T_LNLD_D, CDataLnld, "line load type",                      keyed,  filled,   all) \
    ROW(ARLD, T_ARLD_D, CDataArld, "area load type",                      keyed,  filled,   all) \
    ROW(THFC, T_THFC_D, CDataThfc, "time history function",               keyed,  filled,   all) \
    ROW(THLD, T_THLD_D, CDataThld, "time history load case",              keyed,  filled,   all, .keyField = fieldOf(&T_THLD_D::key)) \
    ROW(MATL, T_MATL_D, CDataMatl, "material",                            keyed,  any,      all) \
    ROW(SECT, T_SECT_D, CDataSect, "section",                             keyed,  any,      all) \
    ROW(THIK, T_THIK_D, CDataThik, "thickness",                           keyed,  any,      all) \
    ROW(SECF, T_SECF_D, CDataSecf, "section stiffness scale factor",      keyed,  none,     none) \
    ROW(THKF, T_THKF_D, CDataThkf, "thickness stiffness scale factor",    keyed,  none,     none) \
    ROW(COSD, T_COSD_D, CDataCosd, "column support type",                 keyed,  filled,   all) \
    ROW(PISD, T_PISD_D, CDataPisd, "pile support type",                   keyed,  filled,   all) \
    ROW(WASD, T_WASD_D, CDataWasd, "wall support type",                   keyed,  filled,   all) \
    ROW(SOSD, T_SOSD_D, CDataSosd, "soil support type",                   keyed,  filled,   all) \
    ROW(GSPD, T_GSPD_D, CDataGspd, "general spring type",                 keyed,  filled,   all) \
    ROW(WKAR, T_WKAR_D, CDataWkar, "domain",                              keyed,  filled,   all, .keyField = fieldOf(&T_WKAR_D::key)) \
    ROW(WDIR, T_WDIR_D, CDataWdir, "major direction of a wall",           keyed,  none,     all) \
    ROW(SLCF, T_SLCF_D, CDataSlcf, "seismic design factors",              single, none,     addAndDelete) \
    ROW(SIFT, T_SIFT_D, CDataSift, "seismic factors for underground loads", single, none,   addAndDelete) \
    ROW(LCUG, T_LCUG_D, CDataLcug, "load-case set for underground loads", single, none,     none) \
    ROW(LCWD, T_LCWD_D, CDataLcwd, "load-case set for wind directions",   single, none,     none) \
    ROW(LCOE, T_LCOE_D, CDataLcoe, "load-case set for the orthogonal effect", single, none, none) \
    ROW(SURS, T_SURS_D, CDataSurs, "selections of the default load combination form", single, none, none) \
    ROW(LTOM, T_LTOM_D, CDataLtom, "loads-to-masses data",                single, none,     none) \
    ROW(EIGV, T_EIGV_D, CDataEigv, "eigenvalue control",                  single, none,     none) \
    ROW(MCTL, T_MCTL_D, CDataMctl, "model control data",                  single, none,     none) \
    ROW(ACTL, T_ACTL_D, CDataActl, "main control data",                   single, none,     none) \
    ROW(CSDD, T_CSDD_D, CDataCsdd, "strip design control data",           single, none,     none) \
    ROW(PJCF, T_PJCF_D, CDataPjcf, "project information",                 single, none,     none) \
    ROW(PONT, T_PONT_D, CDataPont, "point",                               keyed,  none,     none) \
    ROW(LINE, T_LINE_D, CDataLine, "line",                                keyed,  none,     none) \
    ROW(AREA, T_AREA_D, CDataArea, "area",                                keyed,  none,     none) \
    ROW(BEAM, T_BEAM_D, CDataBeam, "beam",                                keyed,  none,     all) \
    ROW(SLAB, T_SLAB_D, CDataSlab, "slab",                                keyed,  none,     all) \
    ROW(OPEN, T_OPEN_D, CDataOpen, "opening",                             keyed,  none,     none) \
    ROW(MSLN, T_MSLN_D, CDataMsln, "mesh line dimension",                 keyed,  none,     none) \
    ROW(COSA, T_COSA_D, CDataCosa, "column support",                      keyed,  none,     none) \
    ROW(PISA, T_PISA_D, CDataPisa, "pile support",                        keyed,  none,     none) \
    ROW(WASA, T_WASA_D, CDataWasa, "wall support",                        keyed,  none,     none) \
    ROW(SOSA, T_SOSA_D, CDataSosa, "soil support",                        keyed,  none,     none) \
    ROW(BRLS, T_BRLS_D, CDataBrls, "beam end release",                    keyed,  none,     none) \
    ROW(OFFS, T_OFFS_D, CDataOffs, "beam end offset",                     keyed,  none,     none) \
    ROW(SRLS, T_SRLS_D, CDataSrls, "slab end release",                    keyed,  none,     none) \
    ROW(COIF, T_COIF_D, CDataCoif, "punching check size",                 keyed,  none,     none) \
    ROW(GDLN, T_GDLN_D, CDataGdln, "grid line",                           keyed,  filled,   none) \
    ROW(NUCS, T_NUCS_D, CDataNucs, "named coordinate system",             keyed,  filled,   none) \
    ROW(GRUP, T_GRUP_D, CDataGrup, "group",                               keyed,  filled,   all) \
    ROW(OMAS, T_OMAS_D, CDataOmas, "mass",                                keyed,  none,     none) \
    ROW(PTLA, T_PTLA_D, CDataPtla, "point load",                          keyed,  none,     none) \
    ROW(SPDP, T_SPDP_D, CDataSpdp, "specified displacement",              keyed,  none,     none) \
    ROW(LNLA, T_LNLA_D, CDataLnla, "line load",                           keyed,  none,     none) \
    ROW(ARLA, T_ARLA_D, CDataArla, "area load",                           keyed,  none,     none) \
    ROW(THPL, T_THPL_D, CDataThpl, "dynamic point load",                  keyed,  none,     none) \
    ROW(NODE, T_NODE,   CDBData,   "node",                                keyed,  none,     none) \
    ROW(ELEM, T_ELEM,   CDBData,   "element",                             keyed,  none,     none)
// clang-format on
