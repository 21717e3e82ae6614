// SPDX-License-Identifier: MIT
#pragma once

#include <QColor>

#include <optional>

namespace vesk {

/// The colours that all others derive from, for one colour scheme.
struct Palette
{
    QColor background;
    /// Text; at low opacity, every line and fill.
    QColor primary;
    QColor secondary;
    QColor tertiary;
    QColor quaternary;
    /// Symbols, lines and small fills.
    QColor accent;
    /// Fills behind a text or symbol: the accent colour, or a darker shade.
    QColor accentFill;
    /// Text and symbols on `accentFill`.
    QColor onAccent;
    /// Something that needs the user's attention.
    QColor attention;
    /// The same for small text.
    QColor attentionText;
    /// Confirmation that all is well; also for small text.
    QColor success;
    /// The factor by which lines become more opaque when they must stand out.
    float lineStrength = 1;
};

/// The user's colour preferences.
struct ColorChoice
{
    bool isDark = false;
    /// Black on white, or white on black, with strong lines.
    bool hasHighContrast = false;
    /// nullopt for Vesk's own blue.
    std::optional<QColor> accent = std::nullopt;
};

/// The contrast ratio of two opaque colours, from 1 (none) to 21 (black and white).
[[nodiscard]] qreal contrast(const QColor &a, const QColor &b);

/// The palette for the given preferences. The user's accent colour keeps its hue and is made lighter or
/// darker until it is readable on the background.
[[nodiscard]] Palette palette(const ColorChoice &choice);

} // namespace vesk
