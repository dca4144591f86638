#include "command/command.h"
#include "desktop/host/main_window.h"
#include "desktop/host/program_run.h"
#include "desktop/host/settings.h"

#include <QApplication>
#include <QCommandLineParser>

namespace {

using zel::desktop::RunOptions;

RunOptions readOptions(const QApplication& application)
{
    QCommandLineParser parser;
    parser.setApplicationDescription(QStringLiteral("Modelling, loads and load combinations of slabs and mats."));
    parser.addHelpOption();
    parser.addPositionalArgument(QStringLiteral("MODEL.qvx"), QStringLiteral("The model to open."), QStringLiteral("[MODEL.qvx]"));
    const QCommandLineOption journal(QStringLiteral("journal"), QStringLiteral("Play this journal in the window; the replies go to standard output."),
                                     QStringLiteral("FILE"));
    const QCommandLineOption record(QStringLiteral("record"), QStringLiteral("Record a journal from the start."), QStringLiteral("FILE"));
    const QCommandLineOption screenshot(QStringLiteral("screenshot"), QStringLiteral("Take a picture, after the journal if there is one, and end."),
                                        QStringLiteral("FILE.png"));
    const QCommandLineOption front(QStringLiteral("front"), QStringLiteral("The picture shows the form in front alone."));
    parser.addOptions({journal, record, screenshot, front});
    parser.process(application);
    const QStringList models = parser.positionalArguments();
    return {models.isEmpty() ? QString() : models.first(), parser.value(journal), parser.value(record), parser.value(screenshot), parser.isSet(front)};
}

}  // namespace

int main(int argc, char** argv)
{
    QApplication::setApplicationName(QStringLiteral("zel-desktop"));
    QApplication::setApplicationDisplayName(QStringLiteral("ZEL"));
    QApplication::setOrganizationName(QStringLiteral("ZEL"));
    const QApplication application(argc, argv);
    Init_ZEL_cmddll();
    const RunOptions options = readOptions(application);
    if (options.isForSomebody())
        zel::desktop::applyFontSize(zel::desktop::storedPreferences().fontSize);
    else
        zel::desktop::useNoSettings();  // pictures look the same for everybody
    zel::desktop::MainWindow window;
    window.restorePlace();
    return runProgram(window, options);
}
