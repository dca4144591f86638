#include "contract/forms/control.h"

#include "contract/format_text.h"
#include "contract/forms/dialog.h"
#include "contract/forms/find_control.h"
#include "contract/forms/window_list.h"

#include <algorithm>

CGroup::CGroup(CDialog& dialog, CString caption) : CWnd(std::move(caption)), m_dialog(&dialog)
{
    dialog.enter(*this);
}

bool CGroup::IsWindow() const
{
    return m_dialog->IsWindow();
}

void CGroup::changed()
{
    m_dialog->formChanged();
}

namespace zel {

namespace {

/// How the container of a dialog shows it: its title there, and whether it is the one that is seen.
Control::Nested entryOf(const CDialog& inside)
{
    for (const Control::Nested& entry : inside.container()->nested()) {
        if (entry.dialog == &inside)
            return entry;
    }
    return {nullptr, {}, false};
}

}  // namespace

const char* kindName(Kind kind)
{
    // clang-format off
    switch (kind) {
    case Kind::edit: return "edit";
    case Kind::number: return "number";
    case Kind::pick: return "pick";
    case Kind::label: return "label";
    case Kind::unit: return "unit";
    case Kind::check: return "check";
    case Kind::radio: return "radio";
    case Kind::combo: return "combo";
    case Kind::list: return "list";
    case Kind::checklist: return "checklist";
    case Kind::report: return "report";
    case Kind::grid: return "grid";
    case Kind::spin: return "spin";
    case Kind::tabs: return "tabs";
    case Kind::button: return "button";
    case Kind::graph: return "graph";
    case Kind::picture: return "picture";
    }
    // clang-format on
    return "";
}

UserAction::UserAction()
{
    WindowList::instance().actionBegins();
}

UserAction::~UserAction()
{
    WindowList::instance().actionEnds();
}

Control::Control(const Place& place, std::string_view id, CString label, const Field& field)
    : m_place(place), m_id(id), m_label(std::move(label)), m_field(field)
{
    dialog().enter(*this);
}

CString Control::fieldText(const void* record) const
{
    switch (field().type()) {
    case FieldType::real:
        return formatText("%g", field().real(record));
    case FieldType::text:
        return field().text(record);
    default:
        return std::to_string(field().integer(record));
    }
}

Control::~Control()
{
    dialog().leave(*this);
}

void Control::SetLabel(const CString& label)
{
    m_label = label;
    changed();
}

CString Control::page() const
{
    for (const CDialog* form = &dialog(); form->container() != nullptr; form = &form->container()->dialog()) {
        const CString title = entryOf(*form).title;
        if (!title.empty())
            return title;
    }
    return {};
}

CString Control::name() const
{
    const CString byLabel = normalisedLabel(label());
    return byLabel.empty() ? m_id : byLabel;
}

bool Control::IsWindow() const
{
    return dialog().IsWindow();
}

bool Control::IsWindowEnabled() const
{
    if (!CWnd::IsWindowEnabled() || (m_enabledWhen && !m_enabledWhen()) || (group() != nullptr && !group()->IsWindowEnabled()))
        return false;
    const Control* around = dialog().container();
    return dialog().IsWindowEnabled() && (around == nullptr || around->IsWindowEnabled());
}

bool Control::IsWindowVisible() const
{
    if (!CWnd::IsWindowVisible() || (m_visibleWhen && !m_visibleWhen()) || (group() != nullptr && !group()->IsWindowVisible()))
        return false;
    const Control* around = dialog().container();
    return dialog().IsWindowVisible() && (around == nullptr || (entryOf(dialog()).shown && around->IsWindowVisible()));
}

void Control::SetFocus()
{
    dialog().root().focusOn(this);
}

bool Control::HasFocus() const
{
    return dialog().GetFocus() == this;
}

void Control::changed()
{
    dialog().controlChanged(*this);
}

Taken Control::set(const UserValue& /*value*/)
{
    return cannot("takes no value");
}

Taken Control::press()
{
    return cannot("can't be pressed");
}

Taken Control::select(const std::vector<int>& /*rows*/)
{
    return cannot("has no rows to select");
}

Taken Control::doubleClick(int /*row*/)
{
    return cannot("has no rows to double-click");
}

Taken Control::tick(int /*row*/, bool /*on*/)
{
    return cannot("has no lines to tick");
}

Taken Control::spin(int /*delta*/)
{
    return cannot("is no spin button");
}

Taken Control::choose(const UserValue& /*value*/)
{
    return cannot("has no entries to choose from");
}

Taken Control::pick(const std::vector<unsigned>& /*keys*/, bool /*closed*/)
{
    return cannot("takes no picked objects");
}

Taken Control::key(UserKey key)
{
    const UserAction action;
    const Taken focused = focus();
    return focused ? dialog().root().userKey(key) : focused;
}

Taken Control::focus()
{
    if (Taken reached = reach(); !reached)
        return reached;
    if (HasFocus())
        return {};
    const UserAction action;
    if (Control* former = dialog().GetFocus())
        (void)former->leave();
    if (Taken reached = reach(); !reached)  // leaving the other field may have closed or disabled this one
        return reached;
    SetFocus();
    gotFocus();
    return {};
}

Taken Control::leave()
{
    if (HasFocus()) {
        const UserAction action;
        dialog().root().focusOn(nullptr);
        lostFocus();
    }
    return {};
}

Taken Control::reach() const
{
    if (Taken reached = dialog().reach(); !reached)
        return reached;
    if (!IsWindow() || !IsWindowVisible())
        return refuse("is hidden");
    if (!IsWindowEnabled())
        return refuse("is disabled");
    return {};
}

Taken Control::refuse(const CString& reason) const
{
    return {"\"" + name() + "\" " + reason};
}

Taken Control::cannot(const char* what) const
{
    return {"\"" + name() + "\" " + what + ": its kind is " + kindName(kind())};
}

}  // namespace zel
