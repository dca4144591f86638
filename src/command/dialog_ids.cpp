#include "command/command.h"
#include "contract/forms/db_dlg_base.h"
#include "contract/forms/loading_status.h"

// Registered as the library loads, in this order.
unsigned D_CMD_MODEL_DEF_PROPERTY = CDBDlgBase::RegisterDialog();
unsigned D_CMD_MODEL_DEF_SUPPORT = CDBDlgBase::RegisterDialog();
unsigned D_CMD_MODEL_LOAD_LOADCASE = CDBDlgBase::RegisterDialog();
unsigned D_CMD_RESULT_LOADCOMB = CDBDlgBase::RegisterDialog();
unsigned D_CMD_MODEL_LOAD = CDBDlgBase::RegisterDialog();
unsigned D_CMD_VIEW_SELECT_IDENTITY = CDBDlgBase::RegisterDialog();
unsigned D_CMD_VIEW_SELECT_IDENTITY_POST = CDBDlgBase::RegisterDialog();
unsigned D_CMD_MODEL_DOMAIN = CDBDlgBase::RegisterDialog();
unsigned D_CMD_PILEMAT_WDIR = CDBDlgBase::RegisterDialog();
unsigned D_CMD_VIEW_ACTIVE_IDENTITY = CDBDlgBase::RegisterDialog();
unsigned D_CMD_VIEW_ACTIVE_IDENTITY_POST = CDBDlgBase::RegisterDialog();
unsigned D_CMD_MODEL_DEFINE_PILE = CDBDlgBase::RegisterDialog();
unsigned D_CMD_MODEL_LOAD_SPDI = CDBDlgBase::RegisterDialog();

namespace {

const CLoadingStatus loadingStatus("ZEL_cmd");

}  // namespace

void Init_ZEL_cmddll() {}
