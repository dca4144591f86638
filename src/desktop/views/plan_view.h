#pragma once

#include "desktop/views/desktop_model_view.h"
#include "desktop/views/plan_model.h"
#include "desktop/views/plan_picking.h"
#include "desktop/views/plan_transform.h"

#include <QPixmap>
#include <QTimer>
#include <QWidget>

#include <functional>
#include <optional>

namespace zel::desktop {

/// The model seen from above: points, lines, areas and supports. Clicks and rubber bands select, or feed the pick field that has the focus.
///
/// The wheel zooms at the cursor; the middle button, the right one, or the left one with Space move the plan. A band drawn to the right selects what
/// lies inside it, one drawn to the left also what it touches; Ctrl adds.
class PlanView final : public QWidget {
public:
    PlanView(UserHand& hand, QWidget* parent);
    ~PlanView() override;

    /// Shows another model; null shows none.
    void setDocument(CDBDoc* document);
    /// Follows a notice of the model.
    void showNotice(long long hint);
    /// Called with the place under the cursor and what is there; an empty text when the cursor leaves.
    void onStatus(std::function<void(const QString&)> take) { m_onStatus = std::move(take); }

    void fit();
    /// Zooms in the middle of the canvas.
    void zoom(double factor);
    void showPointNumbers(bool show);

    [[nodiscard]] const PlanTransform& transform() const { return m_transform; }
    [[nodiscard]] DesktopModelView& modelView() { return m_view; }
    /// The objects as they stand in the model now.
    [[nodiscard]] const PlanModel& model();

    [[nodiscard]] QSize sizeHint() const override { return {640, 480}; }
    [[nodiscard]] QSize minimumSizeHint() const override { return {160, 120}; }

protected:
    bool event(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void changeEvent(QEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void leaveEvent(QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void keyReleaseEvent(QKeyEvent* event) override;

private:
    enum class Drag { none, click, band, pan };

    // The model.
    void bringUpToDate();
    void rescaleToUnit();

    // Input.
    void moved();
    void click(const QPointF& place, bool adding);
    void selectBand(bool adding);
    void clearSelection();
    void showPickResult(const QString& refusal);
    void followPicking();
    void showCursor();
    [[nodiscard]] std::optional<PlanHit> hitAt(const QPointF& place);
    void hover(const QPointF& place);
    [[nodiscard]] QString placeText(const QPointF& place, const std::optional<PlanHit>& hit) const;

    // The picture.
    void changed();
    void drawPicture();
    void paintOverlays(QPainter& painter);
    void paintOutline(QPainter& painter);
    void paintBand(QPainter& painter);
    void paintAdvice(QPainter& painter);
    void paintEmpty(QPainter& painter);
    void paintHover(QPainter& painter);
    [[nodiscard]] QString lengthUnit() const;

    UserHand& m_hand;
    CDBDoc* m_document = nullptr;
    DesktopModelView m_view;
    PlanPicking m_picking;
    PlanModel m_model;
    PlanTransform m_transform;
    std::function<void(const QString&)> m_onStatus;
    double m_lengthUnit = 0;  ///< size of the model's unit when it was read [m]
    bool m_modelStale = false;
    bool m_selectionStale = false;
    bool m_fitted = true;  ///< the whole model is shown, also after a change of it or of the size of the canvas
    bool m_pointNumbers = false;

    Drag m_drag = Drag::none;
    bool m_space = false;
    QPointF m_pressed;
    QPointF m_last;
    std::optional<PlanHit> m_hover;
    QString m_note;                   ///< why the last pick was refused
    std::vector<Key> m_shownCorners;  ///< of the outline, as it was last drawn
    QTimer m_pickWatch;               ///< while a pick field has the focus: its text may be typed, too

    QPixmap m_picture;  ///< the objects, without what follows the cursor
    PlanTransform m_pictureTransform;
    bool m_pictureStale = true;
    qint64 m_pictureTime = 0;  ///< to draw it [ms]
    QTimer m_redraw;
};

}  // namespace zel::desktop
