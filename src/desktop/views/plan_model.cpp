#include "desktop/views/plan_model.h"

#include "contract/document.h"
#include "contract/table.h"
#include "contract/tables/model_tables.h"
#include "desktop/forms/text.h"

#include <algorithm>

namespace zel::desktop {

namespace {

constexpr Table tables[] = {Table::PONT, Table::LINE, Table::AREA, Table::BEAM, Table::SLAB, Table::OPEN,
                            Table::COSA, Table::PISA, Table::WASA, Table::SOSA, Table::GDLN};

/// The object of a key in a list that is ascending; null if there is none.
template <class Objects> auto* find(Objects& objects, Key key)
{
    const auto place = std::lower_bound(objects.begin(), objects.end(), key, [](const PlanObject& object, Key wanted) { return object.key < wanted; });
    return place != objects.end() && place->key == key ? &*place : nullptr;
}

/// Runs along the objects and the ascending keys at once.
template <class Objects> void mark(Objects& objects, bool PlanObject::*flag, const std::vector<Key>& keys)
{
    auto next = keys.begin();
    for (PlanObject& object : objects) {
        while (next != keys.end() && *next < object.key)
            ++next;
        object.*flag = next != keys.end() && *next == object.key;
    }
}

template <class Objects> void markAll(Objects& objects, bool PlanObject::*flag, bool value)
{
    for (PlanObject& object : objects)
        object.*flag = value;
}

}  // namespace

bool PlanModel::read(CDBDoc& document)
{
    bool changed = false;
    for (const Table id : tables) {
        const ITable& table = document.table(id);
        Stored now{table.keys(0), {}};
        now.records.reserve(now.keys.size());
        for (const Key key : now.keys)
            now.records.push_back(table.find(0, key));
        Stored& before = m_stored[id];
        if (now == before)
            continue;
        before = std::move(now);
        changed = true;
    }
    if (changed)
        build();
    return changed;
}

void PlanModel::clear()
{
    m_stored.clear();
    build();
}

template <class Record, class Use> void PlanModel::each(Table table, Use use) const
{
    const auto found = m_stored.find(table);
    if (found == m_stored.end())
        return;
    const Stored& stored = found->second;
    for (std::size_t i = 0; i < stored.keys.size(); ++i)
        use(stored.keys[i], *static_cast<const Record*>(stored.records[i].get()));
}

void PlanModel::build()
{
    buildPoints();
    buildLines();
    buildAreas();
    m_gridLines.clear();
    each<T_GDLN_D>(Table::GDLN, [&](Key, const T_GDLN_D& line) { m_gridLines.push_back({toQt(line.name), {line.origin[0], line.origin[1]}, line.angle}); });
}

void PlanModel::buildPoints()
{
    m_points.clear();
    m_bounds = {};
    double left = 0, right = 0, bottom = 0, top = 0;
    each<T_PONT_D>(Table::PONT, [&](Key key, const T_PONT_D& record) {
        PlanPoint point;
        point.key = key;
        point.at = {record.x, record.y};
        if (m_points.empty()) {
            left = right = record.x;
            bottom = top = record.y;
        }
        left = std::min(left, record.x);
        right = std::max(right, record.x);
        bottom = std::min(bottom, record.y);
        top = std::max(top, record.y);
        m_points.push_back(point);
    });
    m_bounds = {left, bottom, right - left, top - bottom};
    each<T_COSA_D>(Table::COSA, [&](Key, const T_COSA_D& support) {
        if (PlanPoint* point = find(m_points, support.pointKey))
            point->column = true;
    });
    each<T_PISA_D>(Table::PISA, [&](Key, const T_PISA_D& support) {
        if (PlanPoint* point = find(m_points, support.pointKey))
            point->pile = true;
    });
}

void PlanModel::buildLines()
{
    m_lines.clear();
    each<T_LINE_D>(Table::LINE, [&](Key key, const T_LINE_D& record) {
        const PlanPoint* from = point(record.point1);
        const PlanPoint* to = point(record.point2);
        if (from == nullptr || to == nullptr)
            return;
        PlanLine line;
        line.key = key;
        line.from = from->at;
        line.to = to->at;
        line.fromPoint = from->key;
        line.toPoint = to->key;
        m_lines.push_back(line);
    });
    each<T_BEAM_D>(Table::BEAM, [&](Key, const T_BEAM_D& beam) {
        if (PlanLine* line = find(m_lines, beam.lineKey))
            line->beam = true;
    });
    each<T_WASA_D>(Table::WASA, [&](Key, const T_WASA_D& support) {
        if (PlanLine* line = find(m_lines, support.lineKey))
            line->wall = true;
    });
}

void PlanModel::buildAreas()
{
    m_areas.clear();
    each<T_AREA_D>(Table::AREA, [&](Key key, const T_AREA_D& record) {
        PlanArea area;
        area.key = key;
        for (const Key corner : record.points) {
            const PlanPoint* found = point(corner);
            if (found == nullptr)
                return;
            area.outline.append(found->at);
        }
        if (area.outline.isEmpty())
            return;
        area.box = area.outline.boundingRect();
        m_areas.push_back(std::move(area));
    });
    each<T_SLAB_D>(Table::SLAB, [&](Key, const T_SLAB_D& slab) {
        if (PlanArea* area = find(m_areas, slab.areaKey))
            area->slab = true;
    });
    each<T_OPEN_D>(Table::OPEN, [&](Key, const T_OPEN_D& opening) {
        if (PlanArea* area = find(m_areas, opening.areaKey))
            area->opening = true;
    });
    each<T_SOSA_D>(Table::SOSA, [&](Key, const T_SOSA_D& support) {
        if (PlanArea* area = find(m_areas, support.areaKey))
            area->soil = true;
    });
}

const PlanPoint* PlanModel::point(Key key) const
{
    return find(m_points, key);
}

void PlanModel::showSelection(const T_SELECTION& selection)
{
    mark(m_points, &PlanObject::selected, selection.points);
    mark(m_lines, &PlanObject::selected, selection.lines);
    mark(m_areas, &PlanObject::selected, selection.areas);
}

void PlanModel::showActive(const std::optional<ActiveObjects::Keys>& active)
{
    if (!active) {
        markAll(m_points, &PlanObject::active, true);
        markAll(m_lines, &PlanObject::active, true);
        markAll(m_areas, &PlanObject::active, true);
        return;
    }
    mark(m_points, &PlanObject::active, active->points);
    mark(m_lines, &PlanObject::active, active->lines);
    mark(m_areas, &PlanObject::active, active->areas);
}

}  // namespace zel::desktop
