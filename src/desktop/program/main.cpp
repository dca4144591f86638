#include "command/command.h"
#include "desktop/host/main_window.h"
#include "desktop/host/program_run.h"
#include "desktop/host/settings.h"

#include <QApplication>
#include <QCommandLineParser>

#include <algorithm>
#include <iostream>
#include <string_view>

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

#ifdef Q_OS_LINUX
constexpr bool isLinux = true;
#else
constexpr bool isLinux = false;
#endif

/// Draws into memory where there is no screen, and none is needed: for a picture and for the help. False if one is needed.
bool findScreen(int argc, char** argv)
{
    const bool isThere = qEnvironmentVariableIsSet("DISPLAY") || qEnvironmentVariableIsSet("WAYLAND_DISPLAY") || qEnvironmentVariableIsSet("QT_QPA_PLATFORM");
    if (isThere || !isLinux)
        return true;
    const bool isNeeded = std::none_of(argv + 1, argv + argc, [](const std::string_view argument) {
        return argument.starts_with("--screenshot") || argument == "--help" || argument == "-h";
    });
    qputenv("QT_QPA_PLATFORM", "offscreen");
    return !isNeeded;
}

}  // namespace

int main(int argc, char** argv)
{
    if (!findScreen(argc, argv)) {
        std::cerr << "zel-desktop: there is no screen to open windows on. Start it in a graphical session; \"zel\" does all work without one.\n";
        return 2;
    }
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
