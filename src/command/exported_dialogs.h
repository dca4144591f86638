#pragma once

#include "load/cmd_set_ortho_lc_dlg.h"
#include "load/dgn_gen_seis_factor.h"
#include "load/load_case_underground_dlg.h"
#include "load/load_case_wind_direct_dlg.h"
#include "load/under_seis_factor.h"
#include "loadcomb/envelopes/cm_load_mllc_dlg.h"

#include <algorithm>
#include <array>
#include <memory>
#include <string_view>

/// For hosts: the dialog classes that a host may build by itself, by name. It is code of the host, made of the classes that the
/// library exports, so that the library need export nothing more.
namespace zel {

struct ExportedDialog {
    std::string_view name;
    std::unique_ptr<CInternationalDlg> (*make)();  ///< with no parent
};

template <class Dialog> std::unique_ptr<CInternationalDlg> makeExported()
{
    return std::make_unique<Dialog>();
}

/// All that are built so far, sorted.
inline constexpr std::array exportedDialogs{
    ExportedDialog{"CCMLoadMLLCDlg", &makeExported<CCMLoadMLLCDlg>},
    ExportedDialog{"CCmdSetOrthoLCDlg", &makeExported<CCmdSetOrthoLCDlg>},
    ExportedDialog{"CDgnGenSeisFactor", &makeExported<CDgnGenSeisFactor>},
    ExportedDialog{"CLoadCaseUndergroundDlg", &makeExported<CLoadCaseUndergroundDlg>},
    ExportedDialog{"CLoadCaseWindDirectDlg", &makeExported<CLoadCaseWindDirectDlg>},
    ExportedDialog{"CUnderSeisFactor", &makeExported<CUnderSeisFactor>},
};

/// Null for a class that is not exported, or not built yet.
inline const ExportedDialog* findExportedDialog(std::string_view name)
{
    const auto* found = std::ranges::find(exportedDialogs, name, &ExportedDialog::name);
    return found == exportedDialogs.end() ? nullptr : found;
}

}  // namespace zel
