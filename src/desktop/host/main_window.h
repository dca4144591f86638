#pragma once

#include "desktop/host/desktop_user_interface.h"
#include "journal/user_hand.h"
#include "platform/modeldb/model_document.h"

#include <QMainWindow>

#include <filesystem>
#include <memory>

class QPlainTextEdit;

namespace zel::desktop {

/// The main window: menus, the plan view of the open model in the middle, tree and panes around it, the status bar below.
class MainWindow final : public QMainWindow {
public:
    MainWindow();
    ~MainWindow() override;

    [[nodiscard]] UserHand& hand() { return m_hand; }
    [[nodiscard]] DesktopUserInterface& services() { return m_services; }
    /// The open model; there always is one, in memory if no file is open.
    [[nodiscard]] ModelDocument& document() { return *m_document; }
    /// Shows another model in place of the open one, whose dialogs are closed.
    void setDocument(std::unique_ptr<ModelDocument> document);

    // For the services.
    void addOutput(const QString& line);
    void addHistory(const QString& line);
    void showBusy(const QString& text);
    void showPreferences(int page);
    void showModelingMode(int mode);

private:
    void addMenus();
    QPlainTextEdit* addPane(const QString& title);

    std::unique_ptr<ModelDocument> m_document;
    UserHand m_hand;
    DesktopUserInterface m_services;
    QPlainTextEdit* m_output = nullptr;
    QPlainTextEdit* m_history = nullptr;
};

}  // namespace zel::desktop
