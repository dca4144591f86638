#include "command/command.h"
#include "desktop/host/file_actions.h"
#include "desktop/host/main_window.h"
#include "desktop/host/screen_picture.h"
#include "desktop/host/settings.h"
#include "journal/journal_player.h"

#include <QApplication>
#include <QCommandLineParser>
#include <QTimer>

#include <fstream>
#include <iostream>

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
    const QCommandLineOption journal(QStringLiteral("journal"), QStringLiteral("Play this journal in the window; the replies go to standard output."),
                                     QStringLiteral("FILE"));
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

/// Opens the model where nobody can be asked.
bool open(MainWindow& window, const Options& options)
{
    try {
        if (!options.model.isEmpty())
            window.replaceDocument([&] { return zel::ModelDocument::open(options.model.toStdString()); });
        return true;
    } catch (const zel::FileRefusal& refusal) {
        std::cerr << "zel-desktop: " << refusal.what() << '\n';
        return false;
    }
}

int play(MainWindow& window, const Options& options)
{
    std::ifstream script(options.journal.toStdString());
    if (!script) {
        std::cerr << "zel-desktop: the journal \"" << options.journal.toStdString() << "\" can't be read. Check its name.\n";
        return 2;
    }
    zel::JournalOptions playing;
    playing.watching = &window.services();
    playing.pause = [] { QCoreApplication::processEvents(); };
    zel::JournalPlayer player(window.document(), script, std::cout, playing);
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

    const bool isForSomebody = options.journal.isEmpty() && options.screenshot.isEmpty();
    if (isForSomebody)
        zel::desktop::applyFontSize(zel::desktop::storedPreferences().fontSize);
    else
        zel::desktop::useNoSettings();  // pictures look the same for everybody
    MainWindow window;
    window.restorePlace();
    if (!isForSomebody && !open(window, options))
        return 2;
    window.show();
    if (isForSomebody && !options.model.isEmpty())
        QTimer::singleShot(0, &window, [&] { window.files().open(options.model); });
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
