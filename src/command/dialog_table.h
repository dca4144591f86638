#pragma once

#include "command/command.h"
#include "contract/export.h"

#include <array>
#include <string_view>

/// Every dialog that the entries know, as data for hosts and scripts. A row whose dialog is not built yet behaves as an
/// unknown id or number.
namespace zel {

/// A dialog that stays open beside the views.
struct ModelessDialog {
    std::string_view name;  ///< of the exported id, as scripts write it
    const unsigned* id;     ///< the exported id
    std::string_view dialogClass;
    unsigned templateId;  ///< number by which the form is known
    std::string_view title;
};

/// In the order in which the ids are registered and compared.
// clang-format off
inline constexpr std::array<ModelessDialog, 13> modelessDialogs{{
    {"D_CMD_MODEL_DEF_PROPERTY",        &D_CMD_MODEL_DEF_PROPERTY,        "CModelDefProperty",        14008, "Properties"},
    {"D_CMD_MODEL_DEF_SUPPORT",         &D_CMD_MODEL_DEF_SUPPORT,         "CModelDefSupport",         14000, "Supports"},
    {"D_CMD_MODEL_LOAD_LOADCASE",       &D_CMD_MODEL_LOAD_LOADCASE,       "CCMLoadCaseDlg",           14047, "Static Load Cases"},
    {"D_CMD_RESULT_LOADCOMB",           &D_CMD_RESULT_LOADCOMB,           "CCMLoadCombDlg",           14052, "Load Combinations"},
    {"D_CMD_MODEL_LOAD",                &D_CMD_MODEL_LOAD,                "CCMLoadTypeDlg",           14057, "Load Type"},
    {"D_CMD_VIEW_SELECT_IDENTITY",      &D_CMD_VIEW_SELECT_IDENTITY,      "CCMSelectIdentityDlg",     14070, "Select Identity"},
    {"D_CMD_VIEW_SELECT_IDENTITY_POST", &D_CMD_VIEW_SELECT_IDENTITY_POST, "CCMSelectIdentityPostDlg", 14096, "Select Identity"},
    {"D_CMD_MODEL_DOMAIN",              &D_CMD_MODEL_DOMAIN,              "CModelDomainDlg",          14095, "Domain"},
    {"D_CMD_PILEMAT_WDIR",              &D_CMD_PILEMAT_WDIR,              "CModelWallDirection",      14097, "Select Major Direction of Wall"},
    {"D_CMD_VIEW_ACTIVE_IDENTITY",      &D_CMD_VIEW_ACTIVE_IDENTITY,      "CMActiveIdentityDlg",      14098, "Active Identity"},
    {"D_CMD_VIEW_ACTIVE_IDENTITY_POST", &D_CMD_VIEW_ACTIVE_IDENTITY_POST, "CMActiveIdentityPostDlg",  14100, "Active Identity"},
    {"D_CMD_MODEL_DEFINE_PILE",         &D_CMD_MODEL_DEFINE_PILE,         "CModelSupDefPile",         14067, "Generate Pile Support"},
    {"D_CMD_MODEL_LOAD_SPDI",           &D_CMD_MODEL_LOAD_SPDI,           "CCMLoadSPDIList",          14103, "Specified Displacement Interpolation"},
}};
// clang-format on

/// What a modal command hands to its dialog before it runs.
enum class SetUp {
    none,
    initialPlace,       ///< opens beside its parent
    identityMode1,      ///< runs modally in mode 1
    identityMode2,      ///< runs modally in mode 2
    addOrModify,        ///< key and record; `flag` chooses
    modify,             ///< key and record
    modifyByName,       ///< the record alone, whose name is its address
    scaleFactorsOfKey,  ///< the key alone
};

/// A command that runs a modal dialog.
struct ModalCommand {
    unsigned number;
    std::string_view dialogClass;  ///< empty: opens nothing
    unsigned templateId;
    std::string_view title;
    SetUp setUp;
    std::string_view record;  ///< table of the record in `args`; empty: none is read
};

// clang-format off
inline constexpr std::array<ModalCommand, 28> modalCommands{{
    { 1, "CFileProjInfo",            14046, "Project Information",                       SetUp::none,              ""},
    { 2, "CCMEnvlListDlg",           14054, "Envelope",                                  SetUp::initialPlace,      ""},
    { 3, "CCMQueryProjStatus",       14056, "Project Status",                            SetUp::none,              ""},
    { 4, "CModelCtrlData",           14062, "Model Control Data",                        SetUp::none,              ""},
    { 5, "CAnalysisOptionDlg",       14063, "Analysis Options",                          SetUp::none,              ""},
    { 6, "",                             0, "",                                          SetUp::none,              ""},
    { 7, "",                             0, "",                                          SetUp::none,              ""},
    { 8, "CAnalysisCtrlData",        14069, "Main Control Data",                         SetUp::none,              ""},
    { 9, "CModelLoadToMassDlg",      14081, "Loads to Masses",                           SetUp::none,              ""},
    {10, "CModelEigenvalueDlg",      14086, "Eigenvalue Analysis Control...",            SetUp::none,              ""},
    {11, "CThfcListDlg",             14087, "Time History Functions",                    SetUp::none,              ""},
    {12, "CThisListDlg",             14089, "Time History Load Cases",                   SetUp::none,              ""},
    {13, "CCMSelectIdentityPostDlg", 14096, "Select Identity",                           SetUp::identityMode1,     ""},
    {14, "CCMSelectIdentityPostDlg", 14096, "Select Identity",                           SetUp::identityMode2,     ""},
    {15, "CCMLoadMLLCDlg",            9210, "Create Load Cases Using Load Combinations", SetUp::none,              ""},
    {16, "CModelPropMatlDlg",        14012, "Material Data",                             SetUp::addOrModify,       "MATL"},
    {17, "CCMSectItemDlg",           14021, "Section",                                   SetUp::addOrModify,       "SECT"},
    {18, "CModelPropThikDlg",        14020, "Thickness Data",                            SetUp::addOrModify,       "THIK"},
    {19, "CCMLoadLineAdd",           14059, "Line Load Type",                            SetUp::modify,            "LNLD"},
    {20, "CCMLoadAreaAdd",           14061, "Area Load Type",                            SetUp::modify,            "ARLD"},
    {21, "CThfcItemDlg",             14088, "Add/Modify/Show Time History Functions",    SetUp::modifyByName,      "THFC"},
    {22, "CThisItemDlg",             14090, "Time History Load Cases",                   SetUp::modifyByName,      "THLD"},
    {23, "CModelSupColAdd",          14006, "Column Support",                            SetUp::modify,            "COSD"},
    {24, "CModelSupPileAdd",         14049, "Pile Support",                              SetUp::modify,            "PISD"},
    {25, "CModelSupWallAdd",         14019, "Wall Support",                              SetUp::modify,            "WASD"},
    {26, "CModelSupSoilAdd",         14050, "Soil Support",                              SetUp::modify,            "SOSD"},
    {27, "CModelSectScaleDlg",        9176, "Section Stiffness Scale Factor",            SetUp::scaleFactorsOfKey, ""},
    {28, "CModelThikScaleDlg",       14105, "Thickness Stiffness Scale Factor",          SetUp::scaleFactorsOfKey, ""},
}};
// clang-format on

/// The command of that number; null for a number outside 1 to 28, and for those that open nothing.
constexpr const ModalCommand* findModalCommand(unsigned number)
{
    if (number == 0 || number > modalCommands.size() || modalCommands[number - 1].dialogClass.empty())
        return nullptr;
    return &modalCommands[number - 1];
}

/// Whether the dialog class is built, so that a host can leave commands out that would open nothing.
ZEL_CMD_API bool hasDialogClass(std::string_view name);

}  // namespace zel
