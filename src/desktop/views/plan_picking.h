#pragma once

#include "desktop/views/plan_search.h"

#include <QString>

class CMouseEdit;

namespace zel {

class UserHand;

}  // namespace zel

namespace zel::desktop {

/// The pick field that clicks in the plan go to: the control with the focus of the active dialog, if it is one that can take keys; else null.
[[nodiscard]] CMouseEdit* activePickField();

/// Hands what is clicked in the plan to the active pick field. It holds nothing: what has been picked stands in the field.
///
/// A field for nodes collects the corners of an outline, by the keys of points; picking the first one again closes it. A field for objects takes
/// points, and of a line the points at both its ends. Each operation does nothing without a pick field and gives the sentence that says why a pick
/// was refused, empty if it was taken. After each the field may be gone.
class PlanPicking {
public:
    explicit PlanPicking(UserHand& hand) : m_hand(hand) {}

    [[nodiscard]] static bool isActive() { return activePickField() != nullptr; }
    /// Whether an outline is being drawn.
    [[nodiscard]] static bool drawsOutline();
    /// The keys in the field, in the order of picking.
    [[nodiscard]] static std::vector<Key> keys();
    /// What may be picked.
    [[nodiscard]] static PlanKinds kinds();
    /// What to do, for the person who picks.
    [[nodiscard]] static QString advice();

    QString pick(const PlanModel& model, const std::optional<PlanHit>& hit);
    /// Closes the outline, if it has three corners.
    QString close();
    /// Takes the last corner, or everything, out of the field again.
    QString removeLast();
    QString clear();

private:
    QString hand(const std::vector<Key>& keys, bool closed);
    QString show(const std::vector<Key>& keys);

    UserHand& m_hand;
};

}  // namespace zel::desktop
