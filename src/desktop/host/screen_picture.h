#pragma once

#include <QImage>

namespace zel::desktop {

class MainWindow;

/// A picture of the main window with all its open forms and boxes over it, as they stand on the screen.
/// @param frontOnly  of the form in front alone; of the main window if none is open
QImage pictureOf(MainWindow& window, bool frontOnly);

}  // namespace zel::desktop
