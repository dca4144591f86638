#include "desktop/files_fixture.h"

#include "build_paths.h"

#include <QFileInfo>
#include <QProcess>
#include <QProcessEnvironment>

#include <chrono>
#include <random>
#include <thread>

#include <nlohmann/json.hpp>

namespace desktop_test {

namespace {

constexpr int rounds = 6;
constexpr int actions = 400;

/// A journal of a user who adds one load case after the other in the form, so that the table tells how far it came.
QByteArray editingJournal()
{
    QByteArray journal = R"({"do": "modeless", "id": "D_CMD_MODEL_LOAD_LOADCASE"})"
                         "\n"
                         R"json({"do": "set", "control": "Type", "value": "Dead Load (D)"})json"
                         "\n"
                         R"({"do": "set", "control": "Self Weight Factor", "value": "0"})"
                         "\n";
    for (int k = 1; k <= actions; ++k) {
        journal += R"({"do": "set", "control": "Name", "value": "A)" + QByteArray::number(k) + "\"}\n";
        journal += R"({"do": "press", "control": "Add"})"
                   "\n";
    }
    return journal;
}

QProcessEnvironment offScreen(const QString& folder)
{
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(QStringLiteral("QT_QPA_PLATFORM"), QStringLiteral("offscreen"));
    environment.insert(QStringLiteral("XDG_CONFIG_HOME"), folder);
    return environment;
}

QString program(const char* name)
{
    return QString::fromStdString(zel::test::programFolder() + "/") + QString::fromLatin1(name);
}

/// Runs `zel` and gives what it prints; fails the test when it reports an error.
QByteArray zelPrints(const QStringList& arguments)
{
    QProcess zel;
    zel.start(program("zel"), arguments);
    zel.waitForFinished();
    EXPECT_EQ(zel.exitCode(), 0) << zel.readAllStandardError().toStdString();
    return zel.readAllStandardOutput();
}

}  // namespace

/// The acknowledgement of an edit is the reply to its command, which comes after the edit is in the file.
TEST(KilledWindow, LosesNoAcknowledgedEditAndLeavesAWholeFile)
{
    const QTemporaryDir folder;
    const QString model = folder.filePath("killed.qvx");
    const QString replies = folder.filePath("replies");
    QFile journal(folder.filePath("edits.jsonl"));
    ASSERT_TRUE(journal.open(QIODevice::WriteOnly));
    journal.write(editingJournal());
    journal.close();
    std::mt19937 random(std::random_device{}());
    int midway = 0;
    for (int round = 0; round < rounds; ++round) {
        QFile::remove(model);
        QFile::remove(model + "-wal");  // what the killed one left would keep a new model from being made
        QFile::remove(replies);
        zelPrints({"new", model});
        QProcess window;
        window.setProcessEnvironment(offScreen(folder.path()));
        window.setStandardErrorFile(QProcess::nullDevice());
        window.setStandardOutputFile(replies);  // a pipe would fill up
        window.start(program("zel-desktop"), {model, "--journal", journal.fileName()});
        ASSERT_TRUE(QTest::qWaitFor([&] { return QFileInfo(replies).size() > 0; }, 10'000)) << "the window gave no reply";
        std::this_thread::sleep_for(std::chrono::microseconds(random() % 600'000));
        window.kill();
        window.waitForFinished();

        // Replies: three of the opening, then two of each edit.
        QFile transcript(replies);
        ASSERT_TRUE(transcript.open(QIODevice::ReadOnly));
        const auto lines = static_cast<int>(transcript.readAll().count('\n'));
        const int acknowledged = std::max(0, (lines - 3) / 2);
        EXPECT_TRUE(zelPrints({"info", model}).size() > 0);
        const auto dump = nlohmann::json::parse(zelPrints({"dump", model}).toStdString(), nullptr, false);
        ASSERT_FALSE(dump.is_discarded());
        const auto cases = dump.value("STLD", nlohmann::json::array());
        const auto count = static_cast<int>(cases.size());
        EXPECT_GE(count, acknowledged) << "round " << round;
        EXPECT_LE(count, acknowledged + 1) << "round " << round;
        for (int k = 1; k <= count; ++k)
            EXPECT_EQ(cases.at(static_cast<std::size_t>(k - 1)).at("name"), "A" + std::to_string(k)) << "round " << round;
        midway += static_cast<int>(count > 0 && count < actions);
    }
    EXPECT_GT(midway, 0) << "no kill came in the middle of the editing";
}

}  // namespace desktop_test
