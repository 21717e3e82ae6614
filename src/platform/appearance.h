// SPDX-License-Identifier: MIT
#pragma once

#include <QColor>
#include <QObject>

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

    [[nodiscard]] virtual ColorScheme colorScheme() const = 0;
    /// The user's accent colour; none if the desktop has no such choice.
    [[nodiscard]] virtual std::optional<QColor> accentColor() const = 0;
    /// Whether the user wants no animation.
    [[nodiscard]] virtual bool shouldReduceMotion() const = 0;

Q_SIGNALS:
    /// One of the three has changed.
    void changed();
};

} // namespace vesk
