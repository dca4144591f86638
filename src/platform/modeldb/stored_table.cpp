#include "platform/modeldb/stored_table.h"

#include "contract/name_text.h"
#include "platform/modeldb/record_values.h"
#include "platform/modeldb/refusals.h"

#include <algorithm>
#include <limits>
#include <unordered_set>

namespace zel {

StoredTable::StoredTable(const TableInfo& info, ChangeSink& sink) : m_info(info), m_sink(sink), m_spaces(static_cast<std::size_t>(kindsOf(info).back()) + 1) {}

const StoredTable::Space* StoredTable::space(int kind) const
{
    const std::span<const int> kinds = kindsOf(m_info);
    return kind >= kinds.front() && kind <= kinds.back() ? &m_spaces[static_cast<std::size_t>(kind)] : nullptr;
}

int StoredTable::count(int kind) const
{
    const Space* found = space(kind);
    return found != nullptr ? static_cast<int>(found->records.size()) : 0;
}

std::vector<Key> StoredTable::keys(int kind) const
{
    const Space* found = space(kind);
    if (found == nullptr)
        return {};
    if (sequenced())
        return found->order;
    std::vector<Key> result;
    result.reserve(found->records.size());
    for (const auto& [key, record] : found->records)
        result.push_back(key);
    return result;
}

RecordPtr StoredTable::find(int kind, Key key) const
{
    const Space* within = space(kind);
    if (within == nullptr)
        return nullptr;
    const auto found = within->records.find(key);
    return found != within->records.end() ? found->second : nullptr;
}

Key StoredTable::keyByName(int kind, const CString& name) const
{
    const Space* within = space(kind);
    if (within == nullptr || !named())
        return 0;
    const auto found = within->names.find(foldedName(name));  // names are unique without regard to case
    return found != within->names.end() ? found->second : 0;
}

Key StoredTable::largestKey(int kind) const
{
    const Space* found = space(kind);
    return found == nullptr || found->records.empty() ? 0 : found->records.rbegin()->first;
}

Key StoredTable::freeKeyAbove(int kind, Key key) const
{
    const Space* within = space(kind);
    if (within == nullptr)
        return 0;
    Key candidate = key + 1;
    if (candidate == 0)  // every key up to the last one lies below: the first gap from the start
        candidate = 1;
    for (auto next = within->records.lower_bound(candidate); next != within->records.end() && next->first == candidate; ++next)
        ++candidate;
    return candidate;
}

Key StoredTable::nextInSequence(int kind, Key key) const
{
    const Space* within = space(kind);
    if (within == nullptr || within->records.empty())
        return 0;
    if (sequenced()) {
        if (key == 0)
            return within->order.front();
        const auto found = within->records.find(key);
        if (found == within->records.end())
            return 0;
        const auto place = static_cast<std::size_t>(recordPlace(m_info, found->second.get()));
        return place < within->order.size() ? within->order[place] : 0;
    }
    const auto next = within->records.upper_bound(key);
    return next != within->records.end() ? next->first : 0;
}

int StoredTable::add(int kind, const std::vector<Key>& keys, std::vector<RecordPtr> records, bool replace)
{
    const Space* within = space(kind);
    if (within == nullptr)
        return refuse(Refusal::badKind, {}, kind);
    if (keys.empty() || keys.size() != records.size())
        return 0;

    Batch batch{m_info.table, {}};
    batch.steps.reserve(records.size());
    Key newKey = largestKey(kind);
    auto place = static_cast<std::int32_t>(within->order.size());
    std::unordered_set<Key> given;
    for (const Key key : keys) {
        if (key != 0 && !given.insert(key).second)
            return refuse(Refusal::keyExists, {}, static_cast<int>(key));
        newKey = std::max(newKey, key);
    }
    for (std::size_t i = 0; i < records.size(); ++i) {
        Key key = keys[i];
        if (key == 0) {
            newKey = newKey < std::numeric_limits<Key>::max() ? newKey + 1 : freeKeyAbove(kind, 0);
            key = newKey;
        }
        const RecordPtr before = find(kind, key);
        if (before && !replace)
            return refuse(Refusal::keyExists, {}, static_cast<int>(key));
        const std::int32_t itsPlace = before ? recordPlace(m_info, before.get()) : ++place;
        batch.steps.push_back({before ? key : 0, key, kind, before, withKeptFields(m_info, std::move(records[i]), kind, key, itsPlace)});
    }
    if (!acceptable(kind, batch.steps))
        return 0;
    const CString name = describeChange("Add", batch.steps);
    return m_sink.make(name, std::move(batch));
}

int StoredTable::modify(int kind, const std::vector<Key>& oldKeys, const std::vector<Key>& newKeys, std::vector<RecordPtr> records)
{
    const Space* within = space(kind);
    if (within == nullptr)
        return refuse(Refusal::badKind, {}, kind);
    if (oldKeys.empty() || oldKeys.size() != newKeys.size() || oldKeys.size() != records.size())
        return 0;

    Batch batch{m_info.table, {}};
    batch.steps.reserve(records.size());
    const std::unordered_set<Key> leaving(oldKeys.begin(), oldKeys.end());
    if (leaving.size() != oldKeys.size())
        return refuse(Refusal::noRecord);
    std::unordered_set<Key> taken;
    std::vector<Key> moved;
    for (std::size_t i = 0; i < records.size(); ++i) {
        const Key key = newKeys[i] != 0 ? newKeys[i] : oldKeys[i];
        const RecordPtr before = find(kind, oldKeys[i]);
        if (!before)
            return refuse(Refusal::noRecord);
        if (!taken.insert(key).second || (key != oldKeys[i] && !leaving.contains(key) && find(kind, key)))
            return refuse(Refusal::keyExists, {}, static_cast<int>(key));
        if (key != oldKeys[i])
            moved.push_back(oldKeys[i]);
        batch.steps.push_back({oldKeys[i], key, kind, before, withKeptFields(m_info, std::move(records[i]), kind, key, recordPlace(m_info, before.get()))});
    }
    if (!moved.empty()) {  // whoever refers to the old key would refer to nothing
        const CString users = m_sink.usersOf(m_info.table, moved);
        if (!users.empty())
            return refuse(Refusal::inUse, users);
    }
    if (!acceptable(kind, batch.steps))
        return 0;
    const CString name = describeChange("Modify", batch.steps);
    return m_sink.make(name, std::move(batch));
}

int StoredTable::remove(int kind, const std::vector<Key>& keys)
{
    const Space* within = space(kind);
    if (within == nullptr)
        return refuse(Refusal::badKind, {}, kind);
    if (keys.empty())
        return 0;

    Batch batch{m_info.table, {}};
    std::unordered_set<Key> leaving;
    for (const Key key : keys) {
        if (!leaving.insert(key).second)
            continue;
        const RecordPtr before = find(kind, key);
        if (!before)
            return refuse(Refusal::noRecord);
        batch.steps.push_back({key, 0, kind, before, nullptr});
    }
    const CString users = m_sink.usersOf(m_info.table, keys);
    if (!users.empty())
        return refuse(Refusal::inUse, users);

    const CString name = describeChange("Delete", batch.steps);
    if (sequenced()) {
        std::int32_t first = std::numeric_limits<std::int32_t>::max();  // those before it keep their places
        for (const Step& step : batch.steps)
            first = std::min(first, recordPlace(m_info, step.before.get()));
        std::vector<Key> order;
        for (auto key = within->order.begin() + (first - 1); key != within->order.end(); ++key) {
            if (!leaving.contains(*key))
                order.push_back(*key);
        }
        appendRenumbering(kind, *within, order, first, batch.steps);
    }
    return m_sink.make(name, std::move(batch));
}

int StoredTable::changeSequence(int kind, const std::vector<Key>& keys, Key afterKey)
{
    const Space* within = space(kind);
    if (within == nullptr)
        return refuse(Refusal::badKind, {}, kind);
    if (keys.empty() || !sequenced())
        return 0;

    const std::unordered_set<Key> moving(keys.begin(), keys.end());
    for (const Key key : keys) {
        if (!find(kind, key))
            return refuse(Refusal::noRecord);
    }
    if (moving.size() != keys.size() || moving.contains(afterKey) || (afterKey != 0 && !find(kind, afterKey)))
        return refuse(Refusal::noRecord);

    std::vector<Key> order;
    order.reserve(within->order.size());
    if (afterKey == 0)
        order = keys;
    for (const Key key : within->order) {
        if (!moving.contains(key))
            order.push_back(key);
        if (key == afterKey)
            order.insert(order.end(), keys.begin(), keys.end());
    }
    Batch batch{m_info.table, {}};
    appendRenumbering(kind, *within, order, 1, batch.steps);
    CString name = "Change the order of ";
    name += CString(m_info.noun) + "s";
    return m_sink.make(name, std::move(batch));
}

void StoredTable::appendRenumbering(int kind, const Space& space, const std::vector<Key>& order, std::int32_t place, std::vector<Step>& steps) const
{
    for (const Key key : order) {
        const RecordPtr& record = space.records.at(key);
        RecordPtr renumbered = withKeptFields(m_info, record, kind, key, place++);
        if (renumbered != record)
            steps.push_back({key, key, kind, record, std::move(renumbered)});
    }
}

bool StoredTable::acceptable(int kind, const std::vector<Step>& steps) const
{
    for (const Step& step : steps) {
        const std::string_view field = notFiniteField(m_info, step.after.get());
        if (!field.empty())
            return refuse(Refusal::notFinite, CString(field)) != 0;
        if (named() && !acceptableName(recordName(m_info, step.after.get())))
            return false;
    }
    return !named() || namesStayUnique(*space(kind), steps);
}

bool StoredTable::acceptableName(const CString& name) const
{
    switch (nameFault(m_info, name)) {
    case NameFault::notFilled:
        return refuse(Refusal::emptyName) != 0;
    case NameFault::tooLong:
        return refuse(Refusal::nameTooLong, {}, static_cast<int>(longestName)) != 0;
    case NameFault::none:
        break;
    }
    return true;
}

bool StoredTable::namesStayUnique(const Space& space, const std::vector<Step>& steps) const
{
    std::unordered_set<Key> replaced;
    for (const Step& step : steps) {
        if (step.before)
            replaced.insert(step.oldKey);
    }
    std::unordered_set<CString> taken;
    taken.reserve(steps.size());
    for (const Step& step : steps) {
        const CString& name = recordName(m_info, step.after.get());
        if (name.empty())  // where a table takes it, any number of records may have no name
            continue;
        const CString folded = foldedName(name);
        const auto holder = space.names.find(folded);
        const bool held = holder != space.names.end() && !replaced.contains(holder->second);
        if (held || (steps.size() > 1 && !taken.insert(folded).second))
            return refuse(Refusal::duplicateName, name) != 0;
    }
    return true;
}

CString StoredTable::describeChange(const char* verb, const std::vector<Step>& steps) const
{
    CString text = verb;
    if (steps.size() > 1)
        return text + " " + std::to_string(steps.size()) + " " + CString(m_info.noun) + "s";
    text += " " + CString(m_info.noun);
    const Step& step = steps.front();
    const CString& name = recordName(m_info, (step.before ? step.before : step.after).get());
    if (!name.empty())
        text += " \"" + name + "\"";
    else if (m_info.shape != TableShape::single)
        text += " " + std::to_string(step.before ? step.oldKey : step.newKey);
    return text;
}

void StoredTable::apply(const Batch& batch)
{
    if (named() && !batch.steps.empty()) {
        Space& space = m_spaces[static_cast<std::size_t>(batch.steps.front().kind)];
        space.names.reserve(space.names.size() + batch.steps.size());
    }
    for (const Step& step : batch.steps)
        applyStep(m_spaces[static_cast<std::size_t>(step.kind)], step);
    for (Space& space : m_spaces) {
        if (space.orderStale)
            rebuildOrder(space);
    }
}

void StoredTable::applyStep(Space& space, const Step& step)
{
    // A key or a name that another step of the batch has taken over already stays with its new owner.
    if (step.before) {
        const auto found = space.records.find(step.oldKey);
        const bool own = found != space.records.end() && found->second == step.before;
        if (own && step.after && step.newKey == step.oldKey)
            found->second = step.after;
        else if (own)
            space.records.erase(found);
        if (named()) {
            const auto name = space.names.find(foldedName(recordName(m_info, step.before.get())));
            if (name != space.names.end() && name->second == step.oldKey)
                space.names.erase(name);
        }
        if (sequenced() && !step.after) {
            if (!space.order.empty() && space.order.back() == step.oldKey)
                space.order.pop_back();
            else
                space.orderStale = true;
        }
    }
    if (step.after)
        insert(space, step.newKey, step.after);
    if (sequenced() && step.before && step.after) {
        const auto place = recordPlace(m_info, step.after.get());
        space.orderStale = space.orderStale || step.oldKey != step.newKey || place != recordPlace(m_info, step.before.get());
    } else if (sequenced() && step.after) {
        if (static_cast<std::size_t>(recordPlace(m_info, step.after.get())) == space.order.size() + 1)
            space.order.push_back(step.newKey);
        else
            space.orderStale = true;
    }
}

void StoredTable::insert(Space& space, Key key, const RecordPtr& record)
{
    const auto hint = !space.records.empty() && space.records.rbegin()->first < key ? space.records.end() : space.records.lower_bound(key);
    space.records.insert_or_assign(hint, key, record);
    if (named() && !recordName(m_info, record.get()).empty())
        space.names[foldedName(recordName(m_info, record.get()))] = key;
}

void StoredTable::rebuildOrder(Space& space) const
{
    // Every change leaves the places 1 to n without gaps.
    space.order.assign(space.records.size(), 0);
    for (const auto& [key, record] : space.records)
        space.order.at(static_cast<std::size_t>(recordPlace(m_info, record.get())) - 1) = key;
    space.orderStale = false;
}

}  // namespace zel
