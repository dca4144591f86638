#pragma once

#include "contract/forms/dialog.h"
#include "journal/journal_command.h"
#include "journal/verbs.h"

namespace zel {

/// The dialog that a command addresses: the active one, or the open one that it names.
/// @throws JsonFault  when there is none, or input can't reach it
CDialog& addressedDialog(const JournalCommand& command);

/// @throws JsonFault  with the refusal of what was not taken
void need(const Taken& taken);

/// Does to a control of the dialog what the command says.
/// @throws JsonFault  when there is no such control or it does not take it; nothing is changed then
void actOnControl(const CDialog& dialog, const JournalCommand& command, const VerbRow& verb);

/// Presses a key in a control, or in the dialog where the command names none.
void pressKey(CDialog& dialog, const JournalCommand& command);

/// Destroys the windows of all open dialogs; for a host that is about to drop the document.
void closeAllDialogs();

}  // namespace zel
