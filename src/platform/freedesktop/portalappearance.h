// SPDX-License-Identifier: MIT
#pragma once

#include "platform/appearance.h"

#include <QVariant>

class QDBusMessage;
class QDBusVariant;

namespace vesk {

/// The desktop's looks as its settings portal tells them; light, with no accent, where there is none.
class PortalAppearance final : public Appearance
{
    Q_OBJECT

public:
    /// Asks the portal; the answers arrive later, as `changed`.
    PortalAppearance();

    [[nodiscard]] ColorScheme colorScheme() const override { return m_colorScheme; }
    [[nodiscard]] std::optional<QColor> accentColor() const override { return m_accentColor; }
    [[nodiscard]] bool shouldReduceMotion() const override { return m_reducesMotion; }

private Q_SLOTS:
    void onSettingChanged(const QString &group, const QString &key, const QDBusVariant &value);

private:
    void ask(const QString &group, const QString &key);
    /// Whether it was a setting that matters here.
    [[nodiscard]] bool take(const QString &group, const QString &key, const QVariant &value);

    ColorScheme m_colorScheme = ColorScheme::Light;
    std::optional<QColor> m_accentColor;
    bool m_reducesMotion = false;
};

} // namespace vesk
