#include "desktop/views/plan_picking.h"

#include "contract/forms/dialog.h"
#include "contract/forms/mouse_edit.h"
#include "contract/forms/open_dialogs.h"
#include "contract/model_view.h"
#include "desktop/forms/text.h"
#include "journal/user_hand.h"

#include <string>

namespace zel::desktop {

namespace {

constexpr int nodesInOrder = 37;    // pick mode of a field
constexpr int drawingOutline = 26;  // modelling mode of the view
constexpr std::size_t leastCorners = 3;

}  // namespace

CMouseEdit* activePickField()
{
    const CDialog* dialog = activeDialog();
    auto* field = dialog != nullptr ? dynamic_cast<CMouseEdit*>(dialog->GetFocus()) : nullptr;
    return field != nullptr && field->IsWindowEnabled() && field->IsWindowVisible() ? field : nullptr;
}

bool PlanPicking::drawsOutline()
{
    const CMouseEdit* field = activePickField();
    const I_ZELModelBase* view = I_ZELModelBase::GetCurMySelfST();
    return field != nullptr && field->takesNodes() && (field->modeToUse() == nodesInOrder || (view != nullptr && view->modelingMode() == drawingOutline));
}

std::vector<Key> PlanPicking::keys()
{
    std::vector<Key> keys;
    if (const CMouseEdit* field = activePickField())
        field->GetObjectKList(keys);
    return keys;
}

PlanKinds PlanPicking::kinds()
{
    const CMouseEdit* field = activePickField();
    return {.points = true, .lines = field == nullptr || !field->takesNodes(), .areas = field == nullptr};
}

QString PlanPicking::advice()
{
    CMouseEdit* field = activePickField();
    if (field == nullptr)
        return {};
    const QString form = toQt(field->dialog().root().GetWindowText());
    if (!drawsOutline())
        return form + QStringLiteral(": click the points, or a line for both its ends");
    if (keys().size() < leastCorners)
        return form + QStringLiteral(": click the corner points of the outline one after the other");
    return form + QStringLiteral(": click the first point again, double-click or press Enter to close the outline; Backspace takes the last point back");
}

QString PlanPicking::hand(const std::vector<Key>& keys, bool closed)
{
    CMouseEdit* field = activePickField();
    return field != nullptr ? toQt(m_hand.act(*field, {.verb = Verb::pick, .keys = keys, .closed = closed}).refusal) : QString();
}

QString PlanPicking::show(const std::vector<Key>& keys)
{
    CMouseEdit* field = activePickField();
    if (field == nullptr)
        return {};
    CString text;
    for (const Key key : keys) {
        if (!text.empty())
            text += ',';
        text += std::to_string(key);
    }
    return toQt(m_hand.type(*field, text).refusal);
}

QString PlanPicking::pick(const PlanModel& model, const std::optional<PlanHit>& hit)
{
    if (!hit || hit->kind == PlanKind::area)
        return QStringLiteral("There is no point here.");
    if (hit->kind == PlanKind::line) {
        const PlanLine& line = model.lines()[hit->index];
        return hand({line.fromPoint, line.toPoint}, false);
    }
    const Key key = model.points()[hit->index].key;
    const std::vector<Key> corners = keys();
    const bool first = drawsOutline() && corners.size() >= leastCorners && key == corners.front();
    return hand({key}, first);
}

QString PlanPicking::close()
{
    const std::vector<Key> corners = keys();
    if (!drawsOutline())
        return {};
    if (corners.size() < leastCorners)
        return QStringLiteral("An outline needs three points.");
    return hand({corners.front()}, true);
}

QString PlanPicking::removeLast()
{
    std::vector<Key> rest = keys();
    if (rest.empty())
        return {};
    rest.pop_back();
    return show(rest);
}

QString PlanPicking::clear()
{
    return keys().empty() ? QString() : show({});
}

}  // namespace zel::desktop
