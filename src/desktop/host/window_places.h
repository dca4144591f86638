#pragma once

#include <QList>
#include <QRect>

class CDialog;
class QMainWindow;

/// Where windows stood when they were last closed, kept between runs.
namespace zel::desktop {

class FormWindow;

/// Puts a form where the last one of its class stood; the first one where its dialog wants it.
void placeForm(FormWindow& form, const CDialog& dialog);
void keepPlaceOf(const FormWindow& form, const CDialog& dialog);

/// The main window with its docks. `restore` leaves it as it is when nothing is kept.
void restoreMainWindow(QMainWindow& window);
void keepMainWindow(const QMainWindow& window);

/// A rectangle moved, and made smaller where it must be, so that it lies on one of the screens.
QRect onScreens(const QRect& place, const QList<QRect>& screens);

/// A place beside `parent`: right of it, left of it, or at the right end of the screen, whichever fits first.
QRect besideParent(QSize size, const QRect& parent, const QRect& screen);

}  // namespace zel::desktop
