// SPDX-License-Identifier: MIT
#include "accessibilitydesktop.h"

#include "accessiblereference.h"

#include <QDBusConnectionInterface>
#include <QDBusMetaType>

namespace vesk {

using namespace Qt::StringLiterals;

namespace {

const QString kLauncher = QStringLiteral("test-launcher");
const QString kRegistry = QStringLiteral("test-registry");

} // namespace

AccessibilityDesktop::AccessibilityDesktop()
{
    qDBusRegisterMetaType<AccessibleReference>();
    qDBusRegisterMetaType<QList<AccessibleReference>>();
    if (m_session)
        qputenv("DBUS_SESSION_BUS_ADDRESS", m_session->address().toUtf8());
}

AccessibilityDesktop::~AccessibilityDesktop()
{
    killBus();
}

bool AccessibilityDesktop::startBus()
{
    m_bus = BusDaemon::start();
    if (!m_session || !m_bus)
        return false;
    QDBusConnection registry = QDBusConnection::connectToBus(m_bus->address(), kRegistry);
    QDBusConnection launcher = QDBusConnection::connectToBus(QDBusConnection::SessionBus, kLauncher);
    return registry.registerVirtualObject(u"/org/a11y/atspi"_s, this, QDBusConnection::SubPath)
           && registry.registerService(u"org.a11y.atspi.Registry"_s)
           && launcher.registerVirtualObject(u"/org/a11y/bus"_s, this)
           && launcher.registerService(u"org.a11y.Bus"_s);
}

void AccessibilityDesktop::killBus()
{
    m_bus.reset();
    m_listener.clear();
    QDBusConnection::disconnectFromBus(kLauncher);
    QDBusConnection::disconnectFromBus(kRegistry);
}

QString AccessibilityDesktop::listener() const
{
    const QDBusConnection registry(kRegistry);
    const bool isThere = !m_listener.isEmpty() && registry.isConnected()
                         && registry.interface()->isServiceRegistered(m_listener).value();
    return isThere ? m_listener : QString();
}

bool AccessibilityDesktop::handleMessage(const QDBusMessage &message, const QDBusConnection &connection)
{
    QVariantList arguments;
    if (m_isSilent && message.member() == "GetChildren"_L1) {
        message.setDelayedReply(true);
        return true;
    }
    if (message.member() == "GetAddress"_L1)
        arguments.append(busAddress());
    if (message.member() == "RegisterEvent"_L1)
        m_listener = message.service();
    if (message.member() == "GetChildren"_L1) {
        QList<AccessibleReference> roots;
        for (const QString &service : m_applications)
            roots.append({.service = service, .path = QDBusObjectPath(u"/org/a11y/atspi/accessible/root"_s)});
        arguments.append(QVariant::fromValue(roots));
    }
    connection.send(message.createReply(arguments));
    return true;
}

} // namespace vesk
