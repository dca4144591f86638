#include "desktop/host/file_actions.h"

#include "command/dialog_table.h"
#include "desktop/forms/text.h"
#include "desktop/host/main_window.h"
#include "desktop/host/model_errors.h"
#include "desktop/host/model_exchange.h"
#include "desktop/host/new_model_dialog.h"
#include "desktop/host/recent_files.h"
#include "desktop/host/settings.h"
#include "platform/modeldb/file_header.h"

#include <QAction>
#include <QApplication>
#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QMenu>
#include <QMessageBox>
#include <QPushButton>
#include <QStatusBar>

#include <utility>

namespace zel::desktop {

namespace {

const char* const jsonFilter = "Model JSON (*.json);;All files (*)";

constexpr int messageTime = 6000;  ///< [ms]

/// The texts of menus take "&" for a mnemonic.
QString menuText(QString text)
{
    return text.replace(QLatin1Char('&'), QLatin1String("&&"));
}

/// A busy cursor for the length of a block.
class WaitCursor {
public:
    WaitCursor() { QApplication::setOverrideCursor(Qt::WaitCursor); }
    WaitCursor(const WaitCursor&) = delete;
    WaitCursor& operator=(const WaitCursor&) = delete;
    ~WaitCursor() { QApplication::restoreOverrideCursor(); }
};

}  // namespace

FileActions::FileActions(MainWindow& window, QMenu& menu) : QObject(&window), m_window(window)
{
    const auto add = [&](const char* text, const QKeySequence& key, auto&& run) {
        QAction* action = menu.addAction(QString::fromLatin1(text));
        action->setShortcut(key);
        QObject::connect(action, &QAction::triggered, this, std::forward<decltype(run)>(run));
        return action;
    };
    add("&New...", QKeySequence::New, [this] { newModel(); });
    add("&Open...", QKeySequence::Open, [this] { openAnother(); });
    m_recent = menu.addMenu(QStringLiteral("Open &Recent"));
    QObject::connect(m_recent, &QMenu::aboutToShow, this, [this] { fillRecent(); });
    menu.addSeparator();
    m_saveCopy = add("Save a &Copy As...", QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_S), [this] { saveCopy(); });
    m_revert = add("Re&vert to Opened...", {}, [this] { revert(); });
    QObject::connect(&menu, &QMenu::aboutToShow, this, [this] { m_revert->setEnabled(m_window.document().undoCount() > 0); });
    menu.addSeparator();
    add("&Import Model JSON...", {}, [this] { importJson(); });
    add("&Export Model JSON...", {}, [this] { exportJson(); });
    menu.addSeparator();
    constexpr unsigned projectInformation = 1;
    if (hasDialogClass(findModalCommand(projectInformation)->dialogClass)) {
        add("&Project Information...", {}, [this] { m_window.hand().modal(projectInformation); });
        menu.addSeparator();
    }
    add("&Quit", QKeySequence(Qt::CTRL | Qt::Key_Q), [this] { m_window.close(); });

    // Who presses Ctrl+S by habit is told that nothing is left to save.
    auto* save = new QAction(QStringLiteral("Save"), &window);
    save->setShortcut(QKeySequence::Save);
    window.addAction(save);
    QObject::connect(save, &QAction::triggered, this, [this] {
        if (modelPath().isEmpty())
            saveAs();
        else
            m_window.statusBar()->showMessage(QStringLiteral("All changes are in the file already."), messageTime);
    });
    fillRecent();
}

QString FileActions::modelPath() const
{
    return toQt(m_window.document().GetPathName());
}

QString FileActions::folder() const
{
    if (!modelPath().isEmpty())
        return QFileInfo(modelPath()).path();
    return m_folder.isEmpty() ? QDir::currentPath() : m_folder;
}

void FileActions::showDocument()
{
    const bool inFile = !modelPath().isEmpty();
    m_saveCopy->setText(inFile ? QStringLiteral("Save a &Copy As...") : QStringLiteral("&Save As..."));
    m_revert->setText(inFile ? QStringLiteral("Re&vert to Opened...") : QStringLiteral("Re&vert to Empty..."));
    if (inFile)
        m_folder = folder();
}

// Opening

bool FileActions::replace(const std::function<std::unique_ptr<ModelDocument>()>& make, const QString& path)
{
    try {
        const WaitCursor wait;
        m_window.replaceDocument(make);
    } catch (const FileRefusal& refusal) {
        return followWayOut(refusal, path);
    }
    recentFiles::add(path);
    return true;
}

