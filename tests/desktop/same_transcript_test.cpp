#include "desktop/desktop_fixture.h"

#include "command/command.h"
#include "contract/forms/grid_browser_ex.h"
#include "contract/forms/open_dialogs.h"
#include "journal/dialog_commands.h"
#include "journal/journal_player.h"
#include "journal/journal_recorder.h"

#include <QAbstractButton>
#include <QAbstractItemView>
#include <QCheckBox>
#include <QComboBox>
#include <QEventLoop>
#include <QFileDialog>
#include <QLineEdit>
#include <QMessageBox>
#include <QTimer>

#include <algorithm>
#include <random>
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

/// Somebody who clicks and types at random, in whatever takes input.
class Clicker {
public:
    Clicker(zel::desktop::MainWindow& window, unsigned seed, int steps) : m_window(window), m_random(seed), m_left(steps) {}

    void run()
    {
        next();
        m_loop.exec();
    }

private:
    int below(int count) { return static_cast<int>(m_random() % static_cast<unsigned>(count)); }

    /// Whether a modal dialog has ended whose opener is still to go on, or goes on now.
    static bool isOverSoon()
    {
        const std::vector<CDialog*>& open = zel::openDialogs();
        return std::any_of(open.begin(), open.end(), [](const CDialog* dialog) { return dialog->isModal() && dialog->hasEnded(); });
    }

    /// The next step is due before this one is done, which may open a dialog and wait in it.
    void next()
    {
        QTimer::singleShot(0, &m_loop, [this] {
            QWidget* modal = QApplication::activeModalWidget();
            if (isOverSoon()) {  // the window system would let no input through
                next();
                return;
            }
            if (--m_left < 0 && modal == nullptr) {
                m_loop.quit();
                return;
            }
            next();
            if (auto* box = qobject_cast<QMessageBox*>(modal))
                QTest::mouseClick(box->buttons().at(below(static_cast<int>(box->buttons().size()))), Qt::LeftButton);
            else if (auto* file = qobject_cast<QFileDialog*>(modal))
                file->reject();
            else
                stepIn(dynamic_cast<FormWindow*>(modal));
        });
    }

    void stepIn(FormWindow* form)
    {
        const std::vector<FormWindow*> forms = m_window.services().formWindows();
        if (m_left < 0 || (form != nullptr && below(25) == 0)) {
            form->close();
            return;
        }
        if (form == nullptr && (forms.empty() || below(30) == 0)) {
            m_window.hand().modeless(below(2) == 0 ? D_CMD_MODEL_LOAD_LOADCASE : D_CMD_RESULT_LOADCOMB);
            return;
        }
        if (form == nullptr)
            form = forms[static_cast<std::size_t>(below(static_cast<int>(forms.size())))];
        form->activateWindow();
        const std::vector<zel::Control*> controls = form->dialog()->controls();
        zel::desktop::ControlView* view = form->viewOf(*controls[static_cast<std::size_t>(below(static_cast<int>(controls.size())))]);
        if (view != nullptr && view->widget().isVisible() && view->widget().isEnabled())
            act(view->widget());
    }

    void act(QWidget& widget)
    {
        static const QStringList texts{"DL", "1", "-0.5", "abc", "2*3", "N1", "N2", "0"};
        if (auto* button = qobject_cast<QAbstractButton*>(&widget)) {
            QTest::mouseClick(button, Qt::LeftButton);
        } else if (auto* line = qobject_cast<QLineEdit*>(&widget)) {
            QTest::mouseClick(line, Qt::LeftButton);
            line->selectAll();
            QTest::keyClicks(line, texts[below(static_cast<int>(texts.size()))]);
        } else if (auto* combo = qobject_cast<QComboBox*>(&widget)) {
            QTest::keyClick(combo, below(2) == 0 ? Qt::Key_Down : Qt::Key_Up);
        } else if (auto* table = qobject_cast<QAbstractItemView*>(&widget)) {
            inTable(*table, texts[below(static_cast<int>(texts.size()))]);
        }
    }

    void inTable(QAbstractItemView& table, const QString& text)
    {
        const QAbstractItemModel& model = *table.model();
        if (model.rowCount() == 0 || model.columnCount() == 0)
            return;
        const QModelIndex index = model.index(below(std::min(model.rowCount(), 8)), below(model.columnCount()));
        const QRect place = table.visualRect(index);
        if (!place.isEmpty() && table.viewport()->rect().contains(place.center()))
            QTest::mouseClick(table.viewport(), Qt::LeftButton, {}, place.center());
        if (below(2) == 0 || QApplication::focusWidget() == nullptr)
            return;
        QTest::keyClicks(QApplication::focusWidget(), text);
        static const std::vector<Qt::Key> ends{Qt::Key_Return, Qt::Key_Escape, Qt::Key_Tab};
        if (below(4) > 0 && QApplication::focusWidget() != nullptr)
            QTest::keyClick(QApplication::focusWidget(), ends[static_cast<std::size_t>(below(3))]);
    }

    zel::desktop::MainWindow& m_window;
    std::mt19937 m_random;
    QEventLoop m_loop;
    int m_left;
};

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
        EXPECT_EQ(dumpOf(window.document()), made) << journal.str();  // before the dialogs close: that may write a row
        zel::closeAllDialogs();
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

TEST_F(SameTranscript, OfWhateverIsClickedAndTyped)
{
    for (const unsigned seed : {1U, 2U, 3U, 4U}) {
        SCOPED_TRACE(seed);
        const std::string journal = record("tower", [&] { Clicker(window, seed, 250).run(); });
        EXPECT_GT(std::count(journal.begin(), journal.end(), '\n'), 60) << journal;
        if (HasFailure())
            return;
    }
}

}  // namespace desktop_test
