#include "cli/console.h"

#include "contract/forms/dialog.h"

namespace zel::cli {

std::string Console::messages() const
{
    std::string all;
    for (const CString& message : m_messages)
        all += (all.empty() ? "" : " ") + message;
    return all;
}

int Console::messageBox(const CString& text, unsigned type)
{
    m_messages.push_back(text);
    return type == MB_YESNO ? IDYES : IDOK;
}

void Console::runModal(CDialog& dialog) { dialog.EndDialog(IDCANCEL); }

}  // namespace zel::cli
