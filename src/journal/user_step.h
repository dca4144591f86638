#pragma once

#include "contract/forms/control.h"
#include "contract/forms/grid_places.h"
#include "contract/forms/picked_objects.h"
#include "contract/table_store.h"
#include "journal/verbs.h"

#include <optional>
#include <vector>

namespace zel {

/// What a user does to a control, as data: `{.verb = Verb::tick, .row = 2, .on = true}`. A verb reads the members that its row in the table of
/// verbs names; the others are left alone.
struct UserStep {
    Verb verb;
    UserValue value{};  ///< what is entered or chosen
    std::vector<int> rows{};
    UserRow row = 0;  ///< of a list or a grid; in a grid also CTBGrid::append
    UserColumn column = 0;
    UserRow to = 0;  ///< row before which rows are dropped
    CString text{};
    bool on = false;
    int delta = 0;  ///< +1 for a click up, -1 for a click down
    UserKey key = UserKey::enter;
    std::vector<Key> keys{};                 ///< that were picked
    std::optional<PickedObjects> objects{};  ///< that were picked, by kind; in place of `keys`
    bool closed = false;                     ///< the picked outline is closed

    bool operator==(const UserStep&) const = default;
};

}  // namespace zel
