#include "desktop/form_catalogue.h"
#include "desktop/sample_dialogs.h"

#include <QAbstractButton>
#include <QAccessible>
#include <QLabel>
#include <QToolButton>

namespace desktop_test {

using zel::desktop::FormWindow;

using AccessibleForms = DesktopTest;

namespace {

std::string nameOf(const FormWindow& form, const zel::Control& control)
{
    return form.viewOf(control)->widget().accessibleName().toStdString();
}

}  // namespace

TEST_F(AccessibleForms, AFieldIsCalledByItsLabelWithoutMarks)
{
    auto* dialog = new SampleForm;
    const FormWindow& form = showSample(window, *dialog);
    EXPECT_EQ(nameOf(form, dialog->name), "Name");
    EXPECT_EQ(nameOf(form, dialog->searchButton), "Search ...") << "the button is said with its field";
    EXPECT_EQ(nameOf(form, dialog->length), "Limits") << "a field without label is said by its frame";
    const QAccessibleInterface* field = QAccessible::queryAccessibleInterface(&form.viewOf(dialog->name)->widget());
    ASSERT_NE(field, nullptr);
    EXPECT_EQ(field->text(QAccessible::Name), "Name");
    EXPECT_EQ(field->role(), QAccessible::EditableText);
}

TEST_F(AccessibleForms, LabelsAreTheBuddiesOfTheirFields)
{
    auto* dialog = new SampleForm;
    const FormWindow& form = showSample(window, *dialog);
    std::size_t labels = 0;
    for (const auto& part : form.parts().parts) {
        if (part.label == nullptr)
            continue;
        ++labels;
        EXPECT_EQ(part.label->buddy(), part.view->focusWidget()) << part.label->text().toStdString();
    }
    EXPECT_GE(labels, 6U);
}

TEST_F(AccessibleForms, ArrowsSayWhichWayTheyGo)
{
    auto* dialog = new SampleForm;
    const FormWindow& form = showSample(window, *dialog);
    const QList<QToolButton*> arrows = form.viewOf(dialog->countSpin)->widget().findChildren<QToolButton*>();
    ASSERT_EQ(arrows.size(), 2);
    EXPECT_EQ(arrows[0]->accessibleName(), "Up");
    EXPECT_EQ(arrows[1]->accessibleName(), "Down");

    show(example("tower"));
    const std::vector<FormState> pictured = picturedForms();
    const auto items = std::find_if(pictured.begin(), pictured.end(), [](const FormState& each) { return each.name == "CCMEnvlItemDlg"; });
    ASSERT_NE(items, pictured.end());
    ASSERT_TRUE(atForm(window, *items, [](FormWindow& envelope) {
        EXPECT_EQ(nameOf(envelope, control(envelope, "moveRight")), "Move Right");
        EXPECT_EQ(nameOf(envelope, control(envelope, "moveLeft")), "Move Left");
        EXPECT_EQ(nameOf(envelope, control(envelope, "candidates")), "Load Case & Combination List") << "a list without label is said by its frame";
    }));
}

}  // namespace desktop_test
