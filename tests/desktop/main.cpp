#include <QApplication>
#include <QSettings>
#include <QTemporaryDir>

#include <gtest/gtest.h>

/// The tests of the desktop need an application object, no screen, and settings of their own.
int main(int argc, char** argv)
{
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    const QTemporaryDir own;  // only its owner may enter it, as Qt wants it
    if (!qEnvironmentVariableIsSet("XDG_RUNTIME_DIR"))
        qputenv("XDG_RUNTIME_DIR", own.path().toUtf8());
    ::testing::InitGoogleTest(&argc, argv);
    QApplication::setApplicationName(QStringLiteral("zel-desktop-test"));
    QApplication::setOrganizationName(QStringLiteral("ZEL"));
    const QApplication application(argc, argv);
    QSettings::setDefaultFormat(QSettings::IniFormat);
    QSettings::setPath(QSettings::IniFormat, QSettings::UserScope, own.path());
    return RUN_ALL_TESTS();
}
