#include "desktop/sample_dialogs.h"

#include <QApplication>
#include <QChart>
#include <QChartView>
#include <QLineSeries>
#include <QLogValueAxis>
#include <QValueAxis>

namespace desktop_test {

using zel::desktop::FormWindow;

using DrawnControls = DesktopTest;

TEST_F(DrawnControls, AGraphHasALineForEachSeriesOnItsAxes)
{
    auto* dialog = new DrawingForm;
    dialog->graph.GetGraph().SetSeries(0, {{0.0, 1.0}, {2.0, 4.0}});
    dialog->graph.GetGraph().SetSeries(1, {{0.0, 2.0}, {1.0, 3.0}, {2.0, -1.0}});
    dialog->graph.SetAxisTitles("Period", "Acceleration");
    FormWindow& form = showSample(window, *dialog);
    const auto& view = dynamic_cast<QChartView&>(form.viewOf(dialog->graph)->widget());
    ASSERT_EQ(view.chart()->series().size(), 2);
    EXPECT_EQ(qobject_cast<QLineSeries*>(view.chart()->series()[1])->count(), 3);
    const auto* x = qobject_cast<QValueAxis*>(view.chart()->axes(Qt::Horizontal).first());
    const auto* y = qobject_cast<QValueAxis*>(view.chart()->axes(Qt::Vertical).first());
    ASSERT_NE(x, nullptr);
    ASSERT_NE(y, nullptr);
    EXPECT_EQ(x->titleText(), "Period");
    EXPECT_DOUBLE_EQ(x->max(), 2.0);
    EXPECT_DOUBLE_EQ(y->min(), -1.0);
    EXPECT_DOUBLE_EQ(y->max(), 4.0);

    dialog->graph.GetGraph().Clear();
    dialog->graph.GetGraph().SetSeries(0, {{0.0, 3.0}, {1.0, 10.0}, {100.0, 1000.0}});
    dialog->graph.SetLogScale(true, true);
    dialog->graph.Redraw();
    settle();
    ASSERT_EQ(view.chart()->series().size(), 1);
    EXPECT_EQ(qobject_cast<QLineSeries*>(view.chart()->series()[0])->count(), 2) << "a logarithmic axis has no 0";
    EXPECT_NE(qobject_cast<QLogValueAxis*>(view.chart()->axes(Qt::Horizontal).first()), nullptr);
}

TEST_F(DrawnControls, AGraphFollowsADarkTheme)
{
    const QPalette usual = QApplication::palette();
    auto* dialog = new DrawingForm;
    dialog->graph.GetGraph().SetSeries(0, {{0.0, 1.0}, {2.0, 4.0}});
    FormWindow& form = showSample(window, *dialog);
    QApplication::setPalette(QPalette(QColor(50, 50, 54)));
    QTest::qWait(60);
    const auto& view = dynamic_cast<QChartView&>(form.viewOf(dialog->graph)->widget());
    EXPECT_EQ(view.chart()->theme(), QChart::ChartThemeDark);
    QApplication::setPalette(usual);
    QTest::qWait(60);
}

TEST_F(DrawnControls, APictureShowsItsShapesOnPaperInEveryTheme)
{
    const QPalette usual = QApplication::palette();
    auto* dialog = new DrawingForm;
    zel::Shape box;
    box.points = {{20, 20}, {60, 20}, {60, 60}, {20, 60}};
    box.fill = zel::Colour{200, 0, 0};
    zel::Shape hole;
    hole.kind = zel::Shape::Kind::ellipse;
    hole.points = {{70, 20}, {110, 60}};
    hole.fill = zel::Colour{0, 0, 200};
    dialog->picture.SetShapes({box, hole});
    FormWindow& form = showSample(window, *dialog);
    QApplication::setPalette(QPalette(QColor(50, 50, 54)));
    QTest::qWait(60);
    QWidget& canvas = form.viewOf(dialog->picture)->widget();
    EXPECT_EQ(canvas.size(), QSize(120, 80));
    const QImage picture = canvas.grab().toImage();
    EXPECT_EQ(picture.pixelColor(40, 40), QColor(200, 0, 0));
    EXPECT_EQ(picture.pixelColor(90, 40), QColor(0, 0, 200));
    EXPECT_EQ(picture.pixelColor(64, 10), QColor(Qt::white));
    dialog->picture.SetShapes({});
    settle();
    EXPECT_EQ(canvas.grab().toImage().pixelColor(40, 40), QColor(Qt::white));
    QApplication::setPalette(usual);
    QTest::qWait(60);
}

}  // namespace desktop_test
