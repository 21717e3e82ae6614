// SPDX-License-Identifier: MIT
#include "desktop/announcements.h"

#include <QDBusReply>
#include <QVariant>

using namespace Qt::StringLiterals;

namespace vesk {

namespace {

constexpr int kCallMilliseconds = 1000;
/// The bus protocol's number for the role of a notification.
constexpr uint kNotificationRole = 101;

const auto kSessionName = u"vesk-test-announcements-session"_s;
const auto kBusName = u"vesk-test-announcements"_s;
const auto kAccessible = u"org.a11y.atspi.Accessible"_s;

QString accessibilityAddress(const QString &sessionAddress)
{
    const QDBusConnection session = QDBusConnection::connectToBus(sessionAddress, kSessionName);
    const QDBusReply<QString> address =
        session.call(QDBusMessage::createMethodCall(u"org.a11y.Bus"_s, u"/org/a11y/bus"_s, u"org.a11y.Bus"_s,
                                                    u"GetAddress"_s),
                     QDBus::Block, kCallMilliseconds);
    QDBusConnection::disconnectFromBus(kSessionName);
    return address.value();
}

} // namespace

Announcements::Announcements(const QString &busAddress)
    : m_bus(QDBusConnection::connectToBus(accessibilityAddress(busAddress), kBusName))
{
    m_bus.connect({}, {}, u"org.a11y.atspi.Event.Object"_s, u"StateChanged"_s, this,
                  SLOT(onStateChanged(QDBusMessage)));
    // Toolkits send nothing that nobody has asked for.
    QDBusMessage asking =
        QDBusMessage::createMethodCall(u"org.a11y.atspi.Registry"_s, u"/org/a11y/atspi/registry"_s,
                                       u"org.a11y.atspi.Registry"_s, u"RegisterEvent"_s);
    asking.setArguments({u"object:state-changed:showing"_s});
    m_bus.call(asking, QDBus::Block, kCallMilliseconds);
}

Announcements::~Announcements()
{
    QDBusConnection::disconnectFromBus(kBusName);
}

void Announcements::onStateChanged(const QDBusMessage &message)
{
    const QVariantList arguments = message.arguments();
    if (arguments.size() < 2 || arguments.at(0) != u"showing"_s || arguments.at(1).toInt() != 1)
        return;
    const QDBusReply<uint> role = m_bus.call(
        QDBusMessage::createMethodCall(message.service(), message.path(), kAccessible, u"GetRole"_s),
        QDBus::Block, kCallMilliseconds);
    if (role.value() != kNotificationRole)
        return;
    QDBusMessage naming = QDBusMessage::createMethodCall(message.service(), message.path(),
                                                         u"org.freedesktop.DBus.Properties"_s, u"Get"_s);
    naming.setArguments({kAccessible, u"Name"_s});
    m_heard.append(
        QDBusReply<QVariant>(m_bus.call(naming, QDBus::Block, kCallMilliseconds)).value().toString());
}

} // namespace vesk
