#include "desktop/views/plan_view.h"

#include "contract/document.h"
#include "contract/unit_types.h"
#include "contract/units.h"
#include "contract/view_ctrl.h"
#include "desktop/forms/text.h"
#include "journal/user_hand.h"

#include <QApplication>
#include <QMouseEvent>
#include <QWheelEvent>

#include <algorithm>
#include <cmath>

namespace zel::desktop {

namespace {

constexpr double reach = 7;            // how near a click must be to a point or a line [px]
constexpr double fitMargin = 56;       // [px]
constexpr double gridLineMargin = 88;  // the same with room for the names of grid lines [px]
constexpr double zoomStep = 1.25;
constexpr double panStep = 0.1;  // part of the canvas

void toggle(std::vector<Key>& keys, Key key)
{
    const auto place = std::lower_bound(keys.begin(), keys.end(), key);
    if (place != keys.end() && *place == key)
        keys.erase(place);
    else
        keys.insert(place, key);
}

void append(std::vector<Key>& keys, const std::vector<Key>& more)
{
    keys.insert(keys.end(), more.begin(), more.end());
}

}  // namespace

PlanView::PlanView(UserHand& hand, QWidget* parent) : QWidget(parent), m_hand(hand), m_picking(hand)
{
    setFocusPolicy(Qt::StrongFocus);
    setMouseTracking(true);
    setAttribute(Qt::WA_OpaquePaintEvent);
    setAccessibleName(QStringLiteral("Plan view"));
    setAccessibleDescription(QStringLiteral("Points, lines, areas and supports of the model seen from above"));
    m_transform.resize(size());
    m_view.onChange([this] {
        m_model.showActive(m_view.active());
        changed();
        followPicking();
    });
    m_pickWatch.setInterval(100);
    connect(&m_pickWatch, &QTimer::timeout, this, [this] { followPicking(); });
    // The form under the new focus hears of it after this signal.
    connect(qApp, &QApplication::focusChanged, this, [this] { QTimer::singleShot(0, this, [this] { followPicking(); }); });
    m_redraw.setSingleShot(true);
    connect(&m_redraw, &QTimer::timeout, this, [this] { changed(); });
    showCursor();
}

PlanView::~PlanView() = default;

// The model

void PlanView::setDocument(CDBDoc* document)
{
    m_document = document;
    m_model.clear();
    m_view.reset();
    m_hover.reset();
    m_lengthUnit = 0;
    m_fitted = true;
    m_modelStale = document != nullptr;
    changed();
}

void PlanView::showNotice(long long hint)
{
    if (Hint::isData(hint) || hint == Hint::units)
        m_modelStale = true;
    else if (hint == Hint::selection)
        m_selectionStale = true;
    else
        return;
    update();
}

void PlanView::rescaleToUnit()
{
    const double unit = m_document->GetUnitCtrl()->GetConvertFactorCurrent(Unit::length);
    if (m_lengthUnit > 0 && m_lengthUnit != unit)
        m_transform.rescale(m_lengthUnit / unit);
    m_lengthUnit = unit;
}

void PlanView::bringUpToDate()
{
    if (m_document == nullptr || (!m_modelStale && !m_selectionStale))
        return;
    if (m_modelStale) {
        rescaleToUnit();
        const bool wasEmpty = m_model.isEmpty();
        m_selectionStale = m_model.read(*m_document) || m_selectionStale;
        m_model.showActive(m_view.active());
        m_hover.reset();
        m_modelStale = false;
        if (m_fitted || wasEmpty)
            fit();
    }
    if (m_selectionStale) {
        m_model.showSelection(m_document->GetViewCtrl()->selection());
        m_selectionStale = false;
        changed();
    }
}

const PlanModel& PlanView::model()
{
    bringUpToDate();
    return m_model;
}

// What is shown

void PlanView::fit()
{
    m_fitted = true;
    if (!m_model.isEmpty())
        m_transform.fit(m_model.bounds(), std::min(m_model.gridLines().empty() ? fitMargin : gridLineMargin, std::min(width(), height()) / 5.0));
    changed();
}

void PlanView::zoom(double factor)
{
    m_transform.zoomAt(QRectF(rect()).center(), factor);
    moved();
}

void PlanView::showPointNumbers(bool show)
{
    m_pointNumbers = show;
    changed();
}

/// The user has moved the picture.
void PlanView::moved()
{
    m_fitted = false;
    update();
}

void PlanView::resizeEvent(QResizeEvent* /*event*/)
{
    m_transform.resize(size());
    if (m_fitted)
        fit();
}

void PlanView::changeEvent(QEvent* event)
{
    QWidget::changeEvent(event);
    if (event->type() == QEvent::PaletteChange || event->type() == QEvent::FontChange)
        changed();
}

// Selection

void PlanView::click(const QPointF& place, bool adding)
{
    bringUpToDate();
    if (PlanPicking::isActive()) {
        showPickResult(m_picking.pick(m_model, hitAt(place)));
        return;
    }
    const std::optional<PlanHit> hit = hitAt(place);
    if (!hit) {
        if (!adding)
            clearSelection();
        return;
    }
    T_SELECTION selection;
    if (adding)
        selection = m_document->GetViewCtrl()->selection();
    if (hit->kind == PlanKind::point)
        toggle(selection.points, m_model.points()[hit->index].key);
    else if (hit->kind == PlanKind::line)
        toggle(selection.lines, m_model.lines()[hit->index].key);
    else
        toggle(selection.areas, m_model.areas()[hit->index].key);
    m_hand.select(*m_document, selection);
}

void PlanView::selectBand(bool adding)
{
    bringUpToDate();
    const QRectF band = m_transform.toWorld(QRectF(m_pressed, m_last));
    const bool touched = m_last.x() < m_pressed.x();
    T_SELECTION selection = objectsIn(m_model, band, touched);
    if (adding) {
        const T_SELECTION before = m_document->GetViewCtrl()->selection();
        append(selection.points, before.points);
        append(selection.lines, before.lines);
        append(selection.areas, before.areas);
        selection.nodes = before.nodes;
        selection.elements = before.elements;
    }
    if (selection == T_SELECTION())
        clearSelection();
    else
        m_hand.select(*m_document, selection);
}

void PlanView::clearSelection()
{
    if (m_document->GetViewCtrl()->selection() != T_SELECTION())
        m_hand.select(*m_document, {});
}

// Picking

void PlanView::showPickResult(const QString& refusal)
{
    m_note = refusal;
    followPicking();
    update();
}

/// Keeps what is drawn for the pick field in step with it.
void PlanView::followPicking()
{
    const bool active = PlanPicking::isActive();
    if (active != m_pickWatch.isActive()) {
        m_note.clear();
        if (active)
            m_pickWatch.start();
        else
            m_pickWatch.stop();
        update();
    }
    if (std::vector<Key> corners = PlanPicking::keys(); corners != m_shownCorners) {
        m_shownCorners = std::move(corners);
        update();
    }
    showCursor();
}

void PlanView::showCursor()
{
    if (m_drag == Drag::pan)
        setCursor(Qt::ClosedHandCursor);
    else if (m_space)
        setCursor(Qt::OpenHandCursor);
    else
        setCursor(PlanPicking::isActive() || m_view.modelingMode() >= 0 ? Qt::CrossCursor : Qt::ArrowCursor);
}

// The mouse

std::optional<PlanHit> PlanView::hitAt(const QPointF& place)
{
    return objectAt(m_model, m_transform.toWorld(place), reach / m_transform.scale(), PlanPicking::kinds());
}

void PlanView::wheelEvent(QWheelEvent* event)
{
    constexpr double notch = 120;
    m_transform.zoomAt(event->position(), std::pow(zoomStep, event->angleDelta().y() / notch));
    moved();
    event->accept();
}

void PlanView::mousePressEvent(QMouseEvent* event)
{
    if (m_document == nullptr || m_drag != Drag::none)
        return;
    m_pressed = m_last = event->position();
    const bool panning = event->button() == Qt::MiddleButton || event->button() == Qt::RightButton || m_space;
    if (panning)
        m_drag = Drag::pan;
    else if (event->button() == Qt::LeftButton)
        m_drag = Drag::click;
    showCursor();
}

void PlanView::mouseMoveEvent(QMouseEvent* event)
{
    const QPointF place = event->position();
    if (m_drag == Drag::pan) {
        m_transform.pan(place - m_last);
        moved();
    }
    if (m_drag == Drag::click && !PlanPicking::isActive() && (place - m_pressed).manhattanLength() >= QApplication::startDragDistance())
        m_drag = Drag::band;
    m_last = place;
    if (m_drag == Drag::band)
        update();
    hover(place);
}

void PlanView::mouseReleaseEvent(QMouseEvent* event)
{
    const Drag drag = std::exchange(m_drag, Drag::none);
    m_last = event->position();
    const bool adding = event->modifiers().testFlag(Qt::ControlModifier);
    showCursor();
    update();
    if (m_document == nullptr)
        return;
    if (drag == Drag::click)
        click(m_pressed, adding);
    else if (drag == Drag::band)
        selectBand(adding);
}

void PlanView::mouseDoubleClickEvent(QMouseEvent* event)
{
    // The first click of the two has picked the last corner.
    if (event->button() == Qt::LeftButton && PlanPicking::drawsOutline())
        showPickResult(m_picking.close());
    else
        mousePressEvent(event);
}

void PlanView::leaveEvent(QEvent* /*event*/)
{
    m_hover.reset();
    update();
    if (m_onStatus)
        m_onStatus({});
}

void PlanView::hover(const QPointF& place)
{
    bringUpToDate();
    const std::optional<PlanHit> hit = m_drag == Drag::none ? hitAt(place) : std::nullopt;
    if (hit != m_hover) {
        m_hover = hit;
        update();
    }
    if (m_onStatus)
        m_onStatus(placeText(place, hit));
}

QString PlanView::placeText(const QPointF& place, const std::optional<PlanHit>& hit) const
{
    const QPointF world = m_transform.toWorld(place);
    const int places = std::clamp(static_cast<int>(std::ceil(std::log10(m_transform.scale()))), 0, 6);
    const auto coordinates = [&](const QPointF& at) {
        return QStringLiteral("X %1  Y %2 %3").arg(QString::number(at.x(), 'f', places), QString::number(at.y(), 'f', places), lengthUnit());
    };
    if (!hit)
        return coordinates(world);
    if (hit->kind == PlanKind::point) {
        const PlanPoint& point = m_model.points()[hit->index];
        return coordinates(point.at) + QStringLiteral("   Point %1").arg(point.key);
    }
    if (hit->kind == PlanKind::line)
        return coordinates(world) + QStringLiteral("   Line %1").arg(m_model.lines()[hit->index].key);
    return coordinates(world) + QStringLiteral("   Area %1").arg(m_model.areas()[hit->index].key);
}

QString PlanView::lengthUnit() const
{
    CString text;
    CUnitCtrl::GetUnitSystem(Unit::length, text);
    return toQt(text);
}

// The keyboard

/// Keys of the view come before the shortcuts of menus that bear the same.
bool PlanView::event(QEvent* event)
{
    if (event->type() == QEvent::ShortcutOverride) {
        const auto* key = static_cast<QKeyEvent*>(event);
        if (key->modifiers() == Qt::NoModifier && (key->key() == Qt::Key_Escape || key->key() == Qt::Key_Space || key->key() == Qt::Key_Backspace))
            event->accept();
    }
    return QWidget::event(event);
}

void PlanView::keyPressEvent(QKeyEvent* event)
{
    const auto pan = [this](double x, double y) {
        m_transform.pan({x * panStep * width(), y * panStep * height()});
        moved();
    };
    switch (event->key()) {
    case Qt::Key_F:
    case Qt::Key_Home:
        return fit();
    case Qt::Key_Plus:
    case Qt::Key_Equal:
        return zoom(zoomStep);
    case Qt::Key_Minus:
        return zoom(1 / zoomStep);
    case Qt::Key_Left:
        return pan(1, 0);
    case Qt::Key_Right:
        return pan(-1, 0);
    case Qt::Key_Up:
        return pan(0, 1);
    case Qt::Key_Down:
        return pan(0, -1);
    case Qt::Key_Return:
    case Qt::Key_Enter:
        return showPickResult(m_picking.close());
    case Qt::Key_Backspace:
        return showPickResult(m_picking.removeLast());
    case Qt::Key_Space:
        m_space = true;
        return showCursor();
    case Qt::Key_Escape:
        if (m_drag == Drag::band) {
            m_drag = Drag::none;
            return update();
        }
        if (PlanPicking::isActive())
            return showPickResult(m_picking.clear());
        if (m_document != nullptr)
            clearSelection();
        return;
    default:
        break;
    }
    QWidget::keyPressEvent(event);
}

void PlanView::keyReleaseEvent(QKeyEvent* event)
{
    if (event->key() == Qt::Key_Space && !event->isAutoRepeat()) {
        m_space = false;
        return showCursor();
    }
    QWidget::keyReleaseEvent(event);
}

}  // namespace zel::desktop
