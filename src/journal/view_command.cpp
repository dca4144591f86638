#include "journal/view_command.h"

#include "contract/model_view.h"
#include "contract/view_ctrl.h"
#include "journal/model_commands.h"

#include <optional>

namespace zel {

Json viewToJson(CDBDoc& document, const HostCommands& host)
{
    constexpr int noMode = -1;
    const I_ZELModelBase* view = I_ZELModelBase::GetCurMySelfST();
    const std::optional<T_SELECTION> active = view != nullptr ? view->activeObjects() : std::nullopt;
    return {{"selected", selectionToJson(document.GetViewCtrl()->selection())},
            {"active", active ? selectionToJson(*active) : Json()},
            {"objectsOnly", view != nullptr && view->showsActiveOnly()},
            {"mode", view != nullptr ? view->modelingMode() : noMode},
            {"post", host.isPost()}};
}

}  // namespace zel
