// SPDX-License-Identifier: MIT
#pragma once

#include "platform/appearance.h"

namespace vesk {

/// What one of a desktop's settings services says of its looks; none for what it does not say.
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

/// The font that a description such as "Noto Sans Bold 11" names; none if it has no family or size.
[[nodiscard]] std::optional<Appearance::TextFont> textFontFrom(const QString &description);

/// Whether a theme of this name is a dark one, and whether it is one of high contrast.
[[nodiscard]] bool isDarkTheme(const QString &name);
[[nodiscard]] bool isHighContrastTheme(const QString &name);

} // namespace vesk
