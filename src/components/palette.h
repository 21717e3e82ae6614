// SPDX-License-Identifier: MIT
#pragma once

#include <QColor>

#include <optional>

namespace vesk {

/// The colours that all others are made of, for one colour scheme.
struct Palette
{
    QColor background;
    /// Text and, at low opacity, every line and fill.
    QColor primary;
    QColor secondary;
    QColor tertiary;
    QColor quaternary;
    QColor accent;
    /// Text and symbols on a fill of the accent colour.
    QColor onAccent;
    /// Something needs the user's attention.
    QColor attention;
};

/// How strongly two opaque colours differ for the eye, from 1 (not at all) to 21 (black and white).
[[nodiscard]] qreal contrast(const QColor &a, const QColor &b);

/// The palette of a scheme. The user's accent colour keeps its hue and is made lighter or darker
/// until it can be read on the background.
[[nodiscard]] Palette palette(bool isDark, const std::optional<QColor> &accent);

} // namespace vesk
