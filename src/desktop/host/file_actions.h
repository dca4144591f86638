#pragma once

#include "platform/modeldb/model_document.h"

#include <QObject>
#include <QString>

#include <functional>
#include <memory>

class QAction;
class QMenu;

namespace zel::desktop {

class MainWindow;

/// The File menu: models are files from the start, and every change is in the file at once, so there is nothing to save but copies.
class FileActions final : public QObject {
public:
    FileActions(MainWindow& window, QMenu& menu);

    /// Opens a model file in place of the open model. Tells the user why where it can't, and offers ways out.
    bool open(const QString& path, ModelFile::Access access = ModelFile::Access::write);
    /// Asks what is to become of a model that is in no file. False: the user stays with it.
    bool mayLeave();
    /// Follows another document.
    void showDocument();

    // The entries.
    void newModel();
    void openAnother();
    void saveCopy();
    void revert();
    void importJson();
    void exportJson();

private:
    /// Opens what `make` makes; false when the model file was refused.
    bool replace(const std::function<std::unique_ptr<ModelDocument>()>& make, const QString& path);
    bool followWayOut(const FileRefusal& refusal, const QString& path);
    bool openCopyOf(const QString& path);
    bool saveAs();
    bool isFree();
    void fillRecent();
    /// Asks for a file to write, starting beside the open model or where the last file was.
    [[nodiscard]] QString askForTarget(const QString& title, const QString& name, const QString& filter);
    [[nodiscard]] QString folder() const;
    [[nodiscard]] QString modelPath() const;

    MainWindow& m_window;
    QMenu* m_recent;
    QAction* m_saveCopy;
    QAction* m_revert;
    QString m_folder;  ///< of the file chosen last
};

}  // namespace zel::desktop
