#pragma once

#include "desktop/desktop_fixture.h"
#include "desktop/host/file_actions.h"
#include "platform/modeldb/model_json.h"

#include <QAbstractButton>
#include <QDir>
#include <QFile>
#include <QFileDialog>
#include <QLineEdit>
#include <QMenu>
#include <QMenuBar>
#include <QMessageBox>
#include <QTemporaryDir>
#include <nlohmann/json.hpp>

namespace desktop_test {

/// The main window with a folder of its own for files.
class FilesWindow : public DesktopTest {
protected:
    [[nodiscard]] QString path(const char* name) const { return folder.filePath(QString::fromLatin1(name)); }

    /// A model file of an example.
    QString modelFile(const char* name, const std::string& exampleName = "first")
    {
        example(exampleName)->saveCopy(path(name).toStdString(), true);
        return path(name);
    }

    QTemporaryDir folder;
};

/// Adds what a model JSON text holds to an empty document, as one change.
inline void fill(zel::ModelDocument& document, const char* tables)
{
    storeRows(document, zel::rowsOfModelJson(zel::parseJson(std::string(R"({"format": "zel-model", "version": 1, )") + tables + "}")));
}
inline const char* const threePoints = R"("PONT": [{"x": 0.0}, {"x": 1000.0}, {"x": 2000.0}])";

/// Answers a file dialog, or the one that comes up next, with a path.
inline void answerFile(QWidget& modal, const QString& path)
{
    auto* name = dynamic_cast<QFileDialog&>(modal).findChild<QLineEdit*>(QStringLiteral("fileNameEdit"));
    name->setText(path);
    QTest::keyClick(name, Qt::Key_Return);
}
inline void chooseFile(const QString& path)
{
    whenModal([path](QWidget& modal) { answerFile(modal, path); });
}

/// Clicks the button of a message box that bears a text, without regard to mnemonics.
inline void clickButton(QWidget& modal, const QString& text)
{
    for (QAbstractButton* button : dynamic_cast<QMessageBox&>(modal).buttons()) {
        if (button->text().remove(QLatin1Char('&')) == text) {
            QTest::mouseClick(button, Qt::LeftButton);
            return;
        }
    }
    throw std::runtime_error("no such button: " + text.toStdString());
}

/// The names of the buttons of a message box, sorted.
inline QStringList buttonsOf(QWidget& modal)
{
    QStringList texts;
    for (QAbstractButton* button : dynamic_cast<QMessageBox&>(modal).buttons())
        texts.append(button->text().remove(QLatin1Char('&')));
    texts.sort();
    return texts;
}

/// The action of a menu of the main window: "File", "Open..."; without regard to mnemonics.
inline QAction& action(QMainWindow& window, const QString& menu, const QString& text)
{
    for (QMenu* each : window.menuBar()->findChildren<QMenu*>()) {
        if (each->title().remove(QLatin1Char('&')) != menu)
            continue;
        Q_EMIT each->aboutToShow();
        for (QAction* found : each->actions()) {
            if (found->text().remove(QLatin1Char('&')) == text)
                return *found;
        }
    }
    throw std::runtime_error("no such entry: " + text.toStdString());
}

}  // namespace desktop_test
