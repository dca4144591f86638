#include "contract/forms/window_list.h"

#include "contract/document.h"
#include "contract/forms/dialog.h"

#include <vector>

namespace zel {

WindowList& WindowList::instance()
{
    static auto* list = new WindowList;  // never destroyed: dialogs may close as late as in destructors of statics
    return *list;
}

void WindowList::toFront(CDialog& dialog)
{
    std::erase(m_open, &dialog);
    m_open.insert(m_open.begin(), &dialog);
}

void WindowList::remove(const CDialog& dialog)
{
    std::erase(m_open, &dialog);
    std::erase(m_closed, &dialog);
}

void WindowList::deleteLater(CDialog& dialog)
{
    m_closed.push_back(&dialog);
    // It must not hear of changes any more, although it lives on for a while.
    if (CDBDoc* document = CDBDoc::GetDocPoint()) {
        if (auto* listener = dynamic_cast<CDBUpdateConnector*>(&dialog))
            document->leave(*listener);
    }
}

void WindowList::deleteClosed()
{
    while (m_actions == 0 && !m_closed.empty()) {
        const CDialog* dialog = m_closed.back();
        m_closed.pop_back();
        delete dialog;
    }
}

void WindowList::actionEnds()
{
    --m_actions;
    deleteClosed();
}

}  // namespace zel
