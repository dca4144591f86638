#include "contract/user_interface.h"

#include "contract/format_text.h"

#include <cstdarg>
#include <utility>

namespace {

zel::IUserInterface*& installed()
{
    static zel::IUserInterface* current = nullptr;
    return current;
}

}  // namespace

namespace zel {

IUserInterface* userInterface()
{
    return installed();
}

IUserInterface* setUserInterface(IUserInterface* userInterface)
{
    return std::exchange(installed(), userInterface);
}

void postHostCommand(unsigned number)
{
    if (installed() != nullptr)
        installed()->postCommand(number);
}

void sendHostCommand(unsigned number)
{
    if (installed() != nullptr)
        installed()->sendCommand(number);
}

}  // namespace zel

int AfxMessageBox(const CString& text, unsigned type, unsigned /*help*/)
{
    if (installed() != nullptr)
        return installed()->messageBox(text, type);
    return type == MB_YESNO ? IDYES : 1;
}

void GMsgOutFormatNF(const char* format, ...)
{
    if (installed() == nullptr)
        return;
    std::va_list arguments;
    va_start(arguments, format);
    installed()->output(zel::formatTextList(format, arguments));
    va_end(arguments);
}

void GSaveHistoryFormatNF(const char* format, ...)
{
    if (installed() == nullptr)
        return;
    std::va_list arguments;
    va_start(arguments, format);
    installed()->history(zel::formatTextList(format, arguments));
    va_end(arguments);
}

void CPrefer::SetUpPrefer(int page)
{
    if (installed() != nullptr)
        installed()->showPreferences(page);
}
