#include "contract/table_store.h"

#include "contract/messages.h"
#include "contract/user_interface.h"

int zel::refuseMissing(const TableInfo& /*table*/, const CString& /*name*/)
{
    AfxMessageBox(CMsgDll::pfuncLoadStr("IDS_DB_REFUSE_NO_RECORD", 0), 0, 0);
    return 0;
}
