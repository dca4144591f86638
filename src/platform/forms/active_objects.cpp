#include "platform/forms/active_objects.h"

#include "contract/document.h"
#include "contract/table.h"

#include <algorithm>
#include <iterator>
#include <utility>

namespace zel {

namespace {

void sortOnce(std::vector<Key>& keys)
{
    std::sort(keys.begin(), keys.end());
    keys.erase(std::unique(keys.begin(), keys.end()), keys.end());
}

void sortOnce(ActiveObjects::Keys& keys)
{
    sortOnce(keys.points);
    sortOnce(keys.lines);
    sortOnce(keys.areas);
}

std::vector<Key> combined(int mode, const std::vector<Key>& active, const std::vector<Key>& keys)
{
    constexpr int adding = 1;
    std::vector<Key> result;
    if (mode == adding)
        std::set_union(active.begin(), active.end(), keys.begin(), keys.end(), std::back_inserter(result));
    else
        std::set_difference(active.begin(), active.end(), keys.begin(), keys.end(), std::back_inserter(result));
    return result;
}

ActiveObjects::Keys allOfModel()
{
    CDBDoc* document = CDBDoc::GetDocPoint();
    if (document == nullptr)
        return {};
    return {document->table(Table::PONT).keys(0), document->table(Table::LINE).keys(0), document->table(Table::AREA).keys(0)};
}

}  // namespace

std::optional<T_SELECTION> ActiveObjects::selection() const
{
    if (!m_keys)
        return std::nullopt;
    T_SELECTION selection;
    selection.points = m_keys->points;
    selection.lines = m_keys->lines;
    selection.areas = m_keys->areas;
    return selection;
}

void ActiveObjects::only(Keys keys)
{
    sortOnce(keys);
    m_keys = std::move(keys);
}

void ActiveObjects::common(int mode, Keys keys)
{
    const Keys active = m_keys ? *m_keys : allOfModel();
    sortOnce(keys);
    m_keys = Keys{combined(mode, active.points, keys.points), combined(mode, active.lines, keys.lines), combined(mode, active.areas, keys.areas)};
}

}  // namespace zel
