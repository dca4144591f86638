#pragma once

#include "contract/export.h"
#include "contract/text.h"

class CDialog;
class CWnd;

/// The ways into the command library. All are called on the host's user-interface thread. Neither reports anything to the
/// user, and nothing is thrown.

/// Ids of the dialogs that stay open beside the views. A host passes the value of such a variable back and assumes nothing about it.
extern ZEL_CMD_API unsigned D_CMD_MODEL_DEF_PROPERTY;
extern ZEL_CMD_API unsigned D_CMD_MODEL_DEF_SUPPORT;
extern ZEL_CMD_API unsigned D_CMD_MODEL_LOAD_LOADCASE;
extern ZEL_CMD_API unsigned D_CMD_RESULT_LOADCOMB;
extern ZEL_CMD_API unsigned D_CMD_MODEL_LOAD;
extern ZEL_CMD_API unsigned D_CMD_VIEW_SELECT_IDENTITY;
extern ZEL_CMD_API unsigned D_CMD_VIEW_SELECT_IDENTITY_POST;
extern ZEL_CMD_API unsigned D_CMD_MODEL_DOMAIN;
extern ZEL_CMD_API unsigned D_CMD_PILEMAT_WDIR;
extern ZEL_CMD_API unsigned D_CMD_VIEW_ACTIVE_IDENTITY;
extern ZEL_CMD_API unsigned D_CMD_VIEW_ACTIVE_IDENTITY_POST;
extern ZEL_CMD_API unsigned D_CMD_MODEL_DEFINE_PILE;
extern ZEL_CMD_API unsigned D_CMD_MODEL_LOAD_SPDI;

/// Opens the dialog of an id, or brings the one that stands open under it to the front with its contents as they are.
///
/// @param parent  of a newly created dialog; not looked at when the dialog is open
/// @return  the dialog, which frees itself when it is closed: the host must not keep it beyond the user's next action. Null
///          for an id that is none of the thirteen, and when no model is open
ZEL_CMD_API CDialog* CMD_DoModeless(unsigned dialogId, CWnd* parent);

/// Runs the modal dialog of a command to its end.
///
/// @param commandNumber  1 to 28, as in `zel::modalCommands()`
/// @param args  may be null. Commands 16 to 28 read element 0, which points to an unsigned key, and all of them but 27 and 28
///              element 1, which points to a record of the command's type. Both are copied
/// @param flag  commands 16 to 18: other than 0 modifies the record of that key, 0 adds a new one under it
/// @return  the end code of the dialog: 1 OK, 2 Cancel, or its own; 0 where none was opened
ZEL_CMD_API int CMD_DoModal(unsigned commandNumber, CArray<void*, void*>* args, int flag);

/// Does nothing: a host that calls it links to the library, and so causes it to load.
ZEL_CMD_API void Init_ZEL_cmddll();
