#pragma once

#include "contract/document.h"
#include "journal/journal_command.h"

namespace zel {

/// `modal`: calls CMD_DoModal and gives back what it returned, when its dialog has ended. Of an item dialog's `args` a missing
/// record is the one stored under the key.
int runModalDialog(CDBDoc& document, const JournalCommand& command);

/// `modeless`: calls CMD_DoModeless. The result is the dialog's class; null for an id that opens nothing.
Json openModelessDialog(const JournalCommand& command);

/// `open`: builds a dialog class as a host does, and runs it to its end if it is modal. Of `args` dialogs of scale factors take
/// the key of an object.
/// @throws JsonFault  for a class that hosts can't build
void openDialogOfClass(const JournalCommand& command);
/// The same for a class by name, with the key of an object or 0.
void openDialogOfClass(const std::string& name, Key key);

}  // namespace zel
