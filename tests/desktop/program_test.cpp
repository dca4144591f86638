#include "desktop/files_fixture.h"

#include "build_paths.h"

#include <QImage>
#include <QProcess>
#include <QProcessEnvironment>

// The program itself, as scripts run it.

namespace desktop_test {

namespace {

struct Ran {
    int code = -1;
    QString out;
    QString error;
};

Ran run(const char* program, const QStringList& arguments)
{
    QProcess process;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(QStringLiteral("QT_QPA_PLATFORM"), QStringLiteral("offscreen"));
    process.setProcessEnvironment(environment);
    process.start(QString::fromStdString(zel::test::programFolder() + "/") + QString::fromLatin1(program), arguments);
    EXPECT_TRUE(process.waitForFinished(20'000)) << program << " does not end";
    return {process.exitStatus() == QProcess::NormalExit ? process.exitCode() : -1, QString::fromUtf8(process.readAllStandardOutput()),
            QString::fromUtf8(process.readAllStandardError())};
}

}  // namespace

class Program : public ::testing::Test {
protected:
    Program()
    {
        EXPECT_EQ(run("zel", {"load", QString::fromStdString(zel::test::sourceFolder() + "/examples/tower.json"), path("m.qvx")}).code, 0);
        EXPECT_EQ(run("zel", {"load", QString::fromStdString(zel::test::sourceFolder() + "/examples/tower.json"), path("copy.qvx")}).code, 0);
    }

    [[nodiscard]] QString path(const char* name) const { return folder.filePath(QString::fromLatin1(name)); }
    QString write(const char* name, const QByteArray& text)
    {
        QFile file(path(name));
        EXPECT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(text);
        return file.fileName();
    }
    /// Plays a journal on the model and takes a picture at its end.
    Ran play(const QByteArray& journal, const QStringList& more = {})
    {
        return run("zel-desktop", QStringList{path("m.qvx"), "--journal", write("j.jsonl", journal), "--screenshot", path("p.png")} + more);
    }

    QTemporaryDir folder;
};

const char* const generation = R"({"do": "modeless", "id": "D_CMD_RESULT_LOADCOMB"}
{"do": "press", "control": "Auto Generation..."}
{"do": "press", "control": "OK"}
)";

TEST_F(Program, PlaysAJournalInTheWindowAsThePlayerWithoutOneDoes)
{
    const Ran window = play(generation);
    EXPECT_EQ(window.code, 0) << window.error.toStdString();
    const Ran plain = run("zel", {"play", path("copy.qvx"), "--script", path("j.jsonl")});
    EXPECT_EQ(plain.code, 0);
    EXPECT_EQ(window.out, plain.out);
    EXPECT_EQ(run("zel", {"dump", path("m.qvx")}).out, run("zel", {"dump", path("copy.qvx")}).out);
    EXPECT_FALSE(QImage(path("p.png")).isNull());
    EXPECT_FALSE(QFile::exists(path("m.qvx-wal"))) << "the model file was not closed";
}

TEST_F(Program, TakesThePictureInsideTheModalDialogThatIsOpenAtTheEnd)
{
    const Ran window = play(QByteArray(generation).left(QByteArray(generation).lastIndexOf("{")), {"--front"});
    EXPECT_EQ(window.code, 0) << window.error.toStdString();
    const QImage picture(path("p.png"));
    EXPECT_FALSE(picture.isNull());
    EXPECT_LT(picture.width(), 1000) << "it shows more than the dialog";
    EXPECT_FALSE(QFile::exists(path("m.qvx-wal")));
    EXPECT_EQ(run("zel", {"dump", path("m.qvx")}).out, run("zel", {"dump", path("copy.qvx")}).out) << "the dialog was not cancelled";
}

TEST_F(Program, ACommandThatFailsIsNamedWithItsLine)
{
    const Ran window = play("# first\n{\"do\": \"press\", \"control\": \"OK\"}\n{\"do\": \"dialogs\"}\n");
    EXPECT_EQ(window.code, 2);
    EXPECT_TRUE(window.error.contains("j.jsonl, line 2: no dialog is open")) << window.error.toStdString();
    EXPECT_EQ(window.out.count('\n'), 2);
    EXPECT_TRUE(QFile::exists(path("p.png")));
}

TEST_F(Program, FilesThatCantBeReadOrWrittenAreNamed)
{
    const Ran noJournal = run("zel-desktop", {path("m.qvx"), "--journal", path("none.jsonl"), "--screenshot", path("p.png")});
    EXPECT_EQ(noJournal.code, 2);
    EXPECT_TRUE(noJournal.error.contains("none.jsonl\" can't be read")) << noJournal.error.toStdString();
    const Ran noModel = run("zel-desktop", {path("none.qvx"), "--screenshot", path("p.png")});
    EXPECT_EQ(noModel.code, 2);
    EXPECT_TRUE(noModel.error.contains("none.qvx\" does not exist")) << noModel.error.toStdString();
    const Ran noPicture = run("zel-desktop", {path("m.qvx"), "--screenshot", path("no/p.png")});
    EXPECT_EQ(noPicture.code, 2);
    EXPECT_TRUE(noPicture.error.contains("no/p.png\" can't be written")) << noPicture.error.toStdString();
    const Ran noRecord = run("zel-desktop", {path("m.qvx"), "--record", path("no/r.jsonl"), "--screenshot", path("p.png")});
    EXPECT_EQ(noRecord.code, 2);
    EXPECT_TRUE(noRecord.error.contains("no/r.jsonl\" can't be written")) << noRecord.error.toStdString();
}

TEST_F(Program, RecordsFromTheStart)
{
    EXPECT_EQ(run("zel-desktop", {path("m.qvx"), "--record", path("r.jsonl"), "--screenshot", path("p.png")}).code, 0);
    QFile journal(path("r.jsonl"));
    ASSERT_TRUE(journal.open(QIODevice::ReadOnly));
    EXPECT_TRUE(journal.readAll().contains(", model m.qvx"));
}

}  // namespace desktop_test
