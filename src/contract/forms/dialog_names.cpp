#include "contract/forms/dialog_names.h"

#include <map>
#include <typeindex>

namespace zel {

namespace {

// Function-local, because classes enter themselves while libraries load, in no particular order.
std::map<std::type_index, std::string_view>& names()
{
    static std::map<std::type_index, std::string_view> all;
    return all;
}

}  // namespace

bool enterDialogName(const std::type_info& dialogClass, std::string_view name)
{
    names().insert_or_assign(dialogClass, name);
    return true;
}

std::string_view dialogName(const std::type_info& dialogClass)
{
    const auto found = names().find(dialogClass);
    return found != names().end() ? found->second : std::string_view();
}

}  // namespace zel
