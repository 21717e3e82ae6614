// SPDX-License-Identifier: MIT
#include "virtualdesktop/accessiblebus.h"

#include <QDBusConnectionInterface>
#include <QDBusMessage>
#include <QDBusReply>
#include <QDBusVariant>
#include <QUuid>

using namespace Qt::StringLiterals;

namespace vesk {

namespace {

constexpr int kCallMilliseconds = 1000;

QString accessibilityAddress(const QString &sessionAddress)
{
    const auto name = u"vesk-test-a11y-session"_s;
    const QDBusConnection session = QDBusConnection::connectToBus(sessionAddress, name);
    const QDBusReply<QString> address =
        session.call(QDBusMessage::createMethodCall(u"org.a11y.Bus"_s, u"/org/a11y/bus"_s, u"org.a11y.Bus"_s,
                                                    u"GetAddress"_s),
                     QDBus::Block, kCallMilliseconds);
    QDBusConnection::disconnectFromBus(name);
    return address.value();
}

} // namespace

AccessibleBus::AccessibleBus(const QString &sessionAddress)
    : m_bus(
          QDBusConnection::connectToBus(accessibilityAddress(sessionAddress), QUuid::createUuid().toString()))
{
}

AccessibleBus::~AccessibleBus()
{
    QDBusConnection::disconnectFromBus(m_bus.name());
}

QVariant AccessibleBus::ask(const Object &object, const QString &interface, const QString &method,
                            const QVariantList &arguments) const
{
    QDBusMessage call = QDBusMessage::createMethodCall(object.service, object.path, interface, method);
    call.setArguments(arguments);
    const QDBusMessage reply = m_bus.call(call, QDBus::Block, kCallMilliseconds);
    const bool isAnswered = reply.type() == QDBusMessage::ReplyMessage && !reply.arguments().isEmpty();
    return isAnswered ? reply.arguments().constFirst() : QVariant();
}

QVariant AccessibleBus::property(const Object &object, const QString &interface, const QString &name) const
{
    const QVariant value = ask(object, u"org.freedesktop.DBus.Properties"_s, u"Get"_s, {interface, name});
    return value.value<QDBusVariant>().variant();
}

QString AccessibleBus::nameOf(const Object &object) const
{
    return property(object, u"org.a11y.atspi.Accessible"_s, u"Name"_s).toString();
}

qint64 AccessibleBus::processOf(const QString &service) const
{
    return m_bus.interface() != nullptr ? qint64(m_bus.interface()->servicePid(service).value()) : 0;
}

} // namespace vesk
