#pragma once

#include "desktop/views/plan_model.h"

#include <cstddef>
#include <optional>

namespace zel::desktop {

/// An object of a plan: its kind and its place in the list of that kind.
struct PlanHit {
    PlanKind kind = PlanKind::point;
    std::size_t index = 0;

    bool operator==(const PlanHit&) const = default;
};

/// Which kinds of objects a search looks at.
struct PlanKinds {
    bool points = true;
    bool lines = true;
    bool areas = true;
};

/// The object at a place of the plan: the nearest point within `tolerance`, else the nearest line within it, else the smallest area around
/// the place. Objects that are not active are passed over.
std::optional<PlanHit> objectAt(const PlanModel& model, const QPointF& place, double tolerance, const PlanKinds& kinds = {});

/// The active objects that lie wholly inside a rectangle, or with `touched` also those that it cuts.
T_SELECTION objectsIn(const PlanModel& model, const QRectF& rectangle, bool touched);

}  // namespace zel::desktop
