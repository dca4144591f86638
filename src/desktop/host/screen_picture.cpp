#include "desktop/host/screen_picture.h"

#include "desktop/forms/form_window.h"
#include "desktop/host/main_window.h"

#include <QApplication>
#include <QMessageBox>
#include <QPainter>

#include <algorithm>

namespace zel::desktop {

namespace {

/// The windows over the main window, the front one last.
std::vector<QWidget*> windowsOver(MainWindow& main)
{
    std::vector<QWidget*> windows;
    for (FormWindow* form : main.services().formWindows())
        windows.insert(windows.begin(), form);
    for (QWidget* widget : QApplication::topLevelWidgets()) {
        if (qobject_cast<QMessageBox*>(widget) != nullptr && widget->isVisible())
            windows.push_back(widget);
    }
    return windows;
}

}  // namespace

QImage pictureOf(MainWindow& window, bool frontOnly)
{
    window.services().showChanges();
    const std::vector<QWidget*> over = windowsOver(window);
    if (frontOnly)
        return (over.empty() ? static_cast<QWidget*>(&window) : over.back())->grab().toImage();

    QRect place(window.mapToGlobal(QPoint()), window.size());
    for (const QWidget* each : over)
        place |= QRect(each->mapToGlobal(QPoint()), each->size());
    const qreal ratio = window.devicePixelRatioF();
    QImage picture(place.size() * ratio, QImage::Format_RGB32);
    picture.setDevicePixelRatio(ratio);
    picture.fill(window.palette().color(QPalette::Dark));
    QPainter painter(&picture);
    painter.drawPixmap(window.mapToGlobal(QPoint()) - place.topLeft(), window.grab());
    for (QWidget* each : over) {
        const QRect frame(each->mapToGlobal(QPoint()) - place.topLeft(), each->size());
        painter.drawPixmap(frame.topLeft(), each->grab());
        painter.setPen(window.palette().color(QPalette::Shadow));
        painter.drawRect(frame.adjusted(-1, -1, 0, 0));
    }
    return picture;
}

}  // namespace zel::desktop
