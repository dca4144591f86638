#pragma once

#include "contract/table_store.h"
#include "contract/view_ctrl.h"
#include "platform/forms/active_objects.h"

#include <QPointF>
#include <QPolygonF>
#include <QRectF>
#include <QString>

#include <map>
#include <optional>
#include <vector>

class CDBDoc;

namespace zel::desktop {

enum class PlanKind { point, line, area };

/// How an object stands in the view.
struct PlanObject {
    Key key = 0;
    bool selected = false;
    bool active = true;
};
struct PlanPoint : PlanObject {
    QPointF at;
    bool column = false;  ///< bears a column support
    bool pile = false;
};
struct PlanLine : PlanObject {
    QPointF from;
    QPointF to;
    Key fromPoint = 0;
    Key toPoint = 0;
    bool beam = false;
    bool wall = false;  ///< bears a wall support
};
struct PlanArea : PlanObject {
    QPolygonF outline;
    QRectF box;
    bool slab = false;
    bool opening = false;
    bool soil = false;  ///< bears a soil support
};
struct PlanGridLine {
    QString name;
    QPointF origin;
    double angle = 0.0;  ///< [degrees]
};

/// The model's objects as the plan shows them, each list ascending by key. Lines and areas whose points are not there are left out.
class PlanModel {
public:
    /// Reads the tables. False if nothing that the plan shows has changed since the last reading.
    bool read(CDBDoc& document);
    void clear();
    void showSelection(const T_SELECTION& selection);
    void showActive(const std::optional<ActiveObjects::Keys>& active);

    [[nodiscard]] const std::vector<PlanPoint>& points() const { return m_points; }
    [[nodiscard]] const std::vector<PlanLine>& lines() const { return m_lines; }
    [[nodiscard]] const std::vector<PlanArea>& areas() const { return m_areas; }
    [[nodiscard]] const std::vector<PlanGridLine>& gridLines() const { return m_gridLines; }
    /// Null for a key without a point.
    [[nodiscard]] const PlanPoint* point(Key key) const;
    [[nodiscard]] bool isEmpty() const { return m_points.empty(); }
    /// The box around all points.
    [[nodiscard]] const QRectF& bounds() const { return m_bounds; }

private:
    /// What a table held when it was read. Records are never changed in place, so that equal pointers are equal records.
    struct Stored {
        std::vector<Key> keys;
        std::vector<RecordPtr> records;
        bool operator==(const Stored&) const = default;
    };

    void build();
    void buildPoints();
    void buildLines();
    void buildAreas();
    template <class Record, class Use> void each(Table table, Use use) const;

    std::map<Table, Stored> m_stored;
    std::vector<PlanPoint> m_points;
    std::vector<PlanLine> m_lines;
    std::vector<PlanArea> m_areas;
    std::vector<PlanGridLine> m_gridLines;
    QRectF m_bounds;
};

}  // namespace zel::desktop
