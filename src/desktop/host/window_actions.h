#pragma once

class QMenu;

namespace zel::desktop {

class MainWindow;

/// The Window menu: the open forms, front first, to come to them by keys; and all of them closed at once.
void addWindowActions(MainWindow& window, QMenu& menu);

}  // namespace zel::desktop
