#include "desktop/forms/control_view.h"

#include "desktop/forms/choice_views.h"
#include "desktop/forms/drawing_views.h"
#include "desktop/forms/field_views.h"
#include "desktop/forms/grid_view.h"
#include "desktop/forms/list_views.h"

namespace zel::desktop {

void ControlView::show()
{
    if (!isAttached())
        return;
    const Refreshing guard(m_context);
    refresh();
}

void ControlView::take(const Taken& taken)
{
    if (!taken)
        show();
}

std::unique_ptr<ControlView> makeControlView(Control& control, FormContext& context, QWidget& parent)
{
    switch (control.kind()) {
    case Kind::edit:
    case Kind::number:
    case Kind::pick:
        return std::make_unique<EditView>(dynamic_cast<CEdit&>(control), context, parent);
    case Kind::label:
    case Kind::unit:
        if (auto* label = dynamic_cast<CStatic*>(&control))
            return std::make_unique<StaticView>(*label, context, parent);
        return nullptr;
    case Kind::check:
        return std::make_unique<CheckView>(dynamic_cast<CCheckBox&>(control), context, parent);
    case Kind::radio:
        return std::make_unique<RadioView>(dynamic_cast<CRadioButton&>(control), context, parent);
    case Kind::button:
        return std::make_unique<ButtonView>(dynamic_cast<CButton&>(control), context, parent);
    case Kind::spin:
        return std::make_unique<SpinView>(dynamic_cast<CSpinButtonCtrl&>(control), context, parent);
    case Kind::combo:
        return std::make_unique<ComboView>(dynamic_cast<CComboBox&>(control), context, parent);
    case Kind::tabs:
        return std::make_unique<TabsView>(dynamic_cast<CDlgTabCtrl&>(control), context, parent);
    case Kind::list:
    case Kind::checklist:
        return std::make_unique<ListBoxView>(dynamic_cast<CListBox&>(control), context, parent);
    case Kind::report:
        return std::make_unique<ReportView>(dynamic_cast<CListCtrl&>(control), context, parent);
    case Kind::grid:
        return std::make_unique<GridView>(dynamic_cast<CTBBrowserWnd&>(control), context, parent);
    case Kind::graph:
        return std::make_unique<GraphView>(dynamic_cast<SREGraphView&>(control), context, parent);
    case Kind::picture:
        return std::make_unique<PictureView>(dynamic_cast<CPicture&>(control), context, parent);
    }
    return nullptr;
}

}  // namespace zel::desktop
