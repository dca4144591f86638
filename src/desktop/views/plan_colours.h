#pragma once

#include <QColor>
#include <QPalette>

namespace zel::desktop {

/// The colours of the plan, made of the palette so that they stand out on a light and on a dark ground.
struct PlanColours {
    QColor ground;
    QColor text;
    QColor highlight;
    QColor highlightedText;
    QColor column;
    QColor wall;
    QColor pile;
    QColor soil;
    QColor axisX;
    QColor axisY;
    QColor picked;

    explicit PlanColours(const QPalette& palette)
        : ground(palette.color(QPalette::Base)),
          text(palette.color(QPalette::Text)),
          highlight(palette.color(QPalette::Highlight)),
          highlightedText(palette.color(QPalette::HighlightedText)),
          column(tint(14)),
          wall(tint(330)),
          pile(tint(188)),
          soil(tint(95)),
          axisX(tint(0)),
          axisY(tint(130)),
          picked(tint(28))
    {
    }

    /// Between the ground (0) and the text (1).
    [[nodiscard]] QColor ink(double part) const
    {
        const auto mix = [part](float from, float to) { return from + (to - from) * static_cast<float>(part); };
        return QColor::fromRgbF(mix(ground.redF(), text.redF()), mix(ground.greenF(), text.greenF()), mix(ground.blueF(), text.blueF()));
    }

    [[nodiscard]] static QColor clear(QColor colour, double alpha)
    {
        colour.setAlphaF(static_cast<float>(alpha));
        return colour;
    }

private:
    [[nodiscard]] QColor tint(int hue) const
    {
        const bool dark = ground.lightness() < 128;
        return QColor::fromHsl(hue, dark ? 170 : 190, dark ? 155 : 95);
    }
};

}  // namespace zel::desktop
