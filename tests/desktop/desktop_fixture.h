#pragma once

#include "contract/forms/find_control.h"
#include "desktop/forms/form_window.h"
#include "desktop/host/main_window.h"
#include "platform/modeldb/model_document.h"

#include <QTest>

#include <functional>
#include <memory>
#include <ostream>
#include <string>
#include <string_view>

#include <gtest/gtest.h>

/// For the reports of failed tests.
inline void PrintTo(const QString& text, std::ostream* out)
{
    *out << '"' << text.toStdString() << '"';
}

namespace desktop_test {

/// The model of an example file ("tower", "first"), in memory.
std::unique_ptr<zel::ModelDocument> example(const std::string& name);
/// The whole model as JSON text, for comparison.
std::string dumpOf(zel::ModelDocument& document);

/// Lets events be handled until nothing is left to do.
void settle();

/// Runs `step` on the modal window (a form or a message box) that comes up next. Arm it before the click that opens the window: the click returns
/// when all nested windows are answered. Fails the whole program when none comes up in ten seconds.
void whenModal(std::function<void(QWidget&)> step);

/// The main window with a model, and ways to its forms.
class DesktopTest : public ::testing::Test {
protected:
    DesktopTest();
    ~DesktopTest() override;

    /// Opens another model.
    void show(std::unique_ptr<zel::ModelDocument> document);
    /// The window of the open dialog of a class; fails the test if there is none.
    zel::desktop::FormWindow& form(std::string_view dialogClass);
    /// Opens a dialog that stays beside the views, and gives its window.
    zel::desktop::FormWindow& open(unsigned id, std::string_view dialogClass);

    zel::desktop::MainWindow window;
};

/// The control of a form by its name as journals name it, and the widget that stands for it.
zel::Control& control(zel::desktop::FormWindow& form, std::string_view name);
template <class Widget> Widget& widget(zel::desktop::FormWindow& form, std::string_view name)
{
    auto* view = form.viewOf(control(form, name));
    auto* found = view != nullptr ? dynamic_cast<Widget*>(&view->widget()) : nullptr;
    if (found == nullptr)
        throw std::runtime_error("no such widget: " + std::string(name));
    return *found;
}

/// Clicks a push button, or types a text into a field in place of what stands there.
void click(zel::desktop::FormWindow& form, std::string_view name);
void type(zel::desktop::FormWindow& form, std::string_view name, const QString& text);

}  // namespace desktop_test
