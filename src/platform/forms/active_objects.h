#pragma once

#include "contract/table_store.h"
#include "contract/view_ctrl.h"

#include <optional>
#include <vector>

namespace zel {

/// Which points, lines and areas the model view treats as active, without a picture: the rule that every view keeps. Lists are ascending.
class ActiveObjects {
public:
    struct Keys {
        std::vector<Key> points;
        std::vector<Key> lines;
        std::vector<Key> areas;
        bool operator==(const Keys&) const = default;
    };

    /// The given objects and no others.
    void only(Keys keys);
    /// Mode 1 adds the given objects to the active ones, mode 2 takes them out. While all are active, all of the current model are meant.
    void common(int mode, Keys keys);
    void all() { m_keys.reset(); }

    /// None: all are active.
    [[nodiscard]] const std::optional<Keys>& keys() const { return m_keys; }
    /// The same with all kinds of objects.
    [[nodiscard]] std::optional<T_SELECTION> selection() const;

private:
    std::optional<Keys> m_keys;
};

}  // namespace zel
