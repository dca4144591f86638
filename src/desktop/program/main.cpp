#include "command/command.h"
#include "desktop/forms/text.h"
#include "desktop/host/main_window.h"
#include "desktop/host/screen_picture.h"
#include "journal/journal_player.h"

#include <QApplication>
#include <QCommandLineParser>
#include <QTimer>

#include <fstream>
#include <iostream>
#include <sstream>

namespace {

using zel::desktop::MainWindow;

struct Options {
    QString model;
    QString journal;
    QString screenshot;
    bool frontOnly = false;
};

Options readOptions(const QApplication& application)
{
    QCommandLineParser parser;
    parser.setApplicationDescription(QStringLiteral("Modelling, loads and load combinations of slabs and mats."));
    parser.addHelpOption();
    parser.addPositionalArgument(QStringLiteral("MODEL.qvx"), QStringLiteral("The model to open."), QStringLiteral("[MODEL.qvx]"));
    const QCommandLineOption journal(QStringLiteral("journal"), QStringLiteral("Play this journal in the window."), QStringLiteral("FILE"));
    const QCommandLineOption screenshot(QStringLiteral("screenshot"), QStringLiteral("Take a picture, after the journal if there is one, and end."),
                                        QStringLiteral("FILE.png"));
    const QCommandLineOption front(QStringLiteral("front"), QStringLiteral("The picture shows the form in front alone."));
    parser.addOptions({journal, screenshot, front});
    parser.process(application);
    const QStringList models = parser.positionalArguments();
    return {models.isEmpty() ? QString() : models.first(), parser.value(journal), parser.value(screenshot), parser.isSet(front)};
}

/// Waits until the windows have been laid out and painted.
void settle()
{
    for (int i = 0; i < 5; ++i)
        QCoreApplication::processEvents(QEventLoop::AllEvents, 20);
}

[[noreturn]] void endWithPicture(MainWindow& window, const Options& options)
{
    settle();
    const bool saved = zel::desktop::pictureOf(window, options.frontOnly).save(options.screenshot);
    if (!saved)
        std::cerr << "zel-desktop: the picture \"" << options.screenshot.toStdString() << "\" can't be written. Check the folder and its permissions.\n";
    std::_Exit(saved ? 0 : 2);
}

int play(MainWindow& window, const Options& options)
{
    std::ifstream script(options.journal.toStdString());
    if (!script) {
        std::cerr << "zel-desktop: the journal \"" << options.journal.toStdString() << "\" can't be read. Check its name.\n";
        return 2;
    }
    std::ostringstream transcript;
    zel::JournalOptions playing;
    playing.watching = &window.services();
    playing.pause = [] { QCoreApplication::processEvents(); };
    zel::JournalPlayer player(window.document(), script, transcript, playing);
    const int status = player.play();
    return status;
}

}  // namespace

int main(int argc, char** argv)
{
    QApplication::setApplicationName(QStringLiteral("zel-desktop"));
    QApplication::setApplicationDisplayName(QStringLiteral("ZEL"));
    QApplication::setOrganizationName(QStringLiteral("ZEL"));
    const QApplication application(argc, argv);
    Init_ZEL_cmddll();
    const Options options = readOptions(application);

    MainWindow window;
    if (!options.model.isEmpty())
        window.setDocument(zel::ModelDocument::open(options.model.toStdString()));
    window.show();
    if (!options.screenshot.isEmpty() && options.journal.isEmpty())
        QTimer::singleShot(0, &window, [&] { endWithPicture(window, options); });
    if (!options.journal.isEmpty()) {
        QTimer::singleShot(0, &window, [&] {
            if (!options.screenshot.isEmpty())
                QTimer::singleShot(1500, &window, [&] { endWithPicture(window, options); });
            play(window, options);
        });
    }
    return QApplication::exec();
}