bool FileActions::followWayOut(const FileRefusal& refusal, const QString& path)
{
    const bool isRecent = recentFiles::list().contains(QFileInfo(path).absoluteFilePath());
    switch (tellRefusal(&m_window, refusal, isRecent)) {
    case WayOut::openAnother:
        openAnother();
        break;
    case WayOut::retry:
        return open(path);
    case WayOut::readOnly:
        return open(path, ModelFile::Access::readOnly);
    case WayOut::openCopy:
        return openCopyOf(path);
    case WayOut::forget:
        recentFiles::remove(path);
        break;
    case WayOut::none:
        break;
    }
    return false;
}

bool FileActions::open(const QString& path, ModelFile::Access access)
{
    const QFileInfo file(path);
    const bool isReading = m_window.document().isReadOnly();
    if (file.exists() && !modelPath().isEmpty() && !isReading && file.canonicalFilePath() == QFileInfo(modelPath()).canonicalFilePath()) {
        m_window.statusBar()->showMessage(QStringLiteral("This model is open already."), messageTime);
        return true;
    }
    try {
        checkFileHeader(fromQt(path));  // before anything is closed for it
    } catch (const FileRefusal& refusal) {
        return followWayOut(refusal, path);
    }
    return mayLeave() && replace([&] { return ModelDocument::open(fromQt(file.absoluteFilePath()), access); }, path);
}

bool FileActions::openCopyOf(const QString& path)
{
    const QFileInfo file(path);
    const QString copy = askForTarget(QStringLiteral("Open a Copy"), file.completeBaseName() + QStringLiteral(" copy.qvx"), modelFileFilter());
    if (copy.isEmpty())
        return false;
    try {
        copyModelFile(path, copy);
    } catch (const FileRefusal& refusal) {
        return followWayOut(refusal, copy);
    }
    return open(copy);
}

/// A journal that is being played needs its model to the end.
bool FileActions::isFree()
{
    if (!m_window.hand().isLocked())
        return true;
    m_window.statusBar()->showMessage(QStringLiteral("A journal is being played. Stop it first."), messageTime);
    return false;
}

bool FileActions::mayLeave()
{
    if (!isFree())
        return false;
    if (!modelPath().isEmpty() || m_window.document().undoCount() == 0)
        return true;
    QMessageBox box(QMessageBox::Question, QApplication::applicationDisplayName(), QStringLiteral("This model is in no file yet."), QMessageBox::NoButton,
                    &m_window);
    box.setInformativeText(QStringLiteral("Save it, or what you have made in it is lost."));
    QPushButton* save = box.addButton(QStringLiteral("&Save As..."), QMessageBox::AcceptRole);
    QPushButton* drop = box.addButton(QStringLiteral("&Don't Save"), QMessageBox::DestructiveRole);
    QPushButton* stay = box.addButton(QMessageBox::Cancel);
    box.setDefaultButton(save);
    box.setEscapeButton(stay);
    box.exec();
    if (box.clickedButton() == save)
        return saveAs();
    return box.clickedButton() == drop;
}

void FileActions::newModel()
{
    NewModelDialog dialog(&m_window, folder(), storedPreferences().units);
    if (dialog.exec() != QDialog::Accepted || !mayLeave())
        return;
    const QString path = QFileInfo(dialog.path()).absoluteFilePath();
    replace([&] { return ModelDocument::create(fromQt(path), dialog.units()); }, path);
}

void FileActions::openAnother()
{
    const QString path = QFileDialog::getOpenFileName(&m_window, QStringLiteral("Open Model"), folder(), modelFileFilter());
    if (path.isEmpty())
        return;
    m_folder = QFileInfo(path).path();
    open(path);
}

void FileActions::fillRecent()
{
    m_recent->clear();
    int number = 0;
    for (const QString& path : recentFiles::list()) {
        const QFileInfo file(path);
        const bool missing = !file.exists();
        const QString mark = ++number < 10 ? QStringLiteral("&%1  ").arg(number) : QString();
        QString text = mark + menuText(file.fileName()) + QStringLiteral("  -  ") + menuText(QDir::toNativeSeparators(file.path()));
        if (missing)
            text += QStringLiteral("  (missing)");
        QAction* action = m_recent->addAction(text);
        action->setToolTip(path);
        QObject::connect(action, &QAction::triggered, this, [this, path] { open(path); });
    }
    if (number == 0)
        m_recent->addAction(QStringLiteral("No files yet"))->setEnabled(false);
    m_recent->addSeparator();
    QAction* clear = m_recent->addAction(QStringLiteral("C&lear List"));
    clear->setEnabled(number > 0);
    QObject::connect(clear, &QAction::triggered, this, [] { recentFiles::clear(); });
}

// Copies

QString FileActions::askForTarget(const QString& title, const QString& name, const QString& filter)
{
    const QString chosen = QFileDialog::getSaveFileName(&m_window, title, QDir(folder()).filePath(name), filter);
    if (!chosen.isEmpty())
        m_folder = QFileInfo(chosen).path();
    return chosen;
}

