// SPDX-License-Identifier: MIT
#include "components/palette.h"

#include <cmath>

namespace vesk {

namespace {

/// The contrast at which symbols and bold labels are readable; smaller text never uses the accent colour.
constexpr qreal kReadableContrast = 3.5;
/// The same for users who need high contrast.
constexpr qreal kHighContrast = 7;
/// The contrast at which white on a fill is readable.
constexpr qreal kContrastOnFill = 4;
/// If white has less contrast than this on an accent colour, texts on it are dark, however much the colour
/// could be darkened.
constexpr qreal kContrastForWhite = 2.6;
/// The step by which lightness is changed.
constexpr float kStep = 0.02F;

QColor withOpacity(QColor color, float opacity)
{
    color.setAlphaF(opacity);
    return color;
}

qreal luminance(const QColor &color)
{
    // The luminance weights of the sRGB primaries, after undoing their gamma.
    const auto linear = [](float channel) {
        return channel <= 0.04045F ? channel / 12.92 : std::pow((channel + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * linear(color.redF()) + 0.7152 * linear(color.greenF()) + 0.0722 * linear(color.blueF());
}

/// The same hue, made lighter or darker until it contrasts sufficiently with `other`.
QColor apartFrom(const QColor &other, QColor color, qreal wanted, float step)
{
    while (contrast(color, other) < wanted) {
        float hue = 0;
        float saturation = 0;
        float lightness = 0;
        color.getHslF(&hue, &saturation, &lightness);
        lightness += step;
        if (lightness <= 0 || lightness >= 1)
            break;
        color.setHslF(hue, saturation, lightness);
    }
    return QColor(color.rgb());
}

void chooseFill(Palette &made, const ColorChoice &choice)
{
    made.accentFill = made.accent;
    // Contrast is symmetric: the background colour is readable on the accent colour, too.
    if (choice.hasHighContrast)
        made.onAccent = made.background;
    else if (contrast(made.accent, Qt::white) < kContrastForWhite)
        made.onAccent = QColor(0x1a, 0x1a, 0x1e);
    else
        made.onAccent = Qt::white;
    if (made.onAccent == QColor(Qt::white))
        made.accentFill = apartFrom(Qt::white, made.accent, kContrastOnFill, -kStep);
}

} // namespace

qreal contrast(const QColor &a, const QColor &b)
{
    const qreal first = luminance(a) + 0.05;
    const qreal second = luminance(b) + 0.05;
    return std::max(first, second) / std::min(first, second);
}

Palette palette(const ColorChoice &choice)
{
    const bool isDark = choice.isDark;
    const QColor ownAccent = isDark ? QColor(0x4c, 0x94, 0xff) : QColor(0x1f, 0x6f, 0xeb);
    Palette made;
    if (choice.hasHighContrast) {
        made.background = isDark ? Qt::black : Qt::white;
        made.primary = isDark ? Qt::white : Qt::black;
        made.secondary = withOpacity(made.primary, 0.9F);
        made.tertiary = withOpacity(made.primary, 0.75F);
        made.quaternary = withOpacity(made.primary, 0.55F);
        made.attention = isDark ? QColor(0xff, 0xb3, 0x40) : QColor(0xa8, 0x50, 0x00);
        made.attentionText = isDark ? made.attention : QColor(0x8a, 0x42, 0x00);
        made.success = isDark ? QColor(0x5a, 0xe0, 0x80) : QColor(0x0d, 0x5f, 0x26);
        made.lineStrength = 5;
    } else {
        const QColor ink = isDark ? QColor(0xf5, 0xf5, 0xf7) : QColor(0x1a, 0x1a, 0x1e);
        made.background = isDark ? QColor(0x1f, 0x1f, 0x22) : QColor(0xff, 0xff, 0xff);
        made.primary = ink;
        made.secondary = withOpacity(ink, isDark ? 0.64F : 0.62F);
        made.tertiary = withOpacity(ink, isDark ? 0.44F : 0.46F);
        made.quaternary = withOpacity(ink, isDark ? 0.22F : 0.20F);
        made.attention = isDark ? QColor(0xff, 0x9f, 0x2e) : QColor(0xf0, 0x84, 0x0c);
        made.attentionText = isDark ? made.attention : QColor(0xb4, 0x58, 0x00);
        made.success = isDark ? QColor(0x3f, 0xd1, 0x6b) : QColor(0x17, 0x7d, 0x37);
    }
    made.accent =
        apartFrom(made.background, choice.accent.value_or(ownAccent),
                  choice.hasHighContrast ? kHighContrast : kReadableContrast, isDark ? kStep : -kStep);
    chooseFill(made, choice);
    return made;
}

} // namespace vesk
