#include "desktop/files_fixture.h"

#include "command/command.h"
#include "contract/long_run.h"
#include "contract/user_interface.h"

#include <QApplication>
#include <QEventLoop>
#include <QLineEdit>
#include <QPushButton>
#include <QStatusBar>
#include <QTimer>

#include <thread>

namespace desktop_test {

namespace {

/// Counts how often something in a window is painted.
class Watch final : public QObject {
public:
    int paints = 0;

protected:
    bool eventFilter(QObject* /*watched*/, QEvent* event) override
    {
        paints += static_cast<int>(event->type() == QEvent::Paint);
        return false;
    }
};

}  // namespace

using LongStep = DesktopTest;

TEST_F(LongStep, ItsTextIsPaintedAtOnceUnderABusyCursorAndGoesWhenItEnds)
{
    Watch watch;
    window.statusBar()->installEventFilter(&watch);
    zel::userInterface()->busy("Generating combinations...");
    EXPECT_EQ(window.statusBar()->currentMessage(), "Generating combinations...");
    EXPECT_GT(watch.paints, 0);
    ASSERT_NE(QApplication::overrideCursor(), nullptr);
    EXPECT_EQ(QApplication::overrideCursor()->shape(), Qt::WaitCursor);
    zel::userInterface()->busy("");
    EXPECT_TRUE(window.statusBar()->currentMessage().isEmpty());
    EXPECT_EQ(QApplication::overrideCursor(), nullptr);
}

TEST_F(LongStep, LinesArePaintedWhileItGoesOn)
{
    settle();
    Watch watch;
    for (QWidget* each : window.findChildren<QWidget*>())
        each->installEventFilter(&watch);
    int paintsBefore = 0;
    for (int line = 0; line < 4; ++line) {
        zel::userInterface()->output("line " + std::to_string(line));
        EXPECT_GT(watch.paints, paintsBefore) << "line " << line;
        paintsBefore = watch.paints;
        std::this_thread::sleep_for(std::chrono::milliseconds(100));
    }
}

TEST_F(LongStep, NoInputGetsThroughToAFormInTheMiddleOfIt)
{
    auto& form = open(D_CMD_MODEL_LOAD_LOADCASE, "CCMLoadCaseDlg");
    auto& field = widget<QLineEdit>(form, "Name");
    bool tried = false;
    QTimer::singleShot(0, &window, [&] {
        QTest::keyClicks(&field, "typed");
        QTest::mouseClick(&field, Qt::LeftButton);
        form.close();
        tried = true;
    });
    zel::userInterface()->busy("Working...");
    EXPECT_TRUE(tried) << "the step let no timer run while it painted";
    EXPECT_EQ(field.text(), "");
    zel::userInterface()->busy("");
    QTest::keyClicks(&field, "typed");
    EXPECT_EQ(field.text(), "typed");
}

TEST_F(LongStep, AStepThatTellsNothingButLinesShowsABusyCursorInTime)
{
    for (int line = 0; line < 6; ++line) {
        zel::userInterface()->output("line");
        std::this_thread::sleep_for(std::chrono::milliseconds(100));
    }
    EXPECT_NE(QApplication::overrideCursor(), nullptr);
    QEventLoop idle;  // the program waits for input again
    QTimer::singleShot(50, &idle, &QEventLoop::quit);
    idle.exec();
    EXPECT_EQ(QApplication::overrideCursor(), nullptr);
}

TEST_F(LongStep, APostedCommandWaitsForItsEnd)
{
    constexpr unsigned staticLoadCases = 32869;
    zel::userInterface()->busy("Working...");
    // Posted while the windows are painted, as a form does that follows a change.
    QTimer::singleShot(0, &window, [] { zel::userInterface()->postCommand(staticLoadCases); });
    for (int line = 0; line < 3; ++line) {
        std::this_thread::sleep_for(std::chrono::milliseconds(90));
        zel::userInterface()->output("line");
        EXPECT_TRUE(window.services().formWindows().empty()) << "a form opened in the middle of a step";
    }
    zel::userInterface()->busy("");
    EXPECT_TRUE(QTest::qWaitFor([&] { return window.services().formWindows().size() == 1; }, 2000));
}

/// Presses the button of the panel of a run as soon as there is one.
class Finger final : public QObject {
public:
    Finger()
    {
        QObject::connect(&m_timer, &QTimer::timeout, this, [this] {
            for (QWidget* each : QApplication::topLevelWidgets()) {
                auto* const button = each->objectName() == "longRun" && each->isVisible() ? each->findChild<QPushButton*>() : nullptr;
                if (button != nullptr) {
                    text = button->text();
                    QTest::mouseClick(button, Qt::LeftButton);
                }
            }
        });
        m_timer.start(10);
    }

    QString text;  ///< of the button that it pressed

private:
    QTimer m_timer;
};

TEST_F(LongStep, ARunThatCanBeStoppedShowsHowFarItIsBesideAButtonThatStopsIt)
{
    using Clock = std::chrono::steady_clock;
    const Finger finger;
    bool stopped = false;
    {
        const zel::StoppableRun run;
        const Clock::time_point end = Clock::now() + std::chrono::seconds(20);
        try {
            for (std::size_t done = 1; Clock::now() < end; ++done)
                zel::reportRun(zel::RunPhase::generating, done);
        } catch (const zel::Interrupted&) {
            stopped = true;
        }
    }
    EXPECT_TRUE(stopped);
    EXPECT_EQ(finger.text, "Stop");
    QEventLoop idle;  // the program waits for input again
    QTimer::singleShot(50, &idle, &QEventLoop::quit);
    idle.exec();
    for (QWidget* each : QApplication::topLevelWidgets())
        EXPECT_NE(each->objectName(), "longRun") << "the panel goes with its run";
}

}  // namespace desktop_test
