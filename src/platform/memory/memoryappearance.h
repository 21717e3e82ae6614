// SPDX-License-Identifier: MIT
#pragma once

#include "platform/appearance.h"

namespace vesk {

/// The looks of the desktop, as set by a test.
class MemoryAppearance final : public Appearance
{
    Q_OBJECT

public:
    [[nodiscard]] ColorScheme colorScheme() const override { return m_colorScheme; }
    [[nodiscard]] std::optional<QColor> accentColor() const override { return m_accentColor; }
    [[nodiscard]] bool shouldReduceMotion() const override { return m_reducesMotion; }
    [[nodiscard]] bool shouldIncreaseContrast() const override { return m_increasesContrast; }
    [[nodiscard]] TextFont textFont() const override { return m_textFont; }
    [[nodiscard]] std::optional<std::chrono::milliseconds> cursorFlashTime() const override
    {
        return m_cursorFlashTime;
    }

    void setColorScheme(ColorScheme scheme) { assign(m_colorScheme, scheme); }
    void setAccentColor(const std::optional<QColor> &color) { assign(m_accentColor, color); }
    void setReduceMotion(bool reducesMotion) { assign(m_reducesMotion, reducesMotion); }
    void setIncreaseContrast(bool increasesContrast) { assign(m_increasesContrast, increasesContrast); }
    void setTextFont(const TextFont &font) { assign(m_textFont, font); }
    void setCursorFlashTime(std::optional<std::chrono::milliseconds> time)
    {
        assign(m_cursorFlashTime, time);
    }

private:
    template <typename Value>
    void assign(Value &member, const Value &value)
    {
        if (member == value)
            return;
        member = value;
        Q_EMIT changed();
    }

    ColorScheme m_colorScheme = ColorScheme::Light;
    std::optional<QColor> m_accentColor;
    bool m_reducesMotion = false;
    bool m_increasesContrast = false;
    TextFont m_textFont;
    std::optional<std::chrono::milliseconds> m_cursorFlashTime;
};

} // namespace vesk
