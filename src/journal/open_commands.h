#pragma once

#include "contract/document.h"
#include "contract/forms/dialog.h"
#include "journal/journal_command.h"

#include <memory>
#include <optional>
#include <string>

namespace zel {

/// `modal`: calls CMD_DoModal and gives back what it returned, when its dialog has ended. Of an item dialog's `args` a missing
/// record is the one stored under the key.
int runModalDialog(CDBDoc& document, const JournalCommand& command);

/// `modeless`: calls CMD_DoModeless. The result is the dialog's class; null for an id that opens nothing.
Json openModelessDialog(const JournalCommand& command);

/// What `open` hands to the dialog.
struct OpenArgs {
    Key key = 0;                ///< of the object whose scale factors are shown; 0 for none
    std::optional<int> page{};  ///< of a dialog with pages
};

/// `open`: builds a dialog class as a host does, and runs it to its end if it is modal. One that is open beside the views comes to the front.
/// @throws JsonFault  for a class that hosts can't build, or that does not take what `args` name; nothing is opened then
void openDialogOfClass(const JournalCommand& command);
/// The same for a class by name.
void openDialogOfClass(const std::string& name, const OpenArgs& args);
/// The same for a dialog that is made already.
void openDialog(std::unique_ptr<CInternationalDlg> dialog, const OpenArgs& args);

}  // namespace zel
