#include "contract/model_view.h"

#include "contract/user_interface.h"

#include <utility>

namespace {

I_ZELModelBase*& activeView()
{
    static I_ZELModelBase* current = nullptr;
    return current;
}

}  // namespace

I_ZELModelBase* I_ZELModelBase::GetCurMySelfST()
{
    return activeView();
}

void I_ZELModelBase::SetModelingModeST(int mode)
{
    if (activeView() == nullptr)
        return;
    activeView()->setModelingMode(mode);
    if (zel::IUserInterface* host = zel::userInterface())
        host->modelingMode(mode);
}

I_ZELModelBase* I_ZELModelBase::setCurrent(I_ZELModelBase* view)
{
    return std::exchange(activeView(), view);
}
