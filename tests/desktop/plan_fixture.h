#pragma once

#include "contract/records/area.h"
#include "contract/records/line.h"
#include "contract/records/pont.h"
#include "contract/table.h"
#include "contract/table_handle.h"
#include "contract/view_ctrl.h"
#include "desktop/desktop_fixture.h"
#include "desktop/views/model_views.h"
#include "desktop/views/plan_view.h"

#include <QMouseEvent>

namespace desktop_test {

/// The main window with a square of 10 by 10: points 1 to 4 from the lower left corner on, lines 1 to 4 along its edges, area 1 in it.
class PlanTest : public DesktopTest {
protected:
    using Keys = std::vector<zel::Key>;

    PlanTest()
    {
        auto model = zel::ModelDocument::inMemory({T_UNIT_INDEX::M, T_UNIT_INDEX::KN});
        addPoints(*model, {{0, 0, 0}, {10, 0, 0}, {10, 10, 0}, {0, 10, 0}});
        add<T_LINE_D>(*model, Table::LINE, {{1, 2}, {2, 3}, {3, 4}, {4, 1}});
        add<T_AREA_D>(*model, Table::AREA, {{{1, 2, 3, 4}}});
        show(std::move(model));
        window.activateWindow();
        (void)QTest::qWaitForWindowActive(&window);
        plan().setFocus();
    }

    template <class Record> static void add(zel::ModelDocument& model, Table table, const std::vector<Record>& records)
    {
        if (model.table(table).add(0, Keys(records.size(), 0), zel::shareAll(records), false) == 0)
            throw std::runtime_error("the model refuses the records");
    }
    static void addPoints(zel::ModelDocument& model, const std::vector<T_PONT_D>& points) { add(model, Table::PONT, points); }

    zel::desktop::PlanView& plan() { return window.views().plan(); }
    /// Where a place of the plan is on the canvas.
    QPoint at(double x, double y)
    {
        (void)plan().model();
        return plan().transform().toScreen(QPointF(x, y)).toPoint();
    }
    void click(double x, double y, Qt::KeyboardModifiers keys = {})
    {
        QTest::mouseClick(&plan(), Qt::LeftButton, keys, at(x, y));
        settle();
    }
    void drag(const QPoint& from, const QPoint& to, Qt::MouseButton button = Qt::LeftButton, Qt::KeyboardModifiers keys = {})
    {
        QTest::mousePress(&plan(), button, keys, from);
        QMouseEvent move(QEvent::MouseMove, QPointF(to), plan().mapToGlobal(QPointF(to)), Qt::NoButton, button, keys);
        QCoreApplication::sendEvent(&plan(), &move);
        QTest::mouseRelease(&plan(), button, keys, to);
        settle();
    }
    void press(Qt::Key key)
    {
        QTest::keyClick(&plan(), key);
        settle();
    }
    T_SELECTION selection() { return window.document().GetViewCtrl()->selection(); }
    static T_SELECTION objects(const Keys& points, const Keys& lines = {}, const Keys& areas = {})
    {
        T_SELECTION wanted;
        wanted.points = points;
        wanted.lines = lines;
        wanted.areas = areas;
        return wanted;
    }
};

/// Writes a selection that a comparison found wrong.
inline void PrintTo(const T_SELECTION& selection, std::ostream* out)
{
    *out << "points " << ::testing::PrintToString(selection.points) << " lines " << ::testing::PrintToString(selection.lines) << " areas "
         << ::testing::PrintToString(selection.areas);
}

}  // namespace desktop_test
