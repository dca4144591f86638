#pragma once

#include "contract/document.h"
#include "contract/view_ctrl.h"
#include "journal/journal_command.h"

namespace zel {

/// `db`: reads or writes a table directly, as another window would. The result is what was read, or what the operation returned.
/// @throws JsonFault  for what can't be carried out; a refusal by the table is no such case, its result is 0
Json actOnTable(CDBDoc& document, const JournalCommand& command);

/// `units`: changes the unit system; a unit that is not given stays. The result is 0 when the change was refused.
Json changeUnits(CDBDoc& document, const JournalCommand& command);

/// Keys by kind of object, as `view`'s `select` has them.
/// @param field  that holds them, for the faults
/// @throws JsonFault  for an unknown kind of object or a key that is none
T_SELECTION selectionFromJson(const Json& json, const std::string& field);
/// The same way back; kinds of which nothing is selected are left out.
Json selectionToJson(const T_SELECTION& selection);

}  // namespace zel
