#include "desktop/form_catalogue.h"

#include "build_paths.h"
#include "command/command.h"
#include "command/dialog_table.h"
#include "contract/forms/open_dialogs.h"
#include "desktop/desktop_fixture.h"
#include "journal/dialog_commands.h"
#include "journal/journal_player.h"

#include <algorithm>
#include <cctype>
#include <filesystem>
#include <fstream>
#include <ostream>
#include <sstream>

namespace desktop_test {

using zel::desktop::FormWindow;

void PrintTo(const FormState& state, std::ostream* out)
{
    *out << state.name;
}

namespace {

/// Whether the journal opens a dialog, or asks for the record to open it on. Of a class that is not built yet an id or number opens nothing.
bool isBuilt(zel::ModelDocument& document, const std::string& journal)
{
    std::istringstream script(journal);
    std::ostringstream transcript;
    zel::JournalPlayer(document, script, transcript).play();
    zel::closeAllDialogs();
    return transcript.str().find(R"("event": "opened")") != std::string::npos || transcript.str().find("\"error\"") != std::string::npos;
}

}  // namespace

std::vector<FormState> openedForms()
{
    std::vector<FormState> forms;
    for (const zel::ModelessDialog& dialog : zel::modelessDialogs)
        forms.push_back({std::string(dialog.dialogClass), R"({"do": "modeless", "id": ")" + std::string(dialog.name) + "\"}\n"});
    for (const zel::ModalCommand& command : zel::modalCommands) {
        if (!command.dialogClass.empty())
            forms.push_back({std::string(command.dialogClass), R"({"do": "modal", "number": )" + std::to_string(command.number) + "}\n"});
    }
    Init_ZEL_cmddll();
    for (const std::string_view name : zel::exportedDialogs())
        forms.push_back({std::string(name), R"({"do": "open", "class": ")" + std::string(name) + "\"}\n"});
    const std::unique_ptr<zel::ModelDocument> document = example("tower");
    std::erase_if(forms, [&](const FormState& form) { return !isBuilt(*document, form.journal); });
    return forms;
}

std::vector<FormState> picturedForms()
{
    std::vector<FormState> forms;
    for (const auto& file : std::filesystem::directory_iterator(zel::test::sourceFolder() + "/docs/forms")) {
        if (file.path().extension() != ".jsonl")
            continue;
        std::ifstream stream(file.path());
        std::stringstream journal;
        journal << stream.rdbuf();
        forms.push_back({file.path().stem().string(), journal.str()});
    }
    std::sort(forms.begin(), forms.end(), [](const FormState& a, const FormState& b) { return a.name < b.name; });
    return forms;
}

std::vector<FormState> allForms()
{
    std::vector<FormState> forms = openedForms();
    for (FormState& each : picturedForms()) {
        each.name += ", pictured";
        forms.push_back(std::move(each));
    }
    return forms;
}

std::vector<std::string> dialogClasses()
{
    std::vector<std::string> classes;
    for (const FormState& each : openedForms())
        classes.push_back(each.name);
    std::sort(classes.begin(), classes.end());
    classes.erase(std::unique(classes.begin(), classes.end()), classes.end());
    return classes;
}

bool atForm(zel::desktop::MainWindow& window, const FormState& state, const std::function<void(FormWindow&)>& step)
{
    std::istringstream script(state.journal);
    std::ostringstream transcript;
    bool found = false;
    zel::JournalOptions options;
    options.watching = &window.services();
    options.pause = [&] {
        QCoreApplication::processEvents();
        if (found || script.peek() != std::istringstream::traits_type::eof())
            return;
        const CDialog* front = zel::activeDialog();
        FormWindow* form = front != nullptr ? window.services().windowOf(*front) : nullptr;
        if (form == nullptr)
            return;
        found = true;
        (void)QTest::qWaitForWindowExposed(form);
        form->activateWindow();
        (void)QTest::qWaitForWindowActive(form);
        settle();
        step(*form);
    };
    zel::JournalPlayer player(window.document(), script, transcript, options);
    player.play();
    zel::closeAllDialogs();
    settle();
    EXPECT_TRUE(!found || transcript.str().find("\"error\"") == std::string::npos) << transcript.str();
    return found;
}

std::string testName(const std::string& text)
{
    std::string name;
    for (const char each : text)
        name += std::isalnum(static_cast<unsigned char>(each)) != 0 ? each : '_';
    return name;
}

}  // namespace desktop_test
