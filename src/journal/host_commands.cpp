#include "journal/host_commands.h"

#include "command/command.h"
#include "contract/forms/control.h"
#include "contract/forms/dialog.h"

#include <algorithm>
#include <array>

namespace zel {

namespace {

/// A command that opens a dialog beside the views, perhaps at a page.
struct Opening {
    unsigned number;
    const unsigned* modelId;  ///< in the modelling mode
    const unsigned* postId;   ///< in the post-processing mode
    int page;                 ///< -1: as it stands
};

const std::array<Opening, 7> openings{{
    {32869, &D_CMD_MODEL_LOAD_LOADCASE, &D_CMD_MODEL_LOAD_LOADCASE, -1},
    {32894, &D_CMD_RESULT_LOADCOMB, &D_CMD_RESULT_LOADCOMB, -1},
    {32862, &D_CMD_MODEL_DEF_PROPERTY, &D_CMD_MODEL_DEF_PROPERTY, 0},  // materials
    {32864, &D_CMD_MODEL_DEF_PROPERTY, &D_CMD_MODEL_DEF_PROPERTY, 2},  // thicknesses
    {32868, &D_CMD_MODEL_DEF_SUPPORT, &D_CMD_MODEL_DEF_SUPPORT, 1},    // piles
    {32939, &D_CMD_VIEW_SELECT_IDENTITY, &D_CMD_VIEW_SELECT_IDENTITY_POST, -1},
    {32954, &D_CMD_VIEW_ACTIVE_IDENTITY, &D_CMD_VIEW_ACTIVE_IDENTITY_POST, -1},
}};

/// A command that runs a modal dialog.
struct Running {
    unsigned number;
    unsigned modalCommand;
};

constexpr std::array<Running, 2> runnings{{
    {32890, 10},  // eigenvalue control
    {32907, 3},   // detail statistics: the project's status
}};

void choosePage(const CDialog& dialog, int page)
{
    for (Control* control : dialog.ownControls()) {
        if (control->kind() == Kind::tabs) {
            (void)control->choose(static_cast<double>(page));  // a host only offers the page; if it can't be chosen, the form stays where it is
            return;
        }
    }
}

}  // namespace

void HostCommands::run(unsigned number)
{
    const auto opening = std::find_if(openings.begin(), openings.end(), [number](const Opening& each) { return each.number == number; });
    if (opening != openings.end()) {
        const CDialog* dialog = CMD_DoModeless(m_post ? *opening->postId : *opening->modelId, nullptr);
        if (dialog != nullptr && opening->page >= 0)
            choosePage(*dialog, opening->page);
        return;
    }
    const auto running = std::find_if(runnings.begin(), runnings.end(), [number](const Running& each) { return each.number == number; });
    if (running != runnings.end())
        CMD_DoModal(running->modalCommand, nullptr, 0);
}

}  // namespace zel
