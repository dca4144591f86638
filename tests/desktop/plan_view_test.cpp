#include "desktop/plan_fixture.h"
#include "desktop/views/plan_frame.h"

#include "contract/table.h"
#include "contract/units.h"

#include <QElapsedTimer>
#include <QWheelEvent>

#include <cmath>
#include <iostream>

namespace desktop_test {

using zel::desktop::PlanTransform;

namespace {

void expectSame(const QPointF& left, const QPointF& right, double tolerance = 1e-6)
{
    EXPECT_NEAR(left.x(), right.x(), tolerance);
    EXPECT_NEAR(left.y(), right.y(), tolerance);
}

/// How many pixels of a picture are unlike `ground`.
int drawnPixels(const QImage& picture, const QColor& ground, const QRect& part)
{
    int drawn = 0;
    for (int y = part.top(); y <= part.bottom(); ++y) {
        for (int x = part.left(); x <= part.right(); ++x)
            drawn += picture.pixelColor(x, y).rgb() != ground.rgb() ? 1 : 0;
    }
    return drawn;
}

}  // namespace

// The transform

TEST(PlanTransform, LeadsToTheCanvasAndBack)
{
    PlanTransform transform;
    transform.resize({800, 600});
    transform.fit({-5, 20, 40, 10}, 50);
    transform.zoomAt({123, 456}, 3.7);
    transform.pan({-40, 25});
    for (const QPointF& place : {QPointF(0, 0), QPointF(-12.5, 33), QPointF(1e4, -1e4)})
        expectSame(transform.toWorld(transform.toScreen(place)), place);
}

TEST(PlanTransform, HasXToTheRightAndYUp)
{
    PlanTransform transform;
    transform.resize({800, 600});
    const QPointF origin = transform.toScreen({0, 0});
    EXPECT_GT(transform.toScreen({1, 0}).x(), origin.x());
    EXPECT_LT(transform.toScreen({0, 1}).y(), origin.y());
}

TEST(PlanTransform, ZoomsAroundThePlaceUnderTheCursor)
{
    PlanTransform transform;
    transform.resize({800, 600});
    const QPointF before = transform.toWorld(QPointF(700, 80));
    transform.zoomAt({700, 80}, 2.5);
    expectSame(transform.toWorld(QPointF(700, 80)), before);
    EXPECT_NEAR(transform.scale(), 100, 1e-9);
}

TEST(PlanTransform, FitsABoxWithItsMargin)
{
    PlanTransform transform;
    transform.resize({800, 600});
    transform.fit({0, 0, 100, 10}, 50);
    expectSame(transform.toScreen({0, 5}), {50, 300});
    expectSame(transform.toScreen({100, 5}), {750, 300});
    transform.fit({7, 9, 0, 0}, 50);  // one point alone: into the middle, at the scale that was
    expectSame(transform.toScreen({7, 9}), {400, 300});
    EXPECT_NEAR(transform.scale(), 7, 1e-9);
}

TEST(PlanScaleBar, HasALengthOfOneTwoOrFive)
{
    using zel::desktop::roundLength;
    EXPECT_DOUBLE_EQ(roundLength(0.7), 1);
    EXPECT_DOUBLE_EQ(roundLength(1.0), 1);
    EXPECT_DOUBLE_EQ(roundLength(1300), 2000);
    EXPECT_DOUBLE_EQ(roundLength(0.0021), 0.005);
    EXPECT_DOUBLE_EQ(roundLength(51), 100);
}

// Selecting

using PlanSelection = PlanTest;

TEST_F(PlanSelection, AClickSelectsWhatIsNearestInThePlaceOfWhatWasSelected)
{
    click(0, 0);
    EXPECT_EQ(selection(), objects({1}));
    click(5, 0);
    EXPECT_EQ(selection(), objects({}, {1}));
    click(5, 5);
    EXPECT_EQ(selection(), objects({}, {}, {1}));
    click(-3, 5);
    EXPECT_EQ(selection(), objects({}));
}

TEST_F(PlanSelection, CtrlAddsAndTakesOut)
{
    click(0, 0);
    click(10, 5, Qt::ControlModifier);
    click(10, 10, Qt::ControlModifier);
    EXPECT_EQ(selection(), objects({1, 3}, {2}));
    click(0, 0, Qt::ControlModifier);
    EXPECT_EQ(selection(), objects({3}, {2}));
    click(-3, 5, Qt::ControlModifier);
    EXPECT_EQ(selection(), objects({3}, {2})) << "a click beside everything";
}

TEST_F(PlanSelection, ABandToTheRightTakesWhatLiesInside)
{
    drag(at(-1, 11), at(4, -1));
    EXPECT_EQ(selection(), objects({1, 4}, {4}));
    drag(at(9, 4), at(11, -1), Qt::LeftButton, Qt::ControlModifier);
    EXPECT_EQ(selection(), objects({1, 2, 4}, {4}));
    drag(at(-1, 11), at(11, -1));
    EXPECT_EQ(selection(), objects({1, 2, 3, 4}, {1, 2, 3, 4}, {1}));
}

TEST_F(PlanSelection, ABandToTheLeftTakesAlsoWhatItTouches)
{
    drag(at(4, -1), at(-1, 11));
    EXPECT_EQ(selection(), objects({1, 4}, {1, 3, 4}, {1}));
    drag(at(6, 4), at(4, 6));
    EXPECT_EQ(selection(), objects({}, {}, {1})) << "wholly inside the area";
}

TEST_F(PlanSelection, EscapeClears)
{
    click(0, 0);
    press(Qt::Key_Escape);
    EXPECT_EQ(selection(), objects({}));
}

TEST_F(PlanSelection, WhatIsSelectedElsewhereIsShown)
{
    window.document().GetViewCtrl()->select(objects({2}, {3}), true);
    EXPECT_TRUE(plan().model().points()[1].selected);
    EXPECT_FALSE(plan().model().points()[0].selected);
    EXPECT_TRUE(plan().model().lines()[2].selected);
    window.document().GetViewCtrl()->UnselectAll(nullptr);
    EXPECT_FALSE(plan().model().points()[1].selected);
}

TEST_F(PlanSelection, AHundredThousandPointsInTwoSeconds)
{
    constexpr int side = 317;
    std::vector<T_PONT_D> points;
    for (int i = 0; i < side * side; ++i)
        points.push_back({static_cast<double>(i % side), static_cast<double>(i / side), 0});
    auto model = zel::ModelDocument::inMemory();
    addPoints(*model, points);
    show(std::move(model));
    QElapsedTimer time;
    time.start();
    drag(at(-2, side + 2), at(side + 2, -2));
    (void)plan().grab();
    const qint64 spent = time.elapsed();
    EXPECT_EQ(selection().points.size(), points.size());
    EXPECT_LT(spent, 2000) << "milliseconds to select and draw";
    std::cout << "select and draw " << points.size() << " points: " << spent << " ms\n";
}

// Active objects

using PlanActivation = PlanTest;

TEST_F(PlanActivation, ObjectsThatAreNotActiveCannotBeSelected)
{
    I_ZELModelBase* view = I_ZELModelBase::GetCurMySelfST();
    ASSERT_EQ(view, &plan().modelView());
    view->ActivateOnly({1, 2}, {1}, {}, false);
    click(10, 10);
    EXPECT_EQ(selection(), objects({}));
    drag(at(11, -1), at(-1, 11));
    EXPECT_EQ(selection(), objects({1, 2}, {1}));
    view->ActivateCommon(1, {3}, {}, {}, false);
    click(10, 10);
    EXPECT_EQ(selection(), objects({3}));
    view->ActivateCommon(2, {3}, {}, {}, false);
    click(10, 10);
    EXPECT_EQ(selection(), objects({}));
    view->ActivateAll();
    click(5, 5);
    EXPECT_EQ(selection(), objects({}, {}, {1}));
}

TEST_F(PlanActivation, ObjectsThatAreNotActiveAreLeftOutOnDemand)
{
    const auto around = [&](const QPoint& place) { return QRect(place - QPoint(2, 2), QSize(5, 5)); };
    const QPoint place = at(10, 10);
    const auto distance = [&] {
        const QColor colour = plan().grab().toImage().pixelColor(place);
        return std::abs(colour.lightness() - plan().palette().color(QPalette::Base).lightness());
    };
    const int active = distance();
    plan().modelView().ActivateOnly({1}, {}, {}, false);
    const int faint = distance();
    EXPECT_LT(faint, active);
    plan().modelView().ActivateOnly({1}, {}, {}, true);
    EXPECT_LE(distance(), faint);
    EXPECT_GT(drawnPixels(plan().grab().toImage(), plan().palette().color(QPalette::Base), around(at(0, 0))), 0);
}

TEST_F(PlanActivation, AnotherModelStartsWithEverythingActive)
{
    plan().modelView().ActivateOnly({1}, {}, {}, true);
    I_ZELModelBase::SetModelingModeST(26);
    auto model = zel::ModelDocument::inMemory();
    addPoints(*model, {{0, 0, 0}, {10, 0, 0}});
    show(std::move(model));
    EXPECT_FALSE(plan().modelView().active());
    EXPECT_EQ(plan().modelView().modelingMode(), -1);
    click(10, 0);
    EXPECT_EQ(selection(), objects({2}));
}

// The picture

using PlanPicture = PlanTest;

TEST_F(PlanPicture, TheWheelZoomsAtTheCursor)
{
    const QPointF place = plan().transform().toScreen({10, 10});
    const double scale = plan().transform().scale();
    QWheelEvent turn(place, plan().mapToGlobal(place), {}, {0, 240}, Qt::NoButton, {}, Qt::NoScrollPhase, false);
    QCoreApplication::sendEvent(&plan(), &turn);
    EXPECT_GT(plan().transform().scale(), scale * 1.5);
    expectSame(plan().transform().toScreen({10, 10}), place, 1e-6);
}

TEST_F(PlanPicture, ItIsMovedByTheMiddleAndTheRightButtonAndWithSpace)
{
    const QPoint start = at(5, 5);
    drag(start, start + QPoint(30, -20), Qt::MiddleButton);
    EXPECT_EQ(at(5, 5), start + QPoint(30, -20));
    drag(start, start + QPoint(-30, 20), Qt::RightButton);
    EXPECT_EQ(at(5, 5), start);
    QTest::keyPress(&plan(), Qt::Key_Space);
    drag(start, start + QPoint(0, 40));
    QTest::keyRelease(&plan(), Qt::Key_Space);
    EXPECT_EQ(at(5, 5), start + QPoint(0, 40));
    EXPECT_EQ(selection(), objects({})) << "moving selects nothing";
}

TEST_F(PlanPicture, KeysZoomMoveAndFit)
{
    const PlanTransform whole = plan().transform();
    press(Qt::Key_Plus);
    EXPECT_GT(plan().transform().scale(), whole.scale());
    press(Qt::Key_Left);
    EXPECT_GT(plan().transform().toScreen({5, 5}).x(), whole.toScreen({5, 5}).x());
    press(Qt::Key_Down);
    EXPECT_LT(plan().transform().toScreen({5, 5}).y(), whole.toScreen({5, 5}).y());
    press(Qt::Key_F);
    EXPECT_EQ(plan().transform(), whole);
    press(Qt::Key_Minus);
    EXPECT_LT(plan().transform().scale(), whole.scale());
    press(Qt::Key_Home);
    EXPECT_EQ(plan().transform(), whole);
}

TEST_F(PlanPicture, AWholeModelStaysWholeWhenTheWindowChanges)
{
    window.resize(900, 500);
    settle();
    const QRectF visible = plan().transform().visible();
    EXPECT_TRUE(visible.contains(QRectF(0, 0, 10, 10)));
    EXPECT_NEAR(visible.center().x(), 5, 1e-9);
}

TEST_F(PlanPicture, ItFollowsTheModelAndItsUndo)
{
    addPoints(window.document(), {{20, 5, 0}});
    EXPECT_EQ(plan().model().points().size(), 5U);
    EXPECT_TRUE(plan().transform().visible().contains(QPointF(20, 5)));
    window.hand().undo(window.document());
    EXPECT_EQ(plan().model().points().size(), 4U);
    window.hand().redo(window.document());
    EXPECT_EQ(plan().model().bounds(), QRectF(0, 0, 20, 10));
    ASSERT_NE(window.document().table(Table::AREA).remove(0, {1}), 0);
    EXPECT_TRUE(plan().model().areas().empty());
}

TEST_F(PlanPicture, ItFollowsAnotherModel)
{
    show(zel::ModelDocument::inMemory());
    EXPECT_TRUE(plan().model().isEmpty());
    const QRect middle(plan().rect().center() - QPoint(150, 70), QSize(300, 140));
    EXPECT_GT(drawnPixels(plan().grab().toImage(), plan().palette().color(QPalette::Base), middle), 300) << "the hint of an empty model";
    addPoints(window.document(), {{0, 0, 0}, {3, 4, 0}});
    EXPECT_EQ(plan().model().points().size(), 2U);
    EXPECT_TRUE(plan().transform().visible().contains(QPointF(3, 4)));
}

TEST_F(PlanPicture, AnotherUnitOfLengthLeavesThePictureAsItIs)
{
    press(Qt::Key_Plus);
    const QPoint corner = at(10, 10);
    window.hand().units(window.document(), {T_UNIT_INDEX::MM, T_UNIT_INDEX::KN});
    EXPECT_EQ(at(10'000, 10'000), corner);
    window.hand().undo(window.document());
    EXPECT_EQ(at(10, 10), corner);
}

TEST_F(PlanPicture, ThePlaceUnderTheCursorIsTold)
{
    QString told;
    plan().onStatus([&](const QString& text) { told = text; });
    (void)at(0, 0);
    QTest::mouseMove(&plan(), at(10, 0));
    EXPECT_TRUE(told.endsWith(QStringLiteral("Point 2"))) << told.toStdString();
    EXPECT_TRUE(told.startsWith(QStringLiteral("X 10.00  Y 0.00 m"))) << told.toStdString();
    QTest::mouseMove(&plan(), at(5, 10));
    EXPECT_TRUE(told.endsWith(QStringLiteral("Line 3"))) << told.toStdString();
}

TEST_F(PlanPicture, ItIsReadableOnALightAndOnADarkGround)
{
    for (const QColor& ground : {QColor(Qt::white), QColor(30, 30, 30)}) {
        QPalette palette = plan().palette();
        palette.setColor(QPalette::Base, ground);
        palette.setColor(QPalette::Text, ground.lightness() > 128 ? Qt::black : Qt::white);
        plan().setPalette(palette);
        const QImage picture = plan().grab().toImage();
        const QColor point = picture.pixelColor(at(10, 10));
        EXPECT_GT(std::abs(point.lightness() - ground.lightness()), 90);
    }
}

}  // namespace desktop_test
