#include "desktop/files_fixture.h"

#include "build_paths.h"
#include "command/command.h"
#include "contract/tables/static_load_case_table.h"
#include "desktop/forms/text.h"
#include "desktop/host/model_exchange.h"
#include "desktop/host/recent_files.h"
#include "modeldb/full_disk.h"

#include <QApplication>
#include <QComboBox>
#include <QDragEnterEvent>
#include <QDropEvent>
#include <QMimeData>
#include <QProcess>

namespace desktop_test {

using zel::ModelDocument;
using zel::desktop::fromQt;

namespace recentFiles = zel::desktop::recentFiles;

namespace {

T_STLD_D loadCase(const char* name)
{
    T_STLD_D record;
    record.name = name;
    return record;
}

QString dumpOfFile(const QString& path)
{
    return QString::fromStdString(dumpOf(*ModelDocument::open(fromQt(path))));
}

}  // namespace

TEST_F(FilesWindow, ACalmStartIsAnEmptyModelInNoFile)
{
    EXPECT_EQ(window.windowTitle(), "Untitled - not in a file yet - ZEL");
    EXPECT_TRUE(window.document().GetPathName().empty());
    EXPECT_NO_THROW(action(window, "File", "Save As..."));
}

TEST_F(FilesWindow, AnOpenedFileIsInTheTitleAndAmongTheRecentOnes)
{
    const QString file = modelFile("tower.qvx", "tower");
    EXPECT_TRUE(window.files().open(file));
    EXPECT_EQ(window.windowTitle(), "tower.qvx - All changes saved - ZEL");
    ASSERT_FALSE(recentFiles::list().isEmpty());
    EXPECT_EQ(recentFiles::list().first(), file);
    EXPECT_NO_THROW(action(window, "File", "Save a Copy As..."));
}

TEST_F(FilesWindow, AChangeIsInTheFileAtOnce)
{
    const QString file = modelFile("model.qvx");
    window.files().open(file);
    CDataStld().Add(loadCase("NEW"));
    window.setDocument(ModelDocument::inMemory());  // without any saving
    EXPECT_TRUE(dumpOfFile(file).contains("\"NEW\""));
}

TEST_F(FilesWindow, OpeningAnotherModelClosesTheFormsOfTheFormer)
{
    window.files().open(modelFile("a.qvx"));
    open(D_CMD_MODEL_LOAD_LOADCASE, "CCMLoadCaseDlg");
    EXPECT_TRUE(window.files().open(modelFile("b.qvx")));
    settle();
    EXPECT_TRUE(window.services().formWindows().empty());
}

TEST_F(FilesWindow, AMissingFileIsToldWithAWayOutOfTheRecentOnes)
{
    const QString file = modelFile("gone.qvx");
    window.files().open(file);
    window.setDocument(ModelDocument::inMemory());
    QFile::remove(file);
    QStringList buttons;
    QString reason;
    whenModal([&](QWidget& box) {
        buttons = buttonsOf(box);
        reason = dynamic_cast<QMessageBox&>(box).informativeText();
        clickButton(box, "Remove from Recent");
    });
    EXPECT_FALSE(window.files().open(file));
    EXPECT_EQ(buttons, (QStringList{"Cancel", "Open Another...", "Remove from Recent"}));
    EXPECT_TRUE(reason.contains(file)) << reason.toStdString();
    EXPECT_FALSE(recentFiles::list().contains(file));
}

TEST_F(FilesWindow, AMissingFileIsMarkedInTheListOfRecentOnes)
{
    recentFiles::clear();
    const QString file = modelFile("here.qvx");
    window.files().open(file);
    const auto firstEntry = [&] {
        QMenu* recent = action(window, "File", "Open Recent").menu();
        Q_EMIT recent->aboutToShow();
        return recent->actions().first()->text();
    };
    EXPECT_TRUE(firstEntry().contains("here.qvx"));
    EXPECT_FALSE(firstEntry().contains("(missing)"));
    window.setDocument(ModelDocument::inMemory());
    QFile::remove(file);
    EXPECT_TRUE(firstEntry().contains("(missing)"));
}

TEST_F(FilesWindow, TenFilesAreRecentTheLastOpenedFirst)
{
    recentFiles::clear();
    for (int i = 0; i < 12; ++i)
        recentFiles::add(path(("m" + std::to_string(i) + ".qvx").c_str()));
    recentFiles::add(path("m5.qvx"));
    EXPECT_EQ(recentFiles::list().size(), 10);
    EXPECT_EQ(recentFiles::list().first(), path("m5.qvx"));
    EXPECT_EQ(recentFiles::list().count(path("m5.qvx")), 1);
}

TEST_F(FilesWindow, AFileThatIsNoModelLeavesTheOpenModelAndItsForms)
{
    window.files().open(modelFile("model.qvx"));
    open(D_CMD_MODEL_LOAD_LOADCASE, "CCMLoadCaseDlg");
    QFile text(path("text.qvx"));
    ASSERT_TRUE(text.open(QIODevice::WriteOnly));
    text.write("no model");
    text.close();
    whenModal([](QWidget& box) { clickButton(box, "Cancel"); });
    EXPECT_FALSE(window.files().open(path("text.qvx")));
    EXPECT_EQ(window.windowTitle(), "model.qvx - All changes saved - ZEL");
    EXPECT_EQ(window.services().formWindows().size(), 1U);
}

TEST_F(FilesWindow, ALockedFileCanBeTriedAgain)
{
    const QString file = modelFile("locked.qvx");
    auto elsewhere = std::make_unique<zel::ModelFile>(fromQt(file), zel::ModelFile::Access::write);
    whenModal([&](QWidget& box) {
        EXPECT_EQ(buttonsOf(box), (QStringList{"Cancel", "Open Another...", "Open Read-Only", "Try Again"}));
        elsewhere.reset();
        clickButton(box, "Try Again");
    });
    EXPECT_TRUE(window.files().open(file));
    EXPECT_EQ(window.windowTitle(), "locked.qvx - All changes saved - ZEL");
}

TEST_F(FilesWindow, AReadOnlyFileIsOpenedAsACopyThatCanBeWritten)
{
    const QString file = modelFile("fixed.qvx");
    const QString dump = dumpOfFile(file);
    QFile::setPermissions(file, QFile::ReadOwner);
    whenModal([&](QWidget& box) {
        EXPECT_EQ(buttonsOf(box), (QStringList{"Cancel", "Open Another...", "Open Read-Only", "Open a Copy..."}));
        chooseFile(path("mine.qvx"));
        clickButton(box, "Open a Copy...");
    });
    EXPECT_TRUE(window.files().open(file));
    EXPECT_EQ(window.windowTitle(), "mine.qvx - All changes saved - ZEL");
    EXPECT_EQ(QString::fromStdString(dumpOf(window.document())), dump);
    CDataStld().Add(loadCase("NEW"));
    window.setDocument(ModelDocument::inMemory());
    EXPECT_TRUE(dumpOfFile(path("mine.qvx")).contains("NEW"));
}

TEST_F(FilesWindow, AFileThatAnotherProgramHasOpenIsReadWithoutIt)
{
    const QString file = modelFile("locked.qvx");
    const zel::ModelFile elsewhere(fromQt(file), zel::ModelFile::Access::write);
    whenModal([&](QWidget& box) { clickButton(box, "Open Read-Only"); });
    EXPECT_TRUE(window.files().open(file));
    EXPECT_EQ(window.windowTitle(), "locked.qvx - Read-only - ZEL");
    EXPECT_TRUE(window.document().isReadOnly());
}

TEST_F(FilesWindow, ACopyThatCantBeWrittenIsRefused)
{
    EXPECT_THROW(zel::desktop::copyModelFile(modelFile("model.qvx"), path("no/folder/mine.qvx")), zel::FileRefusal);
}

TEST_F(FilesWindow, AModelInMemoryIsSavedAndGoneOnWith)
{
    CDataStld().Add(loadCase("FIRST"));
    chooseFile(path("made"));
    action(window, "File", "Save As...").trigger();
    EXPECT_EQ(window.windowTitle(), "made.qvx - All changes saved - ZEL");
    CDataStld().Add(loadCase("SECOND"));
    window.setDocument(ModelDocument::inMemory());
    EXPECT_TRUE(dumpOfFile(path("made.qvx")).contains("SECOND"));
}

TEST_F(FilesWindow, ACopyLeavesTheModelInItsOwnFile)
{
    window.files().open(modelFile("model.qvx"));
    chooseFile(path("copy.qvx"));
    action(window, "File", "Save a Copy As...").trigger();
    CDataStld().Add(loadCase("LATER"));
    EXPECT_EQ(window.windowTitle(), "model.qvx - All changes saved - ZEL");
    window.setDocument(ModelDocument::inMemory());
    EXPECT_FALSE(dumpOfFile(path("copy.qvx")).contains("LATER"));
    EXPECT_TRUE(dumpOfFile(path("model.qvx")).contains("LATER"));
}

TEST_F(FilesWindow, AModelInNoFileIsNotLostWithoutAQuestion)
{
    EXPECT_TRUE(window.files().mayLeave()) << "nothing was made in it";
    CDataStld().Add(loadCase("FIRST"));
    whenModal([](QWidget& box) { clickButton(box, "Cancel"); });
    EXPECT_FALSE(window.files().mayLeave());
    whenModal([](QWidget& box) { clickButton(box, "Don't Save"); });
    EXPECT_TRUE(window.files().mayLeave());
}

TEST_F(FilesWindow, RevertGoesBackToTheOpenedStateAfterAQuestion)
{
    const QString file = modelFile("model.qvx");
    const QString opened = dumpOfFile(file);
    window.files().open(file);
    CDataStld().Add(loadCase("A"));
    CDataStld().Add(loadCase("B"));
    whenModal([](QWidget& box) { clickButton(box, "Cancel"); });
    action(window, "File", "Revert to Opened...").trigger();
    EXPECT_EQ(window.document().undoCount(), 2U);
    whenModal([](QWidget& box) {
        EXPECT_TRUE(dynamic_cast<QMessageBox&>(box).informativeText().startsWith("2 changes"));
        clickButton(box, "Revert");
    });
    action(window, "File", "Revert to Opened...").trigger();
    EXPECT_FALSE(action(window, "File", "Revert to Opened...").isEnabled());
    EXPECT_TRUE(action(window, "Edit", "Redo Add static load case \"A\"").isEnabled());
    window.setDocument(ModelDocument::inMemory());
    EXPECT_EQ(dumpOfFile(file), opened);
}

TEST_F(FilesWindow, ExportAndImportGiveTheSameModel)
{
    window.files().open(modelFile("tower.qvx", "tower"));
    const std::string dump = dumpOf(window.document());
    chooseFile(path("tower.json"));
    action(window, "File", "Export Model JSON...").trigger();
    ASSERT_TRUE(QFile::exists(path("tower.json")));
    whenModal([&](QWidget& first) {
        chooseFile(path("imported.qvx"));
        answerFile(first, path("tower.json"));
    });
    action(window, "File", "Import Model JSON...").trigger();
    EXPECT_EQ(window.windowTitle(), "imported.qvx - All changes saved - ZEL");
    EXPECT_EQ(dumpOf(window.document()), dump);
}

TEST_F(FilesWindow, AFaultInModelJsonIsToldWithItsPathAndNothingIsWritten)
{
    QFile json(path("bad.json"));
    ASSERT_TRUE(json.open(QIODevice::WriteOnly));
    json.write(R"({"format": "zel-model", "version": 1, "STLD": [{"name": "DL"}, {"name": 7}]})");
    json.close();
    QString reason;
    whenModal([&](QWidget& first) {
        whenModal([&](QWidget& second) {
            whenModal([&](QWidget& box) {
                reason = dynamic_cast<QMessageBox&>(box).informativeText();
                clickButton(box, "OK");
            });
            answerFile(second, path("bad.qvx"));
        });
        answerFile(first, path("bad.json"));
    });
    action(window, "File", "Import Model JSON...").trigger();
    EXPECT_TRUE(reason.contains("STLD[1].name")) << reason.toStdString();
    EXPECT_TRUE(reason.endsWith("Nothing was written.")) << reason.toStdString();
    EXPECT_FALSE(QFile::exists(path("bad.qvx")));
    EXPECT_EQ(window.windowTitle(), "Untitled - not in a file yet - ZEL");
}

TEST_F(FilesWindow, ANewModelIsAFileFromTheStartInTheUnitsThatWereChosen)
{
    whenModal([&](QWidget& modal) {
        modal.findChild<QLineEdit*>()->setText(path("new"));
        const QList<QComboBox*> units = modal.findChildren<QComboBox*>();
        units.at(0)->setCurrentIndex(T_UNIT_INDEX::M);
        units.at(1)->setCurrentIndex(T_UNIT_INDEX::TON);
        QTest::keyClick(modal.findChild<QLineEdit*>(), Qt::Key_Return);
    });
    action(window, "File", "New...").trigger();
    EXPECT_EQ(window.windowTitle(), "new.qvx - All changes saved - ZEL");
    EXPECT_EQ(window.document().units(), (T_UNIT_INDEX{T_UNIT_INDEX::M, T_UNIT_INDEX::TON}));
    EXPECT_TRUE(QFile::exists(path("new.qvx")));
}

TEST_F(FilesWindow, ADroppedModelFileIsOpened)
{
    QMimeData data;
    data.setUrls({QUrl::fromLocalFile(modelFile("dropped.qvx"))});
    QDragEnterEvent enter({10, 10}, Qt::CopyAction, &data, Qt::LeftButton, {});
    QApplication::sendEvent(&window, &enter);
    EXPECT_TRUE(enter.isAccepted());
    QDropEvent drop(QPointF(10, 10), Qt::CopyAction, &data, Qt::LeftButton, {});
    QApplication::sendEvent(&window, &drop);
    settle();
    EXPECT_EQ(window.windowTitle(), "dropped.qvx - All changes saved - ZEL");
}

TEST_F(FilesWindow, AWriteThatTheFileRefusesIsToldWithItsName)
{
    const QString file = modelFile("model.qvx");
    window.files().open(file);
    QString text;
    {
        const zel::test::FullDisk full(4096);
        whenModal([&](QWidget& box) {
            text = dynamic_cast<QMessageBox&>(box).text();
            box.close();
        });
        EXPECT_EQ(CDataStld().Add(loadCase("NEW")), 0);
    }
    EXPECT_TRUE(text.contains(file)) << text.toStdString();
    EXPECT_EQ(window.document().undoCount(), 0U);
}

TEST_F(FilesWindow, WhileAJournalPlaysTheModelStays)
{
    const QString first = modelFile("first.qvx");
    window.files().open(first);
    window.hand().setLocked(true);
    EXPECT_FALSE(window.files().open(modelFile("second.qvx")));
    EXPECT_FALSE(window.files().mayLeave());
    window.hand().setLocked(false);
    EXPECT_EQ(window.windowTitle(), "first.qvx - All changes saved - ZEL");
}

TEST_F(FilesWindow, WhereNobodyCanBeAskedAMissingModelIsASentenceAndStatusTwo)
{
    QProcess program;
    program.start(QString::fromStdString(zel::test::programFolder() + "/zel-desktop"), {path("none.qvx"), "--screenshot", path("none.png")});
    ASSERT_TRUE(program.waitForFinished());
    EXPECT_EQ(program.exitCode(), 2);
    EXPECT_TRUE(program.readAllStandardError().contains("none.qvx\" does not exist."));
    EXPECT_FALSE(QFile::exists(path("none.png")));
}

}  // namespace desktop_test
