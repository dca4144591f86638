#pragma once

#include "command/command.h"
#include "contract/export.h"

#include <algorithm>
#include <array>
#include <memory>
#include <string_view>
#include <vector>

class CInternationalDlg;

/// Every dialog that a host can open, one row each: the entries, the menus, the model tree, the list of exported classes and the list of
/// forms in the README follow from it. A row whose dialog is not built yet behaves as an unknown id, number or class.
namespace zel {

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

/// How a dialog is opened: beside the views by an exported id, modally by a command's number, or by its class alone.
struct Way {
    std::string_view idName = {};  ///< as scripts write it
    const unsigned* id = nullptr;
    int registered = 0;  ///< place of the id among the ids, in the order in which they are registered
    unsigned number = 0;
    SetUp setUp = SetUp::none;
    std::string_view record = {};  ///< table of the record that the command takes; empty: none is read
};

constexpr Way beside(int registered, std::string_view idName, const unsigned& id)
{
    return {idName, &id, registered};
}
constexpr Way modal(unsigned number, SetUp setUp = SetUp::none, std::string_view record = {})
{
    return {{}, nullptr, 0, number, setUp, record};
}
constexpr Way byClass{};

enum class Exported { no, yes };  ///< whether hosts may build the class by themselves

/// Where hosts with menus offer a dialog. Mnemonics are marked by "&".
struct MenuEntry {
    std::string_view menu = {};
    std::string_view text = {};
    std::string_view key = {};
};

struct DialogRow {
    std::string_view dialogClass;
    unsigned templateId;  ///< number by which the form is known; 0 where the form is not described yet
    std::string_view title;
    Way way;
    Exported exported;
    MenuEntry entry;
    std::string_view subjects = {};  ///< codes of the tables that it edits: their subjects in a model tree lead to it
};

// In the order of the menus and of their entries. A class that opens in several ways has a row for each, with the same template and title.
// clang-format off
inline constexpr DialogRow dialogRows[] = {
    {"CModelDefProperty",         14008, "Properties",                                beside(1, "D_CMD_MODEL_DEF_PROPERTY", D_CMD_MODEL_DEF_PROPERTY),
     Exported::yes, {"&Model",    "&Properties..."}, "MATL SECT THIK"},
    {"CModelDefSupport",          14000, "Supports",                                  beside(2, "D_CMD_MODEL_DEF_SUPPORT", D_CMD_MODEL_DEF_SUPPORT),
     Exported::yes, {"&Model",    "&Supports..."}, "COSD PISD WASD SOSD GSPD"},
    {"CModelSupDefPile",          14067, "Generate Pile Support",                     beside(12, "D_CMD_MODEL_DEFINE_PILE", D_CMD_MODEL_DEFINE_PILE),
     Exported::no,  {"&Model",    "&Generate Pile Support..."}},
    {"CModelDomainDlg",           14095, "Domain",                                    beside(8, "D_CMD_MODEL_DOMAIN", D_CMD_MODEL_DOMAIN),
     Exported::yes, {"&Model",    "&Domain..."}, "WKAR"},
    {"CModelAssignBasemat",           0, "Assign Basemat",                            byClass,
     Exported::yes, {"&Model",    "Assign &Basemat..."}},
    {"CModelWallDirection",       14097, "Select Major Direction of Wall",            beside(9, "D_CMD_PILEMAT_WDIR", D_CMD_PILEMAT_WDIR),
     Exported::no,  {"&Model",    "Major &Direction of Wall..."}, "WDIR"},
    {"CModelPropMatlDlg",         14012, "Material Data",                             modal(16, SetUp::addOrModify, "MATL"),
     Exported::no,  {"&Model",    "New &Material..."}},
    {"CCMSectItemDlg",            14021, "Section",                                   modal(17, SetUp::addOrModify, "SECT"),
     Exported::no,  {"&Model",    "New S&ection..."}},
    {"CModelPropThikDlg",         14020, "Thickness Data",                            modal(18, SetUp::addOrModify, "THIK"),
     Exported::no,  {"&Model",    "New &Thickness..."}},
    {"CModelSupColAdd",           14006, "Column Support",                            modal(23, SetUp::modify, "COSD"),
     Exported::no,  {"&Model",    "New C&olumn Support..."}},
    {"CModelSupPileAdd",          14049, "Pile Support",                              modal(24, SetUp::modify, "PISD"),
     Exported::no,  {"&Model",    "New P&ile Support..."}},
    {"CModelSupWallAdd",          14019, "Wall Support",                              modal(25, SetUp::modify, "WASD"),
     Exported::no,  {"&Model",    "New &Wall Support..."}},
    {"CModelSupSoilAdd",          14050, "Soil Support",                              modal(26, SetUp::modify, "SOSD"),
     Exported::no,  {"&Model",    "New So&il Support..."}},
    {"CModelSectScaleDlg",         9176, "Section Stiffness Scale Factor",            modal(27, SetUp::scaleFactorsOfKey),
     Exported::yes, {"&Model",    "Section Stiffness Scale &Factor..."}},
    {"CModelThikScaleDlg",        14105, "Thickness Stiffness Scale Factor",          modal(28, SetUp::scaleFactorsOfKey),
     Exported::yes, {"&Model",    "Thickness Stiffness Sc&ale Factor..."}},
    {"CModelCtrlData",            14062, "Model Control Data",                        modal(4),
     Exported::no,  {"&Model",    "Model &Control Data..."}},
    {"CCMLoadCaseDlg",            14047, "Static Load Cases",                         beside(3, "D_CMD_MODEL_LOAD_LOADCASE", D_CMD_MODEL_LOAD_LOADCASE),
     Exported::no,  {"&Load",     "Static &Load Cases...", "Ctrl+L"}, "STLD"},
    {"CCMLoadTypeDlg",            14057, "Load Type",                                 beside(5, "D_CMD_MODEL_LOAD", D_CMD_MODEL_LOAD),
     Exported::yes, {"&Load",     "Load &Type..."}, "LNLD ARLD"},
    {"CCMLoadLineAdd",            14059, "Line Load Type",                            modal(19, SetUp::modify, "LNLD"),
     Exported::no,  {"&Load",     "New L&ine Load Type..."}},
    {"CCMLoadAreaAdd",            14061, "Area Load Type",                            modal(20, SetUp::modify, "ARLD"),
     Exported::no,  {"&Load",     "New &Area Load Type..."}},
    {"CCMLoadSPDIList",           14103, "Specified Displacement Interpolation",      beside(13, "D_CMD_MODEL_LOAD_SPDI", D_CMD_MODEL_LOAD_SPDI),
     Exported::no,  {"&Load",     "Specified &Displacement Interpolation..."}, "SPDI"},
    {"CLoadCaseWindDirectDlg",    14110, "Set Load Cases for Wind Direction",         byClass,
     Exported::yes, {"&Load",     "Set Load Cases for &Wind Direction..."}, "LCWD"},
    {"CCmdSetOrthoLCDlg",         14174, "Set Load Cases for Orthogonal Effect",      byClass,
     Exported::yes, {"&Load",     "Set Load Cases for &Orthogonal Effect..."}, "LCOE"},
    {"CLoadCaseUndergroundDlg",   14111, "Set Load Cases for Underground Load",       byClass,
     Exported::yes, {"&Load",     "Set Load Cases for &Underground Load..."}, "LCUG"},
    {"CDgnGenSeisFactor",         14283, "Factors for Seismic Design",                byClass,
     Exported::yes, {"&Load",     "Factors for &Seismic Design..."}, "SLCF"},
    {"CUnderSeisFactor",          14112, "Factors for Seismic Design",                byClass,
     Exported::yes, {"&Load",     "Factors for Seismic Design of Under&ground Load..."}, "SIFT"},
    {"CCMLoadMLLCDlg",             9210, "Create Load Cases Using Load Combinations", modal(15),
     Exported::yes, {"&Load",     "&Create Load Cases Using Load Combinations..."}},
    {"CModelLoadToMassDlg",       14081, "Loads to Masses",                           modal(9),
     Exported::no,  {"&Load",     "Loads to &Masses..."}},
    {"CThfcListDlg",              14087, "Time History Functions",                    modal(11),
     Exported::yes, {"&Load",     "Time History &Functions..."}, "THFC"},
    {"CThfcItemDlg",              14088, "Add/Modify/Show Time History Functions",    modal(21, SetUp::modifyByName, "THFC"),
     Exported::no,  {"&Load",     "New Time &History Function..."}},
    {"CThisListDlg",              14089, "Time History Load Cases",                   modal(12),
     Exported::yes, {"&Load",     "Time History Load Cas&es..."}, "THLD"},
    {"CThisItemDlg",              14090, "Time History Load Cases",                   modal(22, SetUp::modifyByName, "THLD"),
     Exported::no,  {"&Load",     "New Time Histor&y Load Case..."}},
    {"CAnalysisCtrlData",         14069, "Main Control Data",                         modal(8),
     Exported::no,  {"&Analysis", "&Main Control Data..."}},
    {"CAnalysisOptionDlg",        14063, "Analysis Options",                          modal(5),
     Exported::no,  {"&Analysis", "Analysis &Options..."}},
    {"CModelEigenvalueDlg",       14086, "Eigenvalue Analysis Control...",            modal(10),
     Exported::no,  {"&Analysis", "&Eigenvalue Analysis Control..."}},
    {"CStripDesignControlDataDlg",    0, "Strip Design Control Data",                 byClass,
     Exported::yes, {"&Analysis", "&Strip Design Control Data..."}},
    {"CCMLoadCombDlg",            14052, "Load Combinations",                         beside(4, "D_CMD_RESULT_LOADCOMB", D_CMD_RESULT_LOADCOMB),
     Exported::no,  {"&Results",  "&Load Combinations...", "Ctrl+K"}, "LCOM"},
    {"CCMEnvlListDlg",            14054, "Envelope",                                  modal(2, SetUp::initialPlace),
     Exported::no,  {"&Results",  "&Envelope..."}, "ENVL"},
    {"CFileProjInfo",             14046, "Project Information",                       modal(1),
     Exported::no,  {"&Query",    "Project &Information..."}},
    {"CCMQueryProjStatus",        14056, "Project Status",                            modal(3),
     Exported::no,  {"&Query",    "Project &Status..."}},
    {"CCMSelectIdentityDlg",      14070, "Select Identity",                           beside(6, "D_CMD_VIEW_SELECT_IDENTITY", D_CMD_VIEW_SELECT_IDENTITY),
     Exported::no,  {"&Query",    "&Select Identity..."}},
    {"CCMSelectIdentityPostDlg",  14096, "Select Identity",                           beside(7, "D_CMD_VIEW_SELECT_IDENTITY_POST", D_CMD_VIEW_SELECT_IDENTITY_POST),
     Exported::no,  {"&Query",    "Select Identity (&Post)..."}},
    {"CCMSelectIdentityPostDlg",  14096, "Select Identity",                           modal(13, SetUp::identityMode1),
     Exported::no,  {"&Query",    "Select &Nodes by Identity..."}},
    {"CCMSelectIdentityPostDlg",  14096, "Select Identity",                           modal(14, SetUp::identityMode2),
     Exported::no,  {"&Query",    "Select &Elements by Identity..."}},
    {"CMActiveIdentityDlg",       14098, "Active Identity",                           beside(10, "D_CMD_VIEW_ACTIVE_IDENTITY", D_CMD_VIEW_ACTIVE_IDENTITY),
     Exported::no,  {"&Query",    "&Active Identity..."}},
    {"CMActiveIdentityPostDlg",   14100, "Active Identity",                           beside(11, "D_CMD_VIEW_ACTIVE_IDENTITY_POST", D_CMD_VIEW_ACTIVE_IDENTITY_POST),
     Exported::no,  {"&Query",    "Active Identity (P&ost)..."}},
};
// clang-format on

/// A dialog that stays open beside the views.
struct ModelessDialog {
    std::string_view name;  ///< of the exported id, as scripts write it
    const unsigned* id = nullptr;
    std::string_view dialogClass;
    unsigned templateId = 0;
    std::string_view title;
};

/// In the order in which the ids are registered and compared.
inline constexpr std::array<ModelessDialog, 13> modelessDialogs = [] {
    std::array<ModelessDialog, 13> rows{};
    for (const DialogRow& row : dialogRows) {
        if (row.way.registered != 0)
            rows[static_cast<std::size_t>(row.way.registered - 1)] = {row.way.idName, row.way.id, row.dialogClass, row.templateId, row.title};
    }
    return rows;
}();

/// A command that runs a modal dialog.
struct ModalCommand {
    unsigned number = 0;
    std::string_view dialogClass;  ///< empty: opens nothing
    unsigned templateId = 0;
    std::string_view title;
    SetUp setUp = SetUp::none;
    std::string_view record;  ///< table of the record in `args`; empty: none is read
};

/// By number. 6 and 7 open nothing.
inline constexpr std::array<ModalCommand, 28> modalCommands = [] {
    std::array<ModalCommand, 28> commands{};
    for (std::size_t i = 0; i < commands.size(); ++i)
        commands[i].number = static_cast<unsigned>(i + 1);
    for (const DialogRow& row : dialogRows) {
        if (row.way.number != 0)
            commands[row.way.number - 1] = {row.way.number, row.dialogClass, row.templateId, row.title, row.way.setUp, row.way.record};
    }
    return commands;
}();

/// The command of that number; null for a number outside 1 to 28, and for those that open nothing.
constexpr const ModalCommand* findModalCommand(unsigned number)
{
    if (number == 0 || number > modalCommands.size() || modalCommands[number - 1].dialogClass.empty())
        return nullptr;
    return &modalCommands[number - 1];
}

/// The dialog that edits a table, by the table's code; null if none does.
constexpr const DialogRow* findDialogOfTable(std::string_view table)
{
    const auto* found = std::ranges::find_if(dialogRows, [table](const DialogRow& row) { return row.subjects.find(table) != std::string_view::npos; });
    return found != std::ranges::end(dialogRows) ? found : nullptr;
}

/// Whether the dialog class is built, so that a host can leave out what would open nothing.
ZEL_CMD_API bool hasDialogClass(std::string_view name);

/// The exported classes that are built, sorted.
ZEL_CMD_API std::vector<std::string_view> exportedDialogs();

/// A dialog of an exported class, with no parent; null for a class that is not exported, or not built yet.
ZEL_CMD_API std::unique_ptr<CInternationalDlg> makeExportedDialog(std::string_view name);

}  // namespace zel
