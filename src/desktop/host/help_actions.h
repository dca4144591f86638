#pragma once

#include <QString>

#include <vector>

class QMainWindow;
class QMenu;

namespace zel::desktop {

/// The Help menu.
void addHelpActions(QMainWindow& window, QMenu& menu);

/// One command with its keys.
struct Shortcut {
    QString menu;     ///< "File"; empty for a command in no menu
    QString command;  ///< without mnemonic and dots
    QString keys;     ///< "Ctrl+Shift+Z, Ctrl+Y"
};

/// All commands of a window that have keys, in the order of its menus.
std::vector<Shortcut> shortcutsOf(const QMainWindow& window);

}  // namespace zel::desktop
