#pragma once

#include "contract/forms/control.h"
#include "contract/table_store.h"

#include <vector>

namespace zel {

/// Objects that were picked in the model view, by kind.
struct PickedObjects {
    std::vector<Key> points{};
    std::vector<Key> lines{};
    std::vector<Key> areas{};

    bool operator==(const PickedObjects&) const = default;
    [[nodiscard]] bool empty() const { return points.empty() && lines.empty() && areas.empty(); }
};

/// A field that takes objects of several kinds. Any other pick field takes one: nodes, or the keys of points.
class ITakesObjects {
public:
    ITakesObjects() = default;
    ITakesObjects(const ITakesObjects&) = delete;
    ITakesObjects& operator=(const ITakesObjects&) = delete;
    virtual ~ITakesObjects() = default;

    /// The user's channel.
    virtual Taken pickObjects(const PickedObjects& objects, bool closed) = 0;
};

/// Hands picked objects to a pick field. Refused as a whole where it does not take one of their kinds.
Taken pickObjects(Control& control, const PickedObjects& objects, bool closed);

}  // namespace zel
