#include "desktop/host/main_window.h"

#include "desktop/host/command_menus.h"
#include "journal/dialog_commands.h"

#include <QDockWidget>
#include <QMenuBar>
#include <QPlainTextEdit>
#include <QStatusBar>

namespace zel::desktop {

MainWindow::MainWindow() : m_services(*this, m_hand)
{
    setDocument(ModelDocument::inMemory());
    m_output = addPane(QStringLiteral("Output"));
    m_history = addPane(QStringLiteral("History"));
    addMenus();
    statusBar();
    resize(1200, 800);
}

MainWindow::~MainWindow()
{
    closeAllDialogs();
}

void MainWindow::setDocument(std::unique_ptr<ModelDocument> document)
{
    if (m_document)
        closeAllDialogs();
    m_document.reset();  // one model is current at a time
    m_document = std::move(document);
}

void MainWindow::addMenus()
{
    addCommandMenus(*menuBar(), m_hand);
}

QPlainTextEdit* MainWindow::addPane(const QString& title)
{
    constexpr int mostLines = 10'000;
    auto* dock = new QDockWidget(title, this);
    dock->setObjectName(title);
    auto* lines = new QPlainTextEdit(dock);
    lines->setReadOnly(true);
    lines->setMaximumBlockCount(mostLines);
    lines->setAccessibleName(title);
    dock->setWidget(lines);
    addDockWidget(Qt::BottomDockWidgetArea, dock);
    return lines;
}

void MainWindow::addOutput(const QString& line)
{
    m_output->appendPlainText(line);
}

void MainWindow::addHistory(const QString& line)
{
    m_history->appendPlainText(line);
}

void MainWindow::showBusy(const QString& text)
{
    statusBar()->showMessage(text);
}

void MainWindow::showPreferences(int /*page*/) {}

void MainWindow::showModelingMode(int /*mode*/) {}

}  // namespace zel::desktop
