#include "desktop/form_catalogue.h"
#include "desktop/form_checks.h"
#include "desktop/sample_dialogs.h"

#include "journal/dialog_commands.h"

#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QMessageBox>
#include <QPlainTextEdit>
#include <QPointer>
#include <QPushButton>
#include <QSettings>
#include <QStackedWidget>
#include <QToolButton>

namespace desktop_test {

using zel::desktop::FormWindow;

using RenderedForm = DesktopTest;

namespace {

QWidget& widgetOf(FormWindow& form, const zel::Control& control)
{
    return form.viewOf(control)->widget();
}

void expectInOrder(const FormWindow& form)
{
    EXPECT_EQ(joined(unlikeController(form)), "");
    EXPECT_EQ(joined(clippedOrCovered(form)), "");
    EXPECT_EQ(joined(misaligned(form)), "");
    EXPECT_EQ(joined(outOfOrder(form)), "");
    EXPECT_EQ(joined(badlyNamed(form)), "");
}

}  // namespace

TEST_F(RenderedForm, HasEveryKindAtItsPlace)
{
    auto* dialog = new SampleForm;
    FormWindow& form = showSample(window, *dialog);
    expectInOrder(form);
    EXPECT_TRUE(dynamic_cast<QPushButton&>(widgetOf(form, dialog->apply)).isDefault());
    EXPECT_FALSE(dynamic_cast<QPushButton&>(widgetOf(form, dialog->close)).isDefault());
    EXPECT_EQ(widgetOf(form, dialog->apply).width(), widgetOf(form, dialog->close).width());
    EXPECT_NE(qobject_cast<QPlainTextEdit*>(&widgetOf(form, dialog->lines)), nullptr);
}

TEST_F(RenderedForm, FollowsWhatTheProgramChanges)
{
    auto* dialog = new SampleForm;
    FormWindow& form = showSample(window, *dialog);
    dialog->name.SetWindowText("Roof");
    dialog->lines.SetWindowText("one\ntwo");
    dialog->code.AddString("Three");
    dialog->code.SetCurSel(2);
    dialog->limited.SetCheck(true);
    dialog->mode.SetSel(1);
    dialog->name.SetReadOnly();
    dialog->apply.SetWindowText("Apply All");
    dialog->search.SetLabel("Find :");
    dialog->limits.SetWindowText("Bounds");
    dialog->SetWindowText("Sample [2]");
    dialog->tabs.SetCurSel(1);
    dialog->close.EnableWindow(false);
    dialog->searchButton.ShowWindow(false);
    settle();
    EXPECT_EQ(dynamic_cast<QLineEdit&>(widgetOf(form, dialog->name)).text(), "Roof");
    EXPECT_TRUE(dynamic_cast<QLineEdit&>(widgetOf(form, dialog->name)).isReadOnly());
    EXPECT_EQ(form.windowTitle(), "Sample [2]");
    EXPECT_TRUE(widgetOf(form, dialog->length).isEnabled()) << "by its rule";
    expectInOrder(form);
}

TEST_F(RenderedForm, TellsTheControllerWhatTheUserDoes)
{
    auto* dialog = new SampleForm;
    FormWindow& form = showSample(window, *dialog);
    type(form, "Name", "B1");
    EXPECT_EQ(dialog->name.GetWindowText(), "B1");
    EXPECT_EQ(dialog->typed, 2) << "a change for each keystroke";
    QTest::mouseClick(&widgetOf(form, dialog->limited), Qt::LeftButton, {}, QPoint(8, 8));
    EXPECT_TRUE(dialog->limited.GetCheck());
    settle();
    QTest::mouseClick(&widgetOf(form, dialog->modeReplace), Qt::LeftButton, {}, QPoint(8, 8));
    settle();
    EXPECT_EQ(dialog->mode.GetSel(), 1);
    QTest::keyClicks(&widgetOf(form, dialog->lines), QStringLiteral("ab"));
    EXPECT_EQ(dialog->lines.GetWindowText(), "ab");
    const QList<QToolButton*> arrows = widgetOf(form, dialog->countSpin).findChildren<QToolButton*>();
    ASSERT_EQ(arrows.size(), 2);
    QTest::mouseClick(arrows[0], Qt::LeftButton);
    settle();
    EXPECT_EQ(dialog->count.GetWindowText(), "4");
    EXPECT_EQ(dynamic_cast<QLineEdit&>(widgetOf(form, dialog->count)).text(), "4");
    QTest::mouseClick(arrows[1], Qt::LeftButton);
    QTest::mouseClick(arrows[1], Qt::LeftButton);
    EXPECT_EQ(dialog->count.GetWindowText(), "2");
    click(form, "Apply");
    EXPECT_EQ(dialog->applied, 1);
    expectInOrder(form);
}

TEST_F(RenderedForm, PutsBackWhatTheControllerRefuses)
{
    auto* dialog = new SampleForm;
    FormWindow& form = showSample(window, *dialog);
    dialog->name.SetReadOnly();  // the widget has not heard of it yet
    auto& line = dynamic_cast<QLineEdit&>(widgetOf(form, dialog->name));
    line.setFocus();
    QTest::keyClicks(&line, QStringLiteral("x"));
    EXPECT_EQ(line.text(), "");
    settle();
}

TEST_F(RenderedForm, GrowsAndShrinksAsGroupsComeAndGo)
{
    auto* dialog = new SampleForm;
    FormWindow& form = showSample(window, *dialog);
    const QSize before = form.size();
    dialog->more.SetCheck(true);
    dialog->formChanged();
    settle();
    EXPECT_GT(form.height() * form.width(), before.height() * before.width());
    EXPECT_LE(form.height(), before.height() + widgetOf(form, dialog->remark).parentWidget()->height() + 20);
    expectInOrder(form);
    dialog->more.SetCheck(false);
    dialog->formChanged();
    settle();
    EXPECT_EQ(form.size(), before);
    form.resize(before + QSize(60, 40));
    settle();
    dialog->more.SetCheck(true);
    dialog->formChanged();
    settle();
    EXPECT_GE(form.width(), before.width() + 60) << "what the user has made it wider by stays";
    expectInOrder(form);
}

TEST_F(RenderedForm, FoldsToTwoColumnsOfFramesWhenTheyGetTooHighAndBack)
{
    QSettings().remove(QStringLiteral("places"));  // the size of the last one is kept
    show(example("tower"));
    const FormState generation = {"", "{\"do\": \"modeless\", \"id\": \"D_CMD_RESULT_LOADCOMB\"}\n{\"do\": \"press\", \"control\": \"Auto Generation...\"}\n"};
    ASSERT_TRUE(atForm(window, generation, [&](FormWindow& form) {
        auto& code = widget<QComboBox>(form, "Design Code");
        const int former = code.findText(QStringLiteral("AIK-USD94"));
        (void)window.hand().choose(control(form, "Design Code"), former);
        settle();
        const QSize narrow = form.size();
        (void)window.hand().choose(control(form, "Design Code"), code.findText(QStringLiteral("KDS 41 20 : 2022")));
        settle();
        EXPECT_GT(form.width(), narrow.width());
        EXPECT_LT(form.height(), narrow.height() * 3 / 2);
        expectInOrder(form);
        (void)window.hand().choose(control(form, "Design Code"), former);
        settle();
        EXPECT_EQ(form.size(), narrow);
        expectInOrder(form);
    }));
}

TEST_F(RenderedForm, KeepsItsSizeWhenAnotherPageIsChosen)
{
    auto* dialog = new SampleForm;
    FormWindow& form = showSample(window, *dialog);
    const QSize before = form.size();
    EXPECT_TRUE(widgetOf(form, *dialog->small.edits[0]).isVisible());
    EXPECT_FALSE(widgetOf(form, *dialog->large.edits[3]).isVisible());
    (void)window.hand().choose(dialog->tabs, 1);
    settle();
    EXPECT_EQ(form.size(), before);
    EXPECT_FALSE(widgetOf(form, *dialog->small.edits[0]).isVisible());
    EXPECT_TRUE(widgetOf(form, *dialog->large.edits[3]).isVisible());
    expectInOrder(form);
}

TEST_F(RenderedForm, ShowsWhatAPanelHoldsNow)
{
    auto* dialog = new PanelForm;
    FormWindow& form = showSample(window, *dialog);
    const int before = form.height();
    ASSERT_NE(form.viewOf(*dialog->box.edits[0]), nullptr);
    auto& shape = widget<QComboBox>(form, "Shape");
    shape.setFocus();
    QTest::keyClick(&shape, Qt::Key_End);
    settle();
    EXPECT_EQ(form.viewOf(*dialog->box.edits[0]), nullptr);
    ASSERT_NE(form.viewOf(*dialog->pipe.edits[4]), nullptr);
    EXPECT_GT(form.height(), before);
    expectInOrder(form);
    type(form, "Value 5", "7");
    EXPECT_EQ(dialog->pipe.edits[4]->GetWindowText(), "7");
    dialog->pipe.End();
    settle();
    EXPECT_LT(form.height(), before) << "an empty panel takes no room";
    expectInOrder(form);
}

TEST_F(RenderedForm, ExchangesThePanelWhileTheWidgetThatAskedForItIsAtWork)
{
    auto* dialog = new PanelForm;
    FormWindow& form = showSample(window, *dialog);
    dialog->asks = true;
    const QPointer<QComboBox> shape = &widget<QComboBox>(form, "Shape");
    bool stillThere = false;
    whenModal([&](QWidget& box) {
        QTest::qWait(120);  // time enough for whatever is deleted too early
        stillThere = !shape.isNull();
        dynamic_cast<QMessageBox&>(box).button(QMessageBox::Ok)->click();
    });
    shape->setFocus();
    QTest::keyClick(shape, Qt::Key_End);
    EXPECT_TRUE(stillThere);
    QTest::qWait(120);
    EXPECT_TRUE(shape.isNull()) << "the former widgets have gone";
    ASSERT_NE(form.viewOf(*dialog->pipe.edits[0]), nullptr);
    expectInOrder(form);
}

TEST_F(RenderedForm, LosesTheWidgetOfAControlThatIsDestroyed)
{
    auto* dialog = new DrawingForm;
    FormWindow& form = showSample(window, *dialog);
    const std::size_t before = form.parts().parts.size();
    dialog->second->SetFocus();
    settle();
    click(form, "Remove");
    EXPECT_EQ(form.parts().parts.size(), before - 1);
    expectInOrder(form);
    QTest::qWait(80);
    type(form, "First", "1");
    EXPECT_EQ(dialog->first.GetWindowText(), "1");
}

TEST_F(RenderedForm, ClosesInsideAHandlerOfItsOwn)
{
    auto* dialog = new SampleForm;
    const QPointer<FormWindow> form = &showSample(window, *dialog);
    click(*form, "Close");
    QTest::qWait(80);
    EXPECT_TRUE(form.isNull());
    EXPECT_TRUE(window.services().formWindows().empty());

    auto* typing = new SampleForm;
    typing->name.onChange([typing] { typing->End(); });
    const QPointer<FormWindow> other = &showSample(window, *typing);
    QTest::keyClicks(&widget<QLineEdit>(*other, "Name"), QStringLiteral("x"));
    QTest::qWait(80);
    EXPECT_TRUE(other.isNull());
}

TEST_F(RenderedForm, HasRoomForLongAndKoreanNames)
{
    show(example("tower"));
    for (const char* name :
         {"풍하중 X방향", "지진하중(우발편심) X방향 응답스펙트럼해석 최대", "Wind along X with a name that is longer than any list would like it to be"}) {
        const std::string add = R"({"do": "db", "op": "add", "table": "STLD", "record": {"name": ")" + std::string(name) + R"(", "type": "E"}})" + "\n";
        for (FormState state : picturedForms()) {
            state.journal = add + state.journal;
            show(example("tower"));
            EXPECT_TRUE(atForm(window, state, [&](const FormWindow& form) {
                EXPECT_EQ(joined(clippedOrCovered(form)), "") << state.name;
                EXPECT_EQ(joined(misaligned(form)), "") << state.name;
                EXPECT_LE(form.width(), form.screen()->availableSize().width());
            }));
        }
    }
}

TEST_F(RenderedForm, StandsInADarkThemeToo)
{
    const QPalette usual = QApplication::palette();
    auto* dialog = new SampleForm;
    FormWindow& form = showSample(window, *dialog);
    QPalette dark(QColor(50, 50, 54));
    QApplication::setPalette(dark);
    QTest::qWait(50);
    const QImage picture = form.grab().toImage();
    EXPECT_LT(picture.pixelColor(3, 3).lightness(), 90) << "no part paints over it in light";
    EXPECT_GT(widgetOf(form, dialog->apply).palette().color(QPalette::ButtonText).lightness(), 150);
    expectInOrder(form);
    QApplication::setPalette(usual);
    settle();
}

}  // namespace desktop_test
