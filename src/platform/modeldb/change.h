#pragma once

#include "contract/records/unit_index.h"
#include "contract/table_store.h"
#include "contract/text.h"

#include <algorithm>
#include <map>
#include <optional>
#include <tuple>
#include <utility>
#include <vector>

namespace zel {

/// One record added (no `before`), deleted (no `after`) or replaced.
struct Step {
    Key oldKey = 0;
    Key newKey = 0;
    int kind = 0;
    RecordPtr before;
    RecordPtr after;
};

/// The steps of one call on one table. They hold together: within a batch names and keys may be exchanged.
struct Batch {
    Table table{};
    std::vector<Step> steps;
};

/// One user action: what is one transaction, one undo step and one notice.
struct ChangeRecord {
    CString name;  ///< for the Undo menu
    std::vector<Batch> batches;
    std::optional<std::pair<T_UNIT_INDEX, T_UNIT_INDEX>> units;  ///< from and to, where the unit system changes with it

    [[nodiscard]] bool empty() const { return batches.empty() && !units; }
};

/// The change that takes `batch` back.
inline Batch inverse(const Batch& batch)
{
    Batch result{batch.table, {}};
    result.steps.reserve(batch.steps.size());
    for (auto step = batch.steps.rbegin(); step != batch.steps.rend(); ++step)
        result.steps.push_back({step->newKey, step->oldKey, step->kind, step->after, step->before});
    return result;
}

inline ChangeRecord inverse(const ChangeRecord& change)
{
    ChangeRecord result{change.name, {}, {}};
    for (auto batch = change.batches.rbegin(); batch != change.batches.rend(); ++batch)
        result.batches.push_back(inverse(*batch));
    if (change.units)
        result.units.emplace(change.units->second, change.units->first);
    return result;
}

/// What a change of many batches comes to, for listeners: each record once, as it was before the first and is after the last of them.
inline ChangeRecord netOf(const ChangeRecord& change)
{
    using RecordPlace = std::tuple<Table, int, Key>;
    std::map<RecordPlace, std::size_t> known;
    std::vector<std::pair<RecordPlace, Step>> steps;  // in the order in which they were touched first
    const auto stepAt = [&](const RecordPlace& place, const RecordPtr& before) -> Step& {
        const auto [found, isNew] = known.emplace(place, steps.size());
        const auto& [table, kind, key] = place;
        if (isNew)
            steps.emplace_back(place, Step{key, key, kind, before, before});
        return steps[found->second].second;
    };
    for (const Batch& batch : change.batches) {
        for (const Step& step : batch.steps) {
            if (step.before)
                stepAt({batch.table, step.kind, step.oldKey}, step.before).after = nullptr;
        }
        for (const Step& step : batch.steps) {
            if (step.after)
                stepAt({batch.table, step.kind, step.newKey}, nullptr).after = step.after;
        }
    }
    ChangeRecord net{change.name, {}, {}};
    for (auto& [place, step] : steps) {
        if (step.before != step.after)
            net.batches.push_back({std::get<Table>(place), {std::move(step)}});
    }
    return net;
}

/// What a table hands a checked batch to: the document, which writes it, applies it and tells the listeners.
class ChangeSink {
public:
    ChangeSink() = default;
    ChangeSink(const ChangeSink&) = delete;
    ChangeSink& operator=(const ChangeSink&) = delete;
    virtual ~ChangeSink() = default;

    /// Returns 0 when the file refused it; nothing is changed then.
    virtual int make(const CString& name, Batch&& batch) = 0;

    /// The records of other tables that forbid deleting the given ones, in words; empty if none does.
    [[nodiscard]] virtual CString usersOf(Table table, const std::vector<Key>& keys) const = 0;
};

}  // namespace zel
