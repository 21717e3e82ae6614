// SPDX-License-Identifier: MIT
#include "accessibilitydesktop.h"

#include "accessiblereference.h"

#include <QDBusConnectionInterface>
#include <QDBusMetaType>
#include <QFile>
#include <QProcessEnvironment>

namespace vesk {

using namespace Qt::StringLiterals;

namespace {

const QString kLauncher = QStringLiteral("test-launcher");
const QString kRegistry = QStringLiteral("test-registry");

// Starts no services by itself, so that what is not there stays away.
constexpr auto kConfiguration = R"(<busconfig>
  <type>session</type>
  <listen>unix:tmpdir=/tmp</listen>
  <policy context="default">
    <allow send_destination="*" eavesdrop="true"/>
    <allow eavesdrop="true"/>
    <allow own="*"/>
  </policy>
</busconfig>
)";

} // namespace

AccessibilityDesktop::AccessibilityDesktop()
{
    qDBusRegisterMetaType<AccessibleReference>();
    qDBusRegisterMetaType<QList<AccessibleReference>>();
    QString address;
    m_session = startDaemon(address);
    qputenv("DBUS_SESSION_BUS_ADDRESS", address.toUtf8());
}

AccessibilityDesktop::~AccessibilityDesktop()
{
    killBus();
}

bool AccessibilityDesktop::startBus()
{
    m_bus = startDaemon(m_busAddress);
    if (!m_bus)
        return false;
    QDBusConnection registry = QDBusConnection::connectToBus(m_busAddress, kRegistry);
    QDBusConnection launcher = QDBusConnection::connectToBus(QDBusConnection::SessionBus, kLauncher);
    return registry.registerVirtualObject(u"/org/a11y/atspi"_s, this, QDBusConnection::SubPath)
           && registry.registerService(u"org.a11y.atspi.Registry"_s)
           && launcher.registerVirtualObject(u"/org/a11y/bus"_s, this)
           && launcher.registerService(u"org.a11y.Bus"_s);
}

void AccessibilityDesktop::killBus()
{
    if (m_bus)
        m_bus->kill();
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
    if (message.member() == "GetAddress"_L1)
        arguments.append(m_busAddress);
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

std::unique_ptr<ChildProcess> AccessibilityDesktop::startDaemon(QString &address)
{
    const QString configuration = m_folder.filePath(u"bus.conf"_s);
    QFile file(configuration);
    if (!file.open(QIODevice::WriteOnly) || file.write(kConfiguration) < 0)
        return nullptr;
    file.close();
    std::unique_ptr<ChildProcess> daemon = ChildProcess::start(
        {.program = u"dbus-daemon"_s,
         .arguments = {u"--nofork"_s, u"--print-address"_s, u"--config-file="_s + configuration},
         .environment = QProcessEnvironment::systemEnvironment(),
         .errorFile = m_folder.filePath(u"bus.log"_s)});
    address = daemon ? daemon->readLine(std::chrono::seconds(10)) : QString();
    return address.isEmpty() ? nullptr : std::move(daemon);
}

} // namespace vesk
