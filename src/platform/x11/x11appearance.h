// SPDX-License-Identifier: MIT
#pragma once

#include "platform/appearance.h"

namespace vesk {

class PortalAppearance;
class XSettings;

/// The looks of an X11 desktop. Its settings portal is asked first; where that says nothing, or there is
/// none, the XSETTINGS manager is. For texts it is the other way round: the portal of some desktops tells
/// the font of another.
class X11Appearance final : public Appearance
{
    Q_OBJECT

public:
    X11Appearance(const PortalAppearance &portal, const XSettings &settings);

    [[nodiscard]] ColorScheme colorScheme() const override;
    [[nodiscard]] std::optional<QColor> accentColor() const override;
    [[nodiscard]] bool shouldReduceMotion() const override;
    [[nodiscard]] bool shouldIncreaseContrast() const override;
    [[nodiscard]] TextFont textFont() const override;
    [[nodiscard]] std::optional<std::chrono::milliseconds> cursorFlashTime() const override;

private:
    const PortalAppearance &m_portal;
    const XSettings &m_settings;
};

} // namespace vesk
