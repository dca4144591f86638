#pragma once

#include "cli/commands.h"
#include "cli/console.h"
#include "loadcomb/generation/load_comb_ctrl.h"

#include <iosfwd>

namespace zel::cli {

/// Answers "--explain" and "--why-not" of a generation by a run that stores nothing.
///
/// A combination that the run gives is explained by its name there. One that the model holds already is explained as it is stored, if the
/// run gives the same under another name.
/// @throws std::runtime_error  for a name that can't be explained, with what can be done
void answerQuestion(const GenerateCombinations& job, CLoadCombCtrl& control, const Console& console, std::ostream& out);

}  // namespace zel::cli
