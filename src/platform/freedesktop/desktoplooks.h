// SPDX-License-Identifier: MIT
#pragma once

#include "platform/appearance.h"

namespace vesk {

/// What a settings service says about the looks of the desktop; nullopt where it says nothing.
struct DesktopLooks
{
    std::optional<Appearance::ColorScheme> colorScheme;
    std::optional<QColor> accentColor;
    std::optional<bool> reducesMotion;
    std::optional<bool> increasesContrast;
    std::optional<Appearance::TextFont> textFont;
    std::optional<bool> cursorBlinks;
    std::optional<std::chrono::milliseconds> cursorBlinkTime;

    friend bool operator==(const DesktopLooks &, const DesktopLooks &) = default;
};

/// Parses a font description such as "Noto Sans Bold 11". Returns nullopt if it has no family or no size.
[[nodiscard]] std::optional<Appearance::TextFont> textFontFrom(const QString &description);

/// Whether the name of a theme indicates a dark theme, or one with high contrast.
[[nodiscard]] bool isDarkTheme(const QString &name);
[[nodiscard]] bool isHighContrastTheme(const QString &name);

} // namespace vesk
