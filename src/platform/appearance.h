// SPDX-License-Identifier: MIT
#pragma once

#include <QColor>
#include <QObject>
#include <QString>

#include <chrono>
#include <optional>

namespace vesk {

/// How the user wants the desktop to look.
class Appearance : public QObject
{
    Q_OBJECT

public:
    enum class ColorScheme {
        Light,
        Dark,
    };

    /// The font that the desktop uses for its own texts.
    struct TextFont
    {
        /// Empty if the desktop does not say.
        QString family;
        /// The user's text size as a factor; 1 is the default. Applies on top of the scale of the screen,
        /// which every point already includes.
        qreal scale = 1;

        friend bool operator==(const TextFont &, const TextFont &) = default;
    };

    [[nodiscard]] virtual ColorScheme colorScheme() const = 0;
    /// The user's accent colour; nullopt if the desktop has no such setting.
    [[nodiscard]] virtual std::optional<QColor> accentColor() const = 0;
    /// Whether the user wants no animation.
    [[nodiscard]] virtual bool shouldReduceMotion() const = 0;
    /// Whether the user wants high contrast.
    [[nodiscard]] virtual bool shouldIncreaseContrast() const = 0;
    [[nodiscard]] virtual TextFont textFont() const = 0;
    /// The period of a blinking text cursor; 0 if it does not blink, nullopt if the desktop does not say.
    [[nodiscard]] virtual std::optional<std::chrono::milliseconds> cursorFlashTime() const = 0;

Q_SIGNALS:
    /// Emitted when any of these values has changed.
    void changed();
};

} // namespace vesk
