#include "desktop/host/window_places.h"

#include "contract/forms/dialog.h"
#include "desktop/forms/form_window.h"
#include "desktop/forms/text.h"
#include "desktop/host/settings.h"

#include <QGuiApplication>
#include <QMainWindow>
#include <QScreen>

#include <algorithm>

namespace zel::desktop {

namespace {

QString placeName(const CDialog& dialog)
{
    return QStringLiteral("places/") + toQt(dialog.ClassName());
}

QList<QRect> screens()
{
    QList<QRect> all;
    for (const QScreen* screen : QGuiApplication::screens())
        all.append(screen->availableGeometry());
    return all;
}

qint64 areaOf(const QRect& place)
{
    return place.isValid() ? qint64{place.width()} * place.height() : 0;
}

bool growsInHeight(const FormWindow& form)
{
    const auto& parts = form.parts().parts;
    return std::any_of(parts.begin(), parts.end(), [](const FormParts::Part& part) { return part.view->isTall(); });
}

}  // namespace

QRect onScreens(const QRect& place, const QList<QRect>& screens)
{
    if (screens.isEmpty())
        return place;
    const QRect screen = *std::max_element(screens.begin(), screens.end(),
                                           [&](const QRect& a, const QRect& b) { return areaOf(a.intersected(place)) < areaOf(b.intersected(place)); });
    QRect moved(place.topLeft(), place.size().boundedTo(screen.size()));
    moved.moveLeft(std::clamp(moved.left(), screen.left(), screen.left() + screen.width() - moved.width()));
    moved.moveTop(std::clamp(moved.top(), screen.top(), screen.top() + screen.height() - moved.height()));
    return moved;
}

QRect besideParent(QSize size, const QRect& parent, const QRect& screen)
{
    constexpr int gap = 8;
    const int right = parent.left() + parent.width() + gap;
    const int left = parent.left() - gap - size.width();
    const int end = screen.left() + screen.width() - size.width();
    int x = end;
    if (right <= end)
        x = right;
    else if (left >= screen.left())
        x = left;
    return onScreens(QRect(QPoint(x, parent.top()), size), {screen});
}

void placeForm(FormWindow& form, const CDialog& dialog)
{
    form.adjustSize();
    const QRect kept = remembered(placeName(dialog)).toRect();
    const auto* movable = dynamic_cast<const CDlgMove*>(&dialog);
    const CDlgMove::InitPos wanted = movable != nullptr ? movable->initPos() : CDlgMove::InitPos{};
    const QWidget* parent = form.parentWidget();
    QRect place;
    if (kept.isValid()) {
        const int height = growsInHeight(form) ? kept.height() : form.height();  // a form without lists is as high as its fields
        place = onScreens(QRect(kept.topLeft(), QSize(kept.width(), height).expandedTo(form.minimumSizeHint())), screens());
    } else if (wanted.mode == 1 && parent != nullptr) {
        place = besideParent(form.size(), parent->frameGeometry(), parent->screen()->availableGeometry());
    } else if (wanted.mode == 2) {
        place = onScreens(QRect(QPoint(wanted.x, wanted.y), form.size()), screens());
    } else {
        return;  // the window system's choice, over its parent
    }
    form.resize(place.size());
    form.move(place.topLeft());
}

void keepPlaceOf(const FormWindow& form, const CDialog& dialog)
{
    if (form.isVisible())
        remember(placeName(dialog), QRect(form.pos(), form.size()));
}

void restoreMainWindow(QMainWindow& window)
{
    window.restoreGeometry(remembered(QStringLiteral("window/geometry")).toByteArray());  // it looks for the screens itself
    window.restoreState(remembered(QStringLiteral("window/state")).toByteArray());
}

void keepMainWindow(const QMainWindow& window)
{
    remember(QStringLiteral("window/geometry"), window.saveGeometry());
    remember(QStringLiteral("window/state"), window.saveState());
}

}  // namespace zel::desktop
