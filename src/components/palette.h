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
    /// Of symbols, lines and small fills.
    QColor accent;
    /// Of what has a text or a symbol on it: as the accent colour, or darker.
    QColor accentFill;
    /// Text and symbols on a fill of the accent colour.
    QColor onAccent;
    /// Something needs the user's attention.
    QColor attention;
    /// The same for small text.
    QColor attentionText;
    /// All is well; small text too.
    QColor success;
    /// By how much the opacity of lines grows where they have to stand out.
    float lineStrength = 1;
};

/// What the user has chosen of a desktop's colours.
struct ColorChoice
{
    bool isDark = false;
    /// Black on white, or white on black, with strong lines.
    bool hasHighContrast = false;
    /// None for Vesk's own blue.
    std::optional<QColor> accent = std::nullopt;
};

/// How strongly two opaque colours differ for the eye, from 1 (not at all) to 21 (black and white).
[[nodiscard]] qreal contrast(const QColor &a, const QColor &b);

/// The palette of a choice. The user's accent colour keeps its hue and is made lighter or darker
/// until it can be read on the background.
[[nodiscard]] Palette palette(const ColorChoice &choice);

} // namespace vesk
