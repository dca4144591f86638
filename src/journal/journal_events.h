#pragma once

#include "contract/document.h"
#include "contract/forms/control.h"
#include "contract/forms/dialog.h"
#include "platform/modeldb/json_text.h"

#include <optional>

namespace zel {

/// What happens because of a command, as the replies of a transcript tell it.

Json openedEvent(const CDialog& dialog);
Json activatedEvent(const CDialog& dialog);
/// While the dialog's closing is told: the end code of a modal run, null for a modeless dialog.
Json closedEvent(const CDialog& dialog);
/// CMD_DoModal came back with a value.
Json returnedEvent(int value);
/// @param answer  "ok", "yes" or "no"
Json messageEvent(const CString& text, bool question, const CString& answer);
Json warningEvent(const Control& grid, const CString& text);
Json outputEvent(const CString& line);
Json historyEvent(const CString& line);
Json hostCommandEvent(unsigned number, bool posted);
Json fileEvent(const CString& filter, const std::optional<CString>& path);
Json processEvent(const CString& commandLine);
/// While the notice runs: the changes are read from the document's buffer.
Json noticeEvent(CDBDoc& document, long long hint);
Json modeEvent(int mode);
/// The preferences were asked for, at a page.
Json preferencesEvent(int page);

}  // namespace zel
