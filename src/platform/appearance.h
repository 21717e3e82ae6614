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

    /// The font of the desktop's own texts.
    struct TextFont
    {
        /// Empty if the desktop does not tell.
        QString family;
        /// How large the user wants texts, where 1 is what desktops come with. Beyond the scale of the
        /// whole screen, which already is in every point.
        qreal scale = 1;

        friend bool operator==(const TextFont &, const TextFont &) = default;
    };

    [[nodiscard]] virtual ColorScheme colorScheme() const = 0;
    /// The user's accent colour; none if the desktop has no such choice.
    [[nodiscard]] virtual std::optional<QColor> accentColor() const = 0;
    /// Whether the user wants no animation.
    [[nodiscard]] virtual bool shouldReduceMotion() const = 0;
    /// Whether the user wants lines and texts that stand out strongly.
    [[nodiscard]] virtual bool shouldIncreaseContrast() const = 0;
    [[nodiscard]] virtual TextFont textFont() const = 0;
    /// How long a text cursor takes to go and come again; 0 for one that does not blink, none if the
    /// desktop does not tell.
    [[nodiscard]] virtual std::optional<std::chrono::milliseconds> cursorFlashTime() const = 0;

Q_SIGNALS:
    /// One of these has changed.
    void changed();
};

} // namespace vesk
