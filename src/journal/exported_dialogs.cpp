#include "journal/exported_dialogs.h"

#include "load/cmd_set_ortho_lc_dlg.h"
#include "load/dgn_gen_seis_factor.h"
#include "load/load_case_wind_direct_dlg.h"
#include "load/under_seis_factor.h"

#include <array>

namespace zel {

namespace {

template <class Dialog> std::unique_ptr<CInternationalDlg> make() { return std::make_unique<Dialog>(); }

constexpr std::array<ExportedDialog, 4> dialogs{{
    {"CCmdSetOrthoLCDlg", make<CCmdSetOrthoLCDlg>},
    {"CDgnGenSeisFactor", make<CDgnGenSeisFactor>},
    {"CLoadCaseWindDirectDlg", make<CLoadCaseWindDirectDlg>},
    {"CUnderSeisFactor", make<CUnderSeisFactor>},
}};

}  // namespace

std::span<const ExportedDialog> exportedDialogs() { return dialogs; }

}  // namespace zel