/// Puts a model in memory into a file and goes on with it.
bool FileActions::saveAs()
{
    const QString path = withModelEnding(askForTarget(QStringLiteral("Save As"), QStringLiteral("Untitled.qvx"), modelFileFilter()));
    if (path.isEmpty())
        return false;
    return replace(
        [&] {
            m_window.document().saveCopy(fromQt(path), true);
            return ModelDocument::open(fromQt(path));
        },
        path);
}

void FileActions::saveCopy()
{
    const QFileInfo file(modelPath());
    if (modelPath().isEmpty()) {
        saveAs();
        return;
    }
    const QString path =
        withModelEnding(askForTarget(QStringLiteral("Save a Copy As"), file.completeBaseName() + QStringLiteral(" copy.qvx"), modelFileFilter()));
    if (path.isEmpty())
        return;
    try {
        const WaitCursor wait;
        m_window.document().saveCopy(fromQt(path), true);
    } catch (const FileRefusal& refusal) {
        tellFault(&m_window, QStringLiteral("The copy was not made."), toQt(refusal.what()));
        return;
    }
    m_window.statusBar()->showMessage(QStringLiteral("A copy is in ") + QDir::toNativeSeparators(path) + QStringLiteral(". You go on working in ") +
                                          file.fileName() + QLatin1Char('.'),
                                      messageTime);
}

void FileActions::revert()
{
    const std::size_t count = m_window.document().undoCount();
    if (count == 0 || !isFree())
        return;
    QMessageBox box(QMessageBox::Question, QApplication::applicationDisplayName(),
                    modelPath().isEmpty() ? QStringLiteral("Take back everything that was made?") : QStringLiteral("Go back to the model as it was opened?"),
                    QMessageBox::NoButton, &m_window);
    box.setInformativeText((count == 1 ? QStringLiteral("1 change is") : QStringLiteral("%1 changes are").arg(count)) +
                           QStringLiteral(" taken back at once. Redo brings back one after the other."));
    QPushButton* yes = box.addButton(QStringLiteral("&Revert"), QMessageBox::AcceptRole);
    box.setDefaultButton(box.addButton(QMessageBox::Cancel));
    box.exec();
    if (box.clickedButton() != yes)
        return;
    m_window.closeDialogs();
    const WaitCursor wait;
    m_window.document().undoAll();
}

// Model JSON

void FileActions::importJson()
{
    if (!isFree())
        return;
    const QString json = QFileDialog::getOpenFileName(&m_window, QStringLiteral("Import Model JSON"), folder(), QString::fromLatin1(jsonFilter));
    if (json.isEmpty())
        return;
    m_folder = QFileInfo(json).path();
    const QString name = QDir(m_folder).filePath(QFileInfo(json).completeBaseName() + QStringLiteral(".qvx"));
    const QString path = withModelEnding(QFileDialog::getSaveFileName(&m_window, QStringLiteral("Import into New Model"), name, modelFileFilter()));
    if (path.isEmpty())
        return;
    if (QFileInfo::exists(path) && !modelPath().isEmpty() && QFileInfo(path).canonicalFilePath() == QFileInfo(modelPath()).canonicalFilePath()) {
        tellFault(&m_window, QStringLiteral("The model was not imported."), QStringLiteral("That file is the open model. Choose another name."));
        return;
    }
    try {
        const WaitCursor wait;
        m_window.closeDialogs();  // another model is current while it is read
        importModelJson(json, path, [this](const QString& step) { m_window.showStep(step); });
        m_window.showStep({});
    } catch (const std::exception& fault) {
        m_window.showStep({});
        tellFault(&m_window, QStringLiteral("The model was not imported."), toQt(fault.what()));
        return;
    }
    open(path);
}

void FileActions::exportJson()
{
    const QString base = modelPath().isEmpty() ? QStringLiteral("Untitled") : QFileInfo(modelPath()).completeBaseName();
    QString path = askForTarget(QStringLiteral("Export Model JSON"), base + QStringLiteral(".json"), QString::fromLatin1(jsonFilter));
    if (path.isEmpty())
        return;
    if (QFileInfo(path).suffix().isEmpty())
        path += QStringLiteral(".json");
    try {
        const WaitCursor wait;
        exportModelJson(m_window.document(), path);
    } catch (const std::exception& fault) {
        tellFault(&m_window, QStringLiteral("The model was not exported."), toQt(fault.what()));
        return;
    }
    m_window.statusBar()->showMessage(QStringLiteral("The model is in ") + QDir::toNativeSeparators(path) + QLatin1Char('.'), messageTime);
}

}  // namespace zel::desktop
