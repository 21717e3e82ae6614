// SPDX-License-Identifier: MIT
#include "platform/freedesktop/portalappearance.h"

#include <QDBusArgument>
#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>
#include <QDBusVariant>

namespace vesk {

namespace {

const QString kService = QStringLiteral("org.freedesktop.portal.Desktop");
const QString kPath = QStringLiteral("/org/freedesktop/portal/desktop");
const QString kInterface = QStringLiteral("org.freedesktop.portal.Settings");
const QString kAppearance = QStringLiteral("org.freedesktop.appearance");
const QString kColorScheme = QStringLiteral("color-scheme");
const QString kAccentColor = QStringLiteral("accent-color");
const QString kGnomeInterface = QStringLiteral("org.gnome.desktop.interface");
const QString kEnableAnimations = QStringLiteral("enable-animations");

/// Three fractions of red, green and blue; outside 0 to 1 they mean that there is no accent.
std::optional<QColor> accentFrom(const QVariant &value)
{
    if (!value.canConvert<QDBusArgument>())
        return std::nullopt;
    const auto argument = value.value<QDBusArgument>();
    if (argument.currentSignature() != QLatin1String("(ddd)"))
        return std::nullopt;
    double red = -1;
    double green = -1;
    double blue = -1;
    argument.beginStructure();
    argument >> red >> green >> blue;
    argument.endStructure();
    const auto isFraction = [](double part) { return part >= 0 && part <= 1; };
    if (!isFraction(red) || !isFraction(green) || !isFraction(blue))
        return std::nullopt;
    return QColor::fromRgbF(static_cast<float>(red), static_cast<float>(green), static_cast<float>(blue));
}

} // namespace

PortalAppearance::PortalAppearance()
{
    QDBusConnection::sessionBus().connect(kService, kPath, kInterface, QStringLiteral("SettingChanged"), this,
                                          SLOT(onSettingChanged(QString, QString, QDBusVariant)));
    ask(kAppearance, kColorScheme);
    ask(kAppearance, kAccentColor);
    ask(kGnomeInterface, kEnableAnimations);
}

void PortalAppearance::onSettingChanged(const QString &group, const QString &key, const QDBusVariant &value)
{
    if (take(group, key, value.variant()))
        Q_EMIT changed();
}

void PortalAppearance::ask(const QString &group, const QString &key)
{
    QDBusMessage call = QDBusMessage::createMethodCall(kService, kPath, kInterface, QStringLiteral("Read"));
    call << group << key;
    auto *watcher = new QDBusPendingCallWatcher(QDBusConnection::sessionBus().asyncCall(call), this);
    connect(watcher, &QDBusPendingCallWatcher::finished, this, [this, watcher, group, key] {
        watcher->deleteLater();
        const QDBusPendingReply<QDBusVariant> reply = *watcher;
        // No portal, or one that does not know the key: the first values hold.
        if (reply.isError())
            return;
        QVariant value = reply.value().variant();
        // Read wraps the value twice, for a reason of its own history.
        if (value.canConvert<QDBusVariant>())
            value = value.value<QDBusVariant>().variant();
        if (take(group, key, value))
            Q_EMIT changed();
    });
}

bool PortalAppearance::take(const QString &group, const QString &key, const QVariant &value)
{
    if (group == kAppearance && key == kColorScheme) {
        constexpr uint kPreferDark = 1;
        m_colorScheme = value.toUInt() == kPreferDark ? ColorScheme::Dark : ColorScheme::Light;
    } else if (group == kAppearance && key == kAccentColor) {
        m_accentColor = accentFrom(value);
    } else if (group == kGnomeInterface && key == kEnableAnimations) {
        m_reducesMotion = !value.toBool();
    } else {
        return false;
    }
    return true;
}

} // namespace vesk
