#include "desktop/desktop_fixture.h"

#include "command/command.h"
#include "contract/forms/grid_browser_ex.h"
#include "contract/forms/open_dialogs.h"
#include "journal/dialog_commands.h"
#include "journal/journal_player.h"
#include "journal/journal_recorder.h"

#include <QAbstractButton>
#include <QCheckBox>
#include <QComboBox>
#include <QLineEdit>
#include <QMessageBox>

#include <sstream>

// Widgets are clicked and typed into. The journal of it, played without a screen, must give what happened then, line by line.

namespace desktop_test {

using zel::desktop::FormWindow;

namespace {

/// Clicks a button of a message box.
void answerWith(QMessageBox::StandardButton answer)
{
    whenModal([answer](QWidget& modal) { QTest::mouseClick(dynamic_cast<QMessageBox&>(modal).button(answer), Qt::LeftButton); });
}

void chooseEntry(FormWindow& form, std::string_view name, int index)
{
    auto& combo = widget<QComboBox>(form, name);
    combo.setFocus();
    while (combo.currentIndex() != index)
        QTest::keyClick(&combo, combo.currentIndex() < index ? Qt::Key_Down : Qt::Key_Up);
    settle();
}

}  // namespace

class SameTranscript : public DesktopTest {
protected:
    /// Gives the journal of the steps.
    std::string record(const std::string& model, const std::function<void()>& steps)
    {
        show(example(model));
        std::ostringstream journal;
        std::ostringstream transcript;
        {
            zel::JournalRecorder recorder(window.document(), journal, {&transcript, {}});
            window.hand().setRecorder(&recorder);
            steps();
            settle();
            window.hand().setRecorder(nullptr);
            recorder.stop();
        }
        const std::string made = dumpOf(window.document());
        zel::closeAllDialogs();
        settle();
        show(example(model));
        std::istringstream script(journal.str());
        std::ostringstream replies;
        {
            zel::JournalPlayer player(window.document(), script, replies);
            player.play();
        }
        zel::closeAllDialogs();
        EXPECT_EQ(dumpOf(window.document()), made) << journal.str();
        EXPECT_EQ(replies.str(), transcript.str()) << journal.str();
        return journal.str();
    }
};

TEST_F(SameTranscript, OfLoadCasesThatAreAddedChangedAndTakenBack)
{
    const std::string journal = record("first", [this] {
        FormWindow& cases = open(D_CMD_MODEL_LOAD_LOADCASE, "CCMLoadCaseDlg");
        type(cases, "Name", "S1");
        chooseEntry(cases, "Type", 3);
        type(cases, "Self Weight Factor", "0.5");
        type(cases, "Description", "Snow & ice");
        click(cases, "Add");
        type(cases, "Name", "S1");  // the name is taken: a box says so
        answerWith(QMessageBox::Ok);
        click(cases, "Add");
        window.hand().undo(window.document());
        window.hand().redo(window.document());
        type(cases, "Name", "S2");
        QTest::keyClick(&widget<QLineEdit>(cases, "Name"), Qt::Key_Return);
        settle();
        cases.close();
    });
    EXPECT_NE(journal.find(R"({"do": "set", "control": "Name", "value": "S1"})"), std::string::npos) << journal;
    EXPECT_EQ(journal.find(R"("value": "S")"), std::string::npos) << journal;
}

TEST_F(SameTranscript, OfAGenerationInNestedModalDialogs)
{
    const std::string journal = record("tower", [this] {
        FormWindow& combinations = open(D_CMD_RESULT_LOADCOMB, "CCMLoadCombDlg");
        whenModal([](QWidget& modal) {
            auto& generation = dynamic_cast<FormWindow&>(modal);
            click(generation, "OK");
        });
        click(combinations, "Auto Generation...");
        whenModal([](QWidget& modal) { dynamic_cast<FormWindow&>(modal).close(); });
        click(combinations, "Auto Generation...");
        window.hand().undo(window.document());
    });
    EXPECT_NE(journal.find(R"({"do": "close"})"), std::string::npos) << journal;
}

TEST_F(SameTranscript, OfAModalFormFromAMenuAndTheDialogBesideItThatItAskedFor)
{
    const std::string journal = record("first", [this] {
        whenModal([this](QWidget& modal) {
            auto& factors = dynamic_cast<FormWindow&>(modal);
            click(factors, "...");  // the host opens the load cases beside it
            FormWindow& cases = form("CCMLoadCaseDlg");
            type(cases, "Name", "EX");
            chooseEntry(cases, "Type", 5);
            type(cases, "Self Weight Factor", "0");
            click(cases, "Add");
            cases.close();
            settle();
            QTest::keyClick(&factors, Qt::Key_Escape);
        });
        window.hand().open("CDgnGenSeisFactor");
    });
    EXPECT_NE(journal.find(R"("dialog": "CCMLoadCaseDlg")"), std::string::npos) << journal;
}

}  // namespace desktop_test
