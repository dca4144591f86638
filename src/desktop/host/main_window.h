#pragma once

#include "desktop/host/desktop_user_interface.h"
#include "journal/user_hand.h"
#include "platform/modeldb/model_document.h"

#include <QMainWindow>

#include <functional>
#include <memory>

namespace zel::desktop {

class EditActions;
class FileActions;
class JournalActions;
class ModelFollower;
class ModelViews;
class StatusPanel;

/// The main window: menus, the plan view of the open model in the middle, tree and panes around it, the status bar below.
class MainWindow final : public QMainWindow {
public:
    MainWindow();
    ~MainWindow() override;

    [[nodiscard]] UserHand& hand() { return m_hand; }
    [[nodiscard]] DesktopUserInterface& services() { return m_services; }
    [[nodiscard]] FileActions& files() { return *m_files; }
    [[nodiscard]] EditActions& edits() { return *m_edits; }
    [[nodiscard]] JournalActions& journals() { return *m_journals; }
    [[nodiscard]] StatusPanel& status() { return *m_status; }
    [[nodiscard]] ModelViews& views() { return *m_views; }
    /// The open model; there always is one, in memory if no file is open.
    [[nodiscard]] ModelDocument& document() { return *m_document; }
    /// Shows another model in place of the open one. No dialog of the former one is open any more when `make` is called; if it throws, the former
    /// model stays.
    void replaceDocument(const std::function<std::unique_ptr<ModelDocument>()>& make);
    /// The same with a model that is there already, so that no dialog of the former one may be open.
    void setDocument(std::unique_ptr<ModelDocument> document);
    /// Closes all forms; a row that is being edited is ended first.
    void closeDialogs();

    /// Takes the kept place of the window and of its docks.
    void restorePlace();

    // For the services.
    void addOutput(const QString& line);
    void addHistory(const QString& line);
    void showBusy(const QString& text);
    void showPreferences(int page);
    void showModelingMode(int mode);

    /// Shows what a step is doing at once, without handling any event; an empty text ends it.
    void showStep(const QString& text);

protected:
    void closeEvent(QCloseEvent* event) override;
    void dragEnterEvent(QDragEnterEvent* event) override;
    void dropEvent(QDropEvent* event) override;

private:
    void addMenus();
    /// Ends the work on the open file; tells the user when that is no longer where it was opened.
    void closeFile();
    /// What follows the open document lets go of it, and follows the new one.
    void leaveDocument();
    void enterDocument();
    void showTitle();

    std::unique_ptr<ModelDocument> m_document;
    std::unique_ptr<ModelFollower> m_follower;
    UserHand m_hand;
    DesktopUserInterface m_services;
    std::unique_ptr<ModelViews> m_views;
    StatusPanel* m_status = nullptr;
    FileActions* m_files = nullptr;
    EditActions* m_edits = nullptr;
    JournalActions* m_journals = nullptr;
};

}  // namespace zel::desktop
