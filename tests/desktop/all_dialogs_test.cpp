#include "build_paths.h"
#include "desktop/desktop_fixture.h"
#include "desktop/form_catalogue.h"
#include "desktop/form_checks.h"

#include "contract/forms/buttons.h"
#include "contract/forms/list_ctrl.h"
#include "contract/forms/lists.h"
#include "journal/form_json.h"

#include <QApplication>
#include <QComboBox>
#include <QLineEdit>
#include <QProcess>

#include <filesystem>
#include <fstream>
#include <nlohmann/json.hpp>
#include <set>
#include <sstream>

/// Every dialog class in the tree, and every state that has a picture. A dialog that comes later is covered with no further code.
namespace desktop_test {

using zel::Control;
using zel::Kind;
using zel::desktop::FormParts;
using zel::desktop::FormWindow;

class AllDialogs : public DesktopTest, public ::testing::WithParamInterface<FormState> {
protected:
    AllDialogs() { show(example("tower")); }

    /// Of a state that the table of dialogs gives, and that needs a record of the model to open on, the journal of its picture stands for it.
    void atItsForm(const std::function<void(FormWindow&)>& step)
    {
        if (atForm(window, GetParam(), step))
            return;
        const std::vector<FormState> pictured = picturedForms();
        EXPECT_TRUE(std::any_of(pictured.begin(), pictured.end(), [](const FormState& each) { return each.name == GetParam().name; }))
            << "nothing opens it: write docs/forms/" << GetParam().name << ".jsonl";
    }
};

TEST_P(AllDialogs, AreDrawnAsTheirControllerStands)
{
    atItsForm([](const FormWindow& form) { EXPECT_EQ(joined(unlikeController(form)), ""); });
}

TEST_P(AllDialogs, NothingIsClippedCoveredOrOutOfLine)
{
    atItsForm([](const FormWindow& form) {
        EXPECT_EQ(joined(clippedOrCovered(form)), "");
        EXPECT_EQ(joined(misaligned(form)), "");
    });
}

TEST_P(AllDialogs, NothingIsClippedCoveredOrOutOfLineWithALargeFont)
{
    const QFont usual = QApplication::font();
    QFont large = usual;
    large.setPointSizeF(usual.pointSizeF() * 1.6);
    QApplication::setFont(large);
    atItsForm([](const FormWindow& form) {
        EXPECT_EQ(joined(clippedOrCovered(form)), "");
        EXPECT_EQ(joined(misaligned(form)), "");
    });
    QApplication::setFont(usual);
}

TEST_P(AllDialogs, FollowAFontThatChangesWhileTheyAreOpen)
{
    const QFont usual = QApplication::font();
    atItsForm([&](const FormWindow& form) {
        QFont large = usual;
        large.setPointSizeF(usual.pointSizeF() * 1.6);
        QApplication::setFont(large);
        QTest::qWait(80);
        EXPECT_EQ(joined(clippedOrCovered(form)), "");
        EXPECT_EQ(joined(misaligned(form)), "");
        EXPECT_EQ(joined(unlikeController(form)), "");
    });
    QApplication::setFont(usual);
}

TEST_P(AllDialogs, AreReadAndTabbedThroughInTheOrderOfTheirControls)
{
    atItsForm([](const FormWindow& form) { EXPECT_EQ(joined(outOfOrder(form)), ""); });
}

TEST_P(AllDialogs, HaveUniqueMnemonicsAndAccessibleNames)
{
    atItsForm([](const FormWindow& form) { EXPECT_EQ(joined(badlyNamed(form)), ""); });
}

TEST_P(AllDialogs, OpenWithTheFocusWhereTheControllerHasIt)
{
    atItsForm([](FormWindow& form) {
        const Control* focused = form.dialog()->GetFocus();
        if (focused == nullptr)  // a step of the journal has left its field
            return;
        ASSERT_NE(form.viewOf(*focused), nullptr);
        const QWidget* widget = form.viewOf(*focused)->focusWidget();
        ASSERT_NE(widget, nullptr) << focused->id();
        EXPECT_TRUE(widget->hasFocus() || widget->isAncestorOf(form.focusWidget())) << focused->id();
    });
}

TEST_P(AllDialogs, TabGoesFromControlToControlAndComesRound)
{
    atItsForm([](FormWindow& form) {
        if (form.dialog()->GetFocus() == nullptr)
            return;
        const Control* start = form.dialog()->GetFocus();
        std::set<const Control*> met;
        for (std::size_t i = 0; i <= form.parts().parts.size() && form.dialog() != nullptr; ++i) {
            const Control* focused = form.dialog()->GetFocus();
            ASSERT_NE(focused, nullptr);
            const QWidget* widget = form.viewOf(*focused)->focusWidget();
            ASSERT_NE(widget, nullptr) << focused->id();
            EXPECT_TRUE(widget->hasFocus() || widget->isAncestorOf(form.focusWidget())) << focused->id();
            met.insert(focused);
            const bool isGrid = focused->kind() == Kind::grid;  // there Tab goes from cell to cell
            QTest::keyClick(form.focusWidget(), Qt::Key_Tab, isGrid ? Qt::ControlModifier : Qt::NoModifier);
            settle();
            if (form.dialog() != nullptr && form.dialog()->GetFocus() == start)
                break;
        }
        ASSERT_NE(form.dialog(), nullptr);
        EXPECT_EQ(form.dialog()->GetFocus(), start);
        std::size_t focusable = 0;
        for (const FormParts::Part& part : form.parts().parts)
            focusable += part.view->focusWidget() != nullptr && part.view->widget().isVisible() && part.view->widget().isEnabled() ? 1 : 0;
        EXPECT_EQ(met.size(), focusable);
    });
}

namespace {

/// What a person may do to a control with keyboard and mouse, and the same by the control's own channel. False for kinds that are tested apart.
bool useWidget(FormWindow& form, const Control& control)
{
    QWidget& widget = form.viewOf(control)->widget();
    switch (control.kind()) {
    case Kind::edit:
    case Kind::number: {
        auto* line = qobject_cast<QLineEdit*>(&widget);
        if (line == nullptr || line->isReadOnly())
            return false;
        line->setFocus();
        line->selectAll();
        QTest::keyClicks(line, QStringLiteral("12"));
        return true;
    }
    case Kind::check:
    case Kind::radio:
        QTest::mouseClick(&widget, Qt::LeftButton, {}, QPoint(8, widget.height() / 2));
        return true;
    case Kind::combo: {
        auto& combo = dynamic_cast<QComboBox&>(widget);
        if (combo.count() == 0 || combo.isEditable() || combo.currentIndex() == combo.count() - 1)
            return false;
        combo.setFocus();
        QTest::keyClick(&combo, Qt::Key_End);
        return true;
    }
    default:
        return false;
    }
}

zel::Taken useControl(Control& control)
{
    if (auto* combo = dynamic_cast<CComboBox*>(&control))
        return combo->set(static_cast<double>(combo->GetCount() - 1));
    if (const auto* check = dynamic_cast<const CCheckBox*>(&control))
        return control.set(!check->GetCheck());
    if (control.kind() == Kind::radio)
        return control.set(true);
    return control.set(CString("12"));
}

}  // namespace

TEST_P(AllDialogs, TypingAndClickingDoesWhatAJournalDoes)
{
    // Once with the widgets and once by the controls' own channel, which journals use: after each step the forms are the same.
    std::vector<std::size_t> used;
    std::vector<std::string> drawn;
    atItsForm([&](FormWindow& form) {
        for (std::size_t i = 0; form.dialog() != nullptr && i < form.parts().parts.size(); ++i) {
            const Control& control = *form.parts().parts[i].view->control();
            if (!control.IsWindowVisible() || !control.IsWindowEnabled() || !useWidget(form, control))
                continue;
            settle();
            ASSERT_NE(form.dialog(), nullptr) << control.id();
            (void)window.hand().leave(const_cast<Control&>(control));
            settle();
            used.push_back(i);
            drawn.push_back(zel::printJson(zel::formToJson(*form.dialog())));
            EXPECT_EQ(joined(unlikeController(form)), "") << "after " << control.id();
            EXPECT_EQ(joined(clippedOrCovered(form)), "") << "after " << control.id();
        }
    });
    show(example("tower"));
    std::size_t step = 0;
    atItsForm([&](const FormWindow& form) {
        for (const std::size_t i : used) {
            Control& control = *form.dialog()->controls()[i];
            EXPECT_EQ(useControl(control).refusal, "") << control.id();
            settle();
            EXPECT_EQ(drawn[step], zel::printJson(zel::formToJson(*form.dialog()))) << "after " << control.id();
            ++step;
        }
    });
    EXPECT_EQ(step, used.size());
}

INSTANTIATE_TEST_SUITE_P(InTheTree, AllDialogs, ::testing::ValuesIn(allForms()),
                         [](const auto& each) { return std::to_string(each.index) + "_" + testName(each.param.name); });

TEST(AllDialogsAtTwiceTheScale, NothingIsClippedCoveredOrOutOfLine)
{
    // The scale is read when the application starts.
    QProcess twice;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(QStringLiteral("QT_SCALE_FACTOR"), QStringLiteral("2"));
    twice.setProcessEnvironment(environment);
    twice.setProcessChannelMode(QProcess::MergedChannels);
    twice.start(QCoreApplication::applicationFilePath(),
                {QStringLiteral("--gtest_filter=InTheTree/AllDialogs.NothingIsClippedCoveredOrOutOfLine/*"), QStringLiteral("--gtest_brief=1")});
    ASSERT_TRUE(twice.waitForFinished(120'000));
    EXPECT_EQ(twice.exitCode(), 0) << twice.readAll().toStdString();
}

TEST(PicturesOfForms, EveryDialogClassHasOneAndStandsInTheList)
{
    const std::filesystem::path docs = zel::test::sourceFolder() + "/docs";
    std::ifstream file(docs / "forms.md");
    std::stringstream list;
    list << file.rdbuf();
    std::vector<std::string> names = dialogClasses();
    for (const FormState& each : picturedForms())
        names.push_back(each.name);
    for (const std::string& name : names) {
        EXPECT_TRUE(std::filesystem::exists(docs / "forms" / (name + ".jsonl"))) << "write docs/forms/" << name << ".jsonl, which opens it";
        EXPECT_TRUE(std::filesystem::exists(docs / "forms" / (name + ".png"))) << "run scripts/screenshots";
        EXPECT_NE(list.str().find("](forms/" + name + ".png)"), std::string::npos) << name << " does not stand in docs/forms.md";
        const std::string dialogClass = name.substr(0, name.find('_'));
        EXPECT_NE(list.str().find("`" + dialogClass + "`"), std::string::npos) << dialogClass;
    }
}

using PicturedForms = DesktopTest;

TEST_F(PicturedForms, ShowTheClassThatTheyAreNamedBy)
{
    for (const FormState& each : picturedForms()) {
        show(example("tower"));
        EXPECT_TRUE(atForm(window, each, [&](const FormWindow& form) {
            EXPECT_EQ(form.dialog()->ClassName(), each.name.substr(0, each.name.find('_'))) << each.name;
        })) << each.name;
    }
}

}  // namespace desktop_test
