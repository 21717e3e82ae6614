// SPDX-License-Identifier: MIT
#include "platform/freedesktop/portalappearance.h"

#include <QDBusArgument>
#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>
#include <QDBusVariant>

namespace vesk {

using namespace Qt::StringLiterals;

namespace {

const QString kService = u"org.freedesktop.portal.Desktop"_s;
const QString kPath = u"/org/freedesktop/portal/desktop"_s;
const QString kInterface = u"org.freedesktop.portal.Settings"_s;
const QString kAppearance = u"org.freedesktop.appearance"_s;
const QString kGnome = u"org.gnome.desktop.interface"_s;
const QString kGnomeAccess = u"org.gnome.desktop.a11y.interface"_s;

/// Red, green and blue from 0 to 1; values outside mean that there is no accent colour.
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

/// A preference of the user, where 0 means that there is none.
std::optional<bool> preference(const QVariant &value)
{
    return value.toUInt() == 1 ? std::optional(true) : std::nullopt;
}

std::optional<Appearance::ColorScheme> colorSchemeFrom(const QVariant &value)
{
    switch (value.toUInt()) {
    case 1:
        return Appearance::ColorScheme::Dark;
    case 2:
        return Appearance::ColorScheme::Light;
    default:
        return std::nullopt;
    }
}

struct Setting
{
    const QString &group;
    QString key;
    void (*take)(DesktopLooks &looks, const QVariant &value);
};

/// Every setting that is used here, and how to interpret it.
const QList<Setting> &settings()
{
    static const QList<Setting> all{
        {kAppearance, u"color-scheme"_s,
         [](DesktopLooks &looks, const QVariant &value) { looks.colorScheme = colorSchemeFrom(value); }},
        {kAppearance, u"accent-color"_s,
         [](DesktopLooks &looks, const QVariant &value) { looks.accentColor = accentFrom(value); }},
        {kAppearance, u"contrast"_s,
         [](DesktopLooks &looks, const QVariant &value) { looks.increasesContrast = preference(value); }},
        {kAppearance, u"reduced-motion"_s,
         [](DesktopLooks &looks, const QVariant &value) { looks.reducesMotion = preference(value); }},
        {kGnomeAccess, u"high-contrast"_s,
         [](DesktopLooks &looks, const QVariant &value) { looks.increasesContrast = value.toBool(); }},
        {kGnome, u"enable-animations"_s,
         [](DesktopLooks &looks, const QVariant &value) { looks.reducesMotion = !value.toBool(); }},
        {kGnome, u"font-name"_s,
         [](DesktopLooks &looks, const QVariant &value) { looks.textFont = textFontFrom(value.toString()); }},
        {kGnome, u"cursor-blink"_s,
         [](DesktopLooks &looks, const QVariant &value) { looks.cursorBlinks = value.toBool(); }},
        {kGnome, u"cursor-blink-time"_s,
         [](DesktopLooks &looks, const QVariant &value) {
             looks.cursorBlinkTime = std::chrono::milliseconds(value.toInt());
         }},
    };
    return all;
}

} // namespace

PortalAppearance::PortalAppearance()
{
    QDBusConnection::sessionBus().connect(kService, kPath, kInterface, u"SettingChanged"_s, this,
                                          SLOT(onSettingChanged(QString, QString, QDBusVariant)));
    for (const Setting &setting : settings())
        ask(setting.group, setting.key);
}

void PortalAppearance::onSettingChanged(const QString &group, const QString &key, const QDBusVariant &value)
{
    take(group, key, value.variant());
}

void PortalAppearance::ask(const QString &group, const QString &key)
{
    QDBusMessage call = QDBusMessage::createMethodCall(kService, kPath, kInterface, u"Read"_s);
    call << group << key;
    auto *watcher = new QDBusPendingCallWatcher(QDBusConnection::sessionBus().asyncCall(call), this);
    connect(watcher, &QDBusPendingCallWatcher::finished, this, [this, watcher, group, key] {
        watcher->deleteLater();
        const QDBusPendingReply<QDBusVariant> reply = *watcher;
        // There is no portal, or it does not know the key: leave the setting unset.
        if (reply.isError())
            return;
        QVariant value = reply.value().variant();
        // Read wraps the value twice, for historical reasons.
        if (value.canConvert<QDBusVariant>())
            value = value.value<QDBusVariant>().variant();
        take(group, key, value);
    });
}

void PortalAppearance::take(const QString &group, const QString &key, const QVariant &value)
{
    const DesktopLooks before = m_looks;
    for (const Setting &setting : settings()) {
        if (setting.group == group && setting.key == key)
            setting.take(m_looks, value);
    }
    if (m_looks != before)
        Q_EMIT changed();
}

} // namespace vesk
