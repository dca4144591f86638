#include "contract/forms/loading_status.h"

namespace {

std::vector<CString>& modules()
{
    static std::vector<CString> names;
    return names;
}

}  // namespace

CLoadingStatus::CLoadingStatus(const char* moduleName)
{
    modules().emplace_back(moduleName);
}

const std::vector<CString>& zel::loadedModules()
{
    return modules();
}
