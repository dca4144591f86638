#include "contract/user_interface.h"

#include "contract/format_text.h"
#include "contract/forms/loading_status.h"
#include "contract/model_view.h"

#include <cstdarg>
#include <utility>

namespace {

zel::IUserInterface*& installed()
{
    static zel::IUserInterface* current = nullptr;
    return current;
}

I_ZELModelBase*& activeView()
{
    static I_ZELModelBase* current = nullptr;
    return current;
}

std::vector<CString>& modules()
{
    static std::vector<CString> names;
    return names;
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

const std::vector<CString>& loadedModules()
{
    return modules();
}

}  // namespace zel

CLoadingStatus::CLoadingStatus(const char* moduleName)
{
    modules().emplace_back(moduleName);
}

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

I_ZELModelBase* I_ZELModelBase::GetCurMySelfST()
{
    return activeView();
}

void I_ZELModelBase::SetModelingModeST(int mode)
{
    if (activeView() == nullptr)
        return;
    activeView()->setModelingMode(mode);
    if (installed() != nullptr)
        installed()->modelingMode(mode);
}

I_ZELModelBase* I_ZELModelBase::setCurrent(I_ZELModelBase* view)
{
    return std::exchange(activeView(), view);
}
