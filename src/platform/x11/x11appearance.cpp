// SPDX-License-Identifier: MIT
#include "platform/x11/x11appearance.h"

#include "platform/freedesktop/portalappearance.h"
#include "platform/x11/xsettings.h"

namespace vesk {

X11Appearance::X11Appearance(const PortalAppearance &portal, const XSettings &settings)
    : m_portal(portal)
    , m_settings(settings)
{
    connect(&portal, &PortalAppearance::changed, this, &Appearance::changed);
    connect(&settings, &XSettings::changed, this, &Appearance::changed);
}

Appearance::ColorScheme X11Appearance::colorScheme() const
{
    const std::optional<ColorScheme> fallback = m_settings.looks().colorScheme;
    return m_portal.looks().colorScheme.value_or(fallback.value_or(ColorScheme::Light));
}

std::optional<QColor> X11Appearance::accentColor() const
{
    return m_portal.looks().accentColor;
}

bool X11Appearance::shouldReduceMotion() const
{
    // A portal without a setting reports that animations are allowed.
    return m_portal.looks().reducesMotion.value_or(false) || m_settings.looks().reducesMotion.value_or(false);
}

bool X11Appearance::shouldIncreaseContrast() const
{
    return m_portal.looks().increasesContrast.value_or(false)
           || m_settings.looks().increasesContrast.value_or(false);
}

Appearance::TextFont X11Appearance::textFont() const
{
    const std::optional<TextFont> fallback = m_portal.looks().textFont;
    return m_settings.looks().textFont.value_or(fallback.value_or(TextFont()));
}

std::optional<std::chrono::milliseconds> X11Appearance::cursorFlashTime() const
{
    const DesktopLooks &first = m_settings.looks();
    const DesktopLooks &second = m_portal.looks();
    if (!first.cursorBlinks.value_or(second.cursorBlinks.value_or(true)))
        return std::chrono::milliseconds(0);
    return first.cursorBlinkTime ? first.cursorBlinkTime : second.cursorBlinkTime;
}

} // namespace vesk
