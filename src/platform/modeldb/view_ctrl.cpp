#include "platform/modeldb/view_ctrl.h"

#include "contract/table.h"

#include <algorithm>
#include <utility>

namespace zel {

const std::vector<Key>& ViewCtrl::of(const T_SELECTION& keys, std::size_t kind)
{
    switch (kind) {
    case points:
        return keys.points;
    case lines:
        return keys.lines;
    case areas:
        return keys.areas;
    case nodes:
        return keys.nodes;
    default:
        return keys.elements;
    }
}

Table ViewCtrl::tableOf(std::size_t kind)
{
    constexpr std::array<Table, kindCount> tables{Table::PONT, Table::LINE, Table::AREA, Table::NODE, Table::ELEM};
    return tables.at(kind);
}

std::vector<Key> ViewCtrl::listed(std::size_t kind) const
{
    return {m_selected.at(kind).begin(), m_selected.at(kind).end()};
}

std::vector<Key> ViewCtrl::others(std::size_t kind) const
{
    std::vector<Key> keys = m_document.table(tableOf(kind)).keys(0);
    std::erase_if(keys, [&](Key key) { return m_selected.at(kind).contains(key); });
    return keys;
}

void ViewCtrl::select(const T_SELECTION& keys, bool replace)
{
    Selection selection = replace ? Selection{} : m_selected;
    for (std::size_t kind = 0; kind < kindCount; ++kind) {
        for (const Key key : of(keys, kind)) {
            if (m_document.table(tableOf(kind)).find(0, key))
                selection.at(kind).insert(key);
        }
    }
    take(std::move(selection));
}

void ViewCtrl::unselect(const T_SELECTION& keys)
{
    Selection selection = m_selected;
    for (std::size_t kind = 0; kind < kindCount; ++kind) {
        for (const Key key : of(keys, kind))
            selection.at(kind).erase(key);
    }
    take(std::move(selection));
}

void ViewCtrl::SelectPrevious()
{
    take(m_before);
}

void ViewCtrl::UnselectAll(CView* /*view*/)
{
    take({});
}

T_SELECTION ViewCtrl::selection() const
{
    return {listed(points), listed(lines), listed(areas), listed(nodes), listed(elements)};
}

void ViewCtrl::dropMissing()
{
    for (Selection* selection : {&m_selected, &m_before}) {
        for (std::size_t kind = 0; kind < kindCount; ++kind)
            std::erase_if(selection->at(kind), [&](Key key) { return !m_document.table(tableOf(kind)).find(0, key); });
    }
}

void ViewCtrl::take(Selection selection)
{
    m_before = std::exchange(m_selected, std::move(selection));
    m_document.notify(nullptr, Hint::selection, nullptr);
}

}  // namespace zel
