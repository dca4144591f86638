#include "desktop/host/main_window.h"

#include "desktop/forms/text.h"
#include "desktop/host/command_menus.h"
#include "desktop/host/edit_actions.h"
#include "desktop/host/file_actions.h"
#include "desktop/host/help_actions.h"
#include "desktop/host/journal_actions.h"
#include "desktop/host/model_errors.h"
#include "desktop/host/model_follower.h"
#include "desktop/host/preferences_dialog.h"
#include "desktop/host/settings.h"
#include "desktop/host/status_panel.h"
#include "desktop/host/window_actions.h"
#include "desktop/host/window_places.h"
#include "desktop/views/line_pane.h"
#include "desktop/views/model_views.h"
#include "journal/dialog_commands.h"

#include <QApplication>
#include <QCloseEvent>
#include <QDragEnterEvent>
#include <QDropEvent>
#include <QFileInfo>
#include <QMenuBar>
#include <QMimeData>
#include <QStatusBar>
#include <QTimer>

namespace zel::desktop {

namespace {

/// The model file among what is dragged; empty if there is none.
QString modelFileIn(const QMimeData& data)
{
    const QList<QUrl> urls = data.urls();
    if (urls.size() != 1 || !urls.first().isLocalFile())
        return {};
    const QString path = urls.first().toLocalFile();
    return path.endsWith(QStringLiteral(".qvx"), Qt::CaseInsensitive) ? path : QString();
}

}  // namespace

MainWindow::MainWindow() : m_services(*this, m_hand)
{
    m_document = ModelDocument::inMemory(storedPreferences().units);
    m_views = std::make_unique<ModelViews>(*this, m_hand);
    m_status = new StatusPanel(*this);
    addMenus();
    enterDocument();
    setAcceptDrops(true);
    resize(1200, 800);
}

MainWindow::~MainWindow()
{
    closeDialogs();
    leaveDocument();
}

// The model

void MainWindow::replaceDocument(const std::function<std::unique_ptr<ModelDocument>()>& make)
{
    closeDialogs();
    leaveDocument();
    try {
        std::unique_ptr<ModelDocument> next = make();
        closeFile();
        m_document = std::move(next);
    } catch (...) {
        enterDocument();
        throw;
    }
    enterDocument();
}

void MainWindow::closeFile()
{
    try {
        m_document->close();
    } catch (const FileRefusal& refusal) {
        tellFault(this, QStringLiteral("The model file has been moved."), toQt(refusal.what()));
    }
}

void MainWindow::setDocument(std::unique_ptr<ModelDocument> document)
{
    replaceDocument([&] { return std::move(document); });
}

void MainWindow::closeDialogs()
{
    m_journals->stopRecording(QStringLiteral("The recording has ended, because the open model was left or reverted."));
    m_hand.finish();
    closeAllDialogs();
}

void MainWindow::leaveDocument()
{
    m_follower.reset();
    m_views->setDocument(nullptr);
    T_ANALOPTION option;
    m_document->GetInitCtrl()->GetAnalysisOption(option);
    if (option != storedAnalysisOption())
        store(option);
}

void MainWindow::enterDocument()
{
    m_document->GetInitCtrl()->SetPreference(storedPreferences().model);
    m_document->GetInitCtrl()->SetAnalysisOption(storedAnalysisOption());
    m_follower = std::make_unique<ModelFollower>([this](long long hint) {
        m_status->showNotice(hint);
        m_edits->showNotice(hint);
        m_views->showNotice(hint);
    });
    m_views->setDocument(m_document.get());
    m_status->showDocument();
    m_edits->showDocument();
    m_files->showDocument();
    showTitle();
}

void MainWindow::showTitle()
{
    const QString path = toQt(m_document->GetPathName());
    setWindowFilePath(path);
    setWindowTitle(path.isEmpty() ? QStringLiteral("Untitled - not in a file yet - ZEL")
                                  : QFileInfo(path).fileName() +
                           (m_document->isReadOnly() ? QStringLiteral(" - Read-only - ZEL") : QStringLiteral(" - All changes saved - ZEL")));
}

// Menus and panes

void MainWindow::addMenus()
{
    QMenuBar& bar = *menuBar();
    m_files = new FileActions(*this, *bar.addMenu(QStringLiteral("&File")));
    m_edits = new EditActions(*this, *bar.addMenu(QStringLiteral("&Edit")));
    m_views->addActions(*bar.addMenu(QStringLiteral("&View")));
    addCommandMenus(bar, m_hand);
    m_journals = new JournalActions(*this, *bar.addMenu(QStringLiteral("&Tools")));
    addWindowActions(*this, *bar.addMenu(QStringLiteral("&Window")));
    addHelpActions(*this, *bar.addMenu(QStringLiteral("&Help")));
}

void MainWindow::addOutput(const QString& line)
{
    m_views->output().add(line);
}

void MainWindow::addHistory(const QString& line)
{
    m_views->history().add(line);
}

void MainWindow::showBusy(const QString& text)
{
    if (text.isEmpty())
        statusBar()->clearMessage();
    else
        statusBar()->showMessage(text);
}

void MainWindow::showStep(const QString& text)
{
    showBusy(text);
    statusBar()->repaint();
}

void MainWindow::showPreferences(int page)
{
    QWidget* front = QApplication::activeWindow();
    PreferencesDialog dialog(front != nullptr ? front : this, storedPreferences(), page);
    if (dialog.exec() != QDialog::Accepted)
        return;
    const Preferences preferences = dialog.preferences();
    store(preferences);
    m_document->GetInitCtrl()->SetPreference(preferences.model);
}

void MainWindow::showModelingMode(int /*mode*/) {}

// The window

void MainWindow::restorePlace()
{
    restoreMainWindow(*this);
}

void MainWindow::closeEvent(QCloseEvent* event)
{
    if (!m_files->mayLeave()) {
        event->ignore();
        return;
    }
    closeDialogs();
    closeFile();
    keepMainWindow(*this);
    event->accept();
}

void MainWindow::dragEnterEvent(QDragEnterEvent* event)
{
    if (!modelFileIn(*event->mimeData()).isEmpty())
        event->acceptProposedAction();
}

void MainWindow::dropEvent(QDropEvent* event)
{
    const QString path = modelFileIn(*event->mimeData());
    if (path.isEmpty())
        return;
    event->acceptProposedAction();
    // The program that it was dragged from waits until this returns: a question must not stand in its way.
    QTimer::singleShot(0, this, [this, path] { m_files->open(path); });
}

}  // namespace zel::desktop
