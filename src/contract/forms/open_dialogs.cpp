#include "contract/forms/open_dialogs.h"

#include "contract/forms/dialog.h"
#include "contract/forms/window_list.h"

#include <algorithm>

namespace zel {

const std::vector<CDialog*>& openDialogs()
{
    return WindowList::instance().open();
}

CDialog* activeDialog()
{
    const std::vector<CDialog*>& open = openDialogs();
    const auto modal = std::find_if(open.begin(), open.end(), [](const CDialog* dialog) { return dialog->isModal(); });
    if (modal != open.end())
        return *modal;
    return open.empty() ? nullptr : open.front();
}

bool userActionUnderWay()
{
    return WindowList::instance().actionUnderWay();
}

void deleteClosedDialogs()
{
    WindowList::instance().deleteClosed();
}

}  // namespace zel
