#include "desktop/host/command_menus.h"

#include "desktop/views/dialog_opening.h"

#include <QAction>
#include <QKeySequence>
#include <QMenu>
#include <QMenuBar>

#include <string_view>

namespace zel::desktop {

namespace {

/// One entry of a menu: a dialog of an id, of a modal command's number, or of an exported class; one of the three.
struct Entry {
    const char* menu;
    const char* text;
    std::string_view id = {};
    unsigned number = 0;
    std::string_view dialogClass = {};
    const char* key = "";
};

// In the order of the menus and of the entries in them.
// clang-format off
const Entry entries[] = {
    {"&Model",    "&Properties...",                                  "D_CMD_MODEL_DEF_PROPERTY"},
    {"&Model",    "&Supports...",                                    "D_CMD_MODEL_DEF_SUPPORT"},
    {"&Model",    "&Generate Pile Support...",                       "D_CMD_MODEL_DEFINE_PILE"},
    {"&Model",    "&Domain...",                                      "D_CMD_MODEL_DOMAIN"},
    {"&Model",    "Assign &Basemat...",                              {}, 0, "CModelAssignBasemat"},
    {"&Model",    "Major &Direction of Wall...",                     "D_CMD_PILEMAT_WDIR"},
    {"&Model",    "New &Material...",                                {}, 16},
    {"&Model",    "New S&ection...",                                 {}, 17},
    {"&Model",    "New &Thickness...",                               {}, 18},
    {"&Model",    "New C&olumn Support...",                          {}, 23},
    {"&Model",    "New P&ile Support...",                            {}, 24},
    {"&Model",    "New &Wall Support...",                            {}, 25},
    {"&Model",    "New So&il Support...",                            {}, 26},
    {"&Model",    "Section Stiffness Scale &Factor...",              {}, 27},
    {"&Model",    "Thickness Stiffness Sc&ale Factor...",            {}, 28},
    {"&Model",    "Model &Control Data...",                          {}, 4},
    {"&Load",     "Static &Load Cases...",                           "D_CMD_MODEL_LOAD_LOADCASE", 0, {}, "Ctrl+L"},
    {"&Load",     "Load &Type...",                                   "D_CMD_MODEL_LOAD"},
    {"&Load",     "New L&ine Load Type...",                          {}, 19},
    {"&Load",     "New &Area Load Type...",                          {}, 20},
    {"&Load",     "Specified &Displacement Interpolation...",        "D_CMD_MODEL_LOAD_SPDI"},
    {"&Load",     "Set Load Cases for &Wind Direction...",           {}, 0, "CLoadCaseWindDirectDlg"},
    {"&Load",     "Set Load Cases for &Orthogonal Effect...",        {}, 0, "CCmdSetOrthoLCDlg"},
    {"&Load",     "Set Load Cases for &Underground Load...",         {}, 0, "CLoadCaseUndergroundDlg"},
    {"&Load",     "Factors for &Seismic Design...",                  {}, 0, "CDgnGenSeisFactor"},
    {"&Load",     "Factors for Seismic Design of Under&ground Load...", {}, 0, "CUnderSeisFactor"},
    {"&Load",     "&Create Load Cases Using Load Combinations...",   {}, 15},
    {"&Load",     "Loads to &Masses...",                             {}, 9},
    {"&Load",     "Time History &Functions...",                      {}, 11},
    {"&Load",     "New Time &History Function...",                   {}, 21},
    {"&Load",     "Time History Load Cas&es...",                     {}, 12},
    {"&Load",     "New Time Histor&y Load Case...",                  {}, 22},
    {"&Analysis", "&Main Control Data...",                           {}, 8},
    {"&Analysis", "Analysis &Options...",                            {}, 5},
    {"&Analysis", "&Eigenvalue Analysis Control...",                 {}, 10},
    {"&Analysis", "&Strip Design Control Data...",                   {}, 0, "CStripDesignControlDataDlg"},
    {"&Results",  "&Load Combinations...",                           "D_CMD_RESULT_LOADCOMB", 0, {}, "Ctrl+K"},
    {"&Results",  "&Envelope...",                                    {}, 2},
    {"&Query",    "Project &Information...",                         {}, 1},
    {"&Query",    "Project &Status...",                              {}, 3},
    {"&Query",    "&Select Identity...",                             "D_CMD_VIEW_SELECT_IDENTITY"},
    {"&Query",    "Select Identity (&Post)...",                      "D_CMD_VIEW_SELECT_IDENTITY_POST"},
    {"&Query",    "Select &Nodes by Identity...",                    {}, 13},
    {"&Query",    "Select &Elements by Identity...",                 {}, 14},
    {"&Query",    "&Active Identity...",                             "D_CMD_VIEW_ACTIVE_IDENTITY"},
    {"&Query",    "Active Identity (P&ost)...",                      "D_CMD_VIEW_ACTIVE_IDENTITY_POST"},
};
// clang-format on

DialogOpening openingOf(const Entry& entry)
{
    return {entry.id, entry.number, entry.dialogClass};
}

}  // namespace

void addCommandMenus(QMenuBar& bar, UserHand& hand)
{
    QMenu* menu = nullptr;
    for (const Entry& entry : entries) {
        if (!openingOf(entry).isThere())
            continue;
        const QString title = QString::fromLatin1(entry.menu);
        if (menu == nullptr || menu->title() != title)
            menu = bar.addMenu(title);
        QAction* action = menu->addAction(QString::fromLatin1(entry.text));
        action->setShortcut(QKeySequence(QString::fromLatin1(entry.key)));
        QObject::connect(action, &QAction::triggered, action, [&hand, &entry] { openingOf(entry).run(hand); });
    }
}

}  // namespace zel::desktop
