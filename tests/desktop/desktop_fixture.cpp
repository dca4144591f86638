#include "desktop/desktop_fixture.h"

#include "build_paths.h"
#include "command/command.h"
#include "contract/forms/open_dialogs.h"
#include "desktop/forms/text.h"
#include "desktop/host/play_panel.h"
#include "journal/dialog_commands.h"
#include "platform/modeldb/model_json.h"

#include <QAbstractButton>
#include <QApplication>
#include <QLineEdit>
#include <QPointer>
#include <QTimer>

#include <fstream>
#include <nlohmann/json.hpp>
#include <sstream>

namespace desktop_test {

using zel::desktop::FormWindow;

namespace {

/// `former` is a guarded pointer: the next window may stand at the address of one that has gone. The panel beside a playing journal asks nothing.
void pollModal(const std::function<void(QWidget&)>& step, const QPointer<QWidget>& former, int tries)
{
    QTimer::singleShot(10, qApp, [=] {
        QWidget* modal = QApplication::activeModalWidget();
        const bool asks = modal != nullptr && dynamic_cast<zel::desktop::PlayPanel*>(modal) == nullptr;
        if (asks && modal != former && modal->isVisible())
            step(*modal);
        else if (tries > 0)
            pollModal(step, former, tries - 1);
        else
            qFatal("no modal window came up");
    });
}

}  // namespace

std::unique_ptr<zel::ModelDocument> example(const std::string& name)
{
    std::ifstream file(zel::test::sourceFolder() + "/examples/" + name + ".json");
    std::stringstream text;
    text << file.rdbuf();
    const zel::Json json = zel::parseJson(text.str());
    std::unique_ptr<zel::ModelDocument> document = zel::ModelDocument::inMemory(zel::unitsOfModelJson(json));
    zel::storeRows(*document, zel::rowsOfModelJson(json));
    return document;
}

std::string dumpOf(zel::ModelDocument& document)
{
    std::ostringstream text;
    zel::printModelJson(document, text);
    return text.str();
}

void settle()
{
    for (int i = 0; i < 3; ++i)
        QCoreApplication::processEvents();
}

void whenModal(std::function<void(QWidget&)> step)
{
    pollModal(step, QApplication::activeModalWidget(), 1000);
}

DesktopTest::DesktopTest()
{
    Init_ZEL_cmddll();
    window.show();
    (void)QTest::qWaitForWindowExposed(&window);
}

DesktopTest::~DesktopTest()
{
    zel::closeAllDialogs();
    settle();
}

void DesktopTest::show(std::unique_ptr<zel::ModelDocument> document)
{
    window.setDocument(std::move(document));
    settle();
}

FormWindow& DesktopTest::form(std::string_view dialogClass)
{
    settle();
    for (FormWindow* each : window.services().formWindows()) {
        if (each->dialog()->ClassName() == dialogClass)
            return *each;
    }
    throw std::runtime_error("no form is open of the class " + std::string(dialogClass));
}

FormWindow& DesktopTest::open(unsigned id, std::string_view dialogClass)
{
    window.hand().modeless(id);
    FormWindow& opened = form(dialogClass);
    (void)QTest::qWaitForWindowExposed(&opened);
    opened.activateWindow();
    (void)QTest::qWaitForWindowActive(&opened);
    return opened;
}

zel::Control& control(FormWindow& form, std::string_view name)
{
    const zel::FoundControl found = zel::findControl(*form.dialog(), name);
    if (found.control == nullptr)
        throw std::runtime_error(found.error);
    return *found.control;
}

void click(FormWindow& form, std::string_view name)
{
    QTest::mouseClick(&widget<QAbstractButton>(form, name), Qt::LeftButton);
    settle();
}

void type(FormWindow& form, std::string_view name, const QString& text)
{
    auto& line = widget<QLineEdit>(form, name);
    line.setFocus();
    line.selectAll();
    QTest::keyClicks(&line, text);
    settle();
}

}  // namespace desktop_test
