// SPDX-License-Identifier: MIT
#pragma once

#include "platform/appearance.h"

namespace vesk {

/// A desktop's looks as a test sets them.
class MemoryAppearance final : public Appearance
{
    Q_OBJECT

public:
    [[nodiscard]] ColorScheme colorScheme() const override { return m_colorScheme; }
    [[nodiscard]] std::optional<QColor> accentColor() const override { return m_accentColor; }
    [[nodiscard]] bool shouldReduceMotion() const override { return m_reducesMotion; }

    void setColorScheme(ColorScheme scheme);
    void setAccentColor(const std::optional<QColor> &color);
    void setReduceMotion(bool reducesMotion);

private:
    ColorScheme m_colorScheme = ColorScheme::Light;
    std::optional<QColor> m_accentColor;
    bool m_reducesMotion = false;
};

} // namespace vesk
