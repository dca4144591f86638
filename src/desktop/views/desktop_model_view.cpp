#include "desktop/views/desktop_model_view.h"

#include "contract/document.h"
#include "contract/view_ctrl.h"

namespace zel::desktop {

void DesktopModelView::changed() const
{
    if (m_onChange)
        m_onChange();
}

void DesktopModelView::reset()
{
    m_active.all();
    m_objectsOnly = false;
    m_closed = false;
    m_mode = -1;
    changed();
}

void DesktopModelView::GetSelectedLines(std::vector<Key>& keys) const
{
    keys.clear();
    if (CDBDoc* document = CDBDoc::GetDocPoint())
        document->GetViewCtrl()->GetAllSelectedLine(keys);
}

void DesktopModelView::ActivateOnly(const std::vector<Key>& points, const std::vector<Key>& lines, const std::vector<Key>& areas, bool objectsOnly)
{
    m_active.only({points, lines, areas});
    m_objectsOnly = objectsOnly;
    changed();
}

void DesktopModelView::ActivateCommon(int mode, const std::vector<Key>& points, const std::vector<Key>& lines, const std::vector<Key>& areas, bool objectsOnly)
{
    m_active.common(mode, {points, lines, areas});
    m_objectsOnly = objectsOnly;
    changed();
}

void DesktopModelView::ActivateAll()
{
    m_active.all();
    changed();
}

void DesktopModelView::setPickClosed(bool closed)
{
    m_closed = closed;
    changed();
}

void DesktopModelView::setModelingMode(int mode)
{
    m_mode = mode;
    changed();
}

}  // namespace zel::desktop
