// SPDX-License-Identifier: MIT
#include "platform/freedesktop/atspibus.h"

#include "platform/logging.h"

#include <QCoroDBusPendingCall>

#include <QDBusPendingCall>
#include <QDBusServiceWatcher>
#include <QDBusVariant>
#include <QPointer>

namespace vesk {

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace {

const QString kLauncherService = QStringLiteral("org.a11y.Bus");
const QString kLauncherPath = QStringLiteral("/org/a11y/bus");
const QString kConnectionName = QStringLiteral("vesk-accessibility");
const QString kRegistryService = QStringLiteral("org.a11y.atspi.Registry");
const QString kRootPath = QStringLiteral("/org/a11y/atspi/accessible/root");
const QString kObjectEvents = QStringLiteral("org.a11y.atspi.Event.Object");

/// A bus that does not come back is tried a few times, waiting twice as long each time, and then no more: its
/// launcher announces when it is there.
constexpr auto kFirstRetry = 500ms;
constexpr int kMaximumFailures = 6;

} // namespace

AtSpiBus::AtSpiBus()
{
    m_retry.setSingleShot(true);
    connect(&m_retry, &QTimer::timeout, this, [this] { connectToBus(); });
    auto *launcher = new QDBusServiceWatcher(kLauncherService, QDBusConnection::sessionBus(),
                                             QDBusServiceWatcher::WatchForRegistration, this);
    connect(launcher, &QDBusServiceWatcher::serviceRegistered, this, [this] {
        m_failures = 0;
        if (m_isStarted)
            connectToBus();
    });
}

AtSpiBus::~AtSpiBus()
{
    m_isStarted = false;
    leaveBus();
}

void AtSpiBus::start()
{
    if (m_isStarted)
        return;
    m_isStarted = true;
    m_failures = 0;
    connectToBus();
}

void AtSpiBus::stop()
{
    m_isStarted = false;
    ++m_attempt;
    m_retry.stop();
    leaveBus();
}

std::optional<QDBusPendingCall> AtSpiBus::send(const QDBusMessage &message,
                                               std::chrono::milliseconds deadline)
{
    if (!m_bus || !m_bus->isConnected())
        return std::nullopt;
    return m_bus->asyncCall(message, static_cast<int>(deadline.count()));
}

AtSpiReference AtSpiBus::registry()
{
    return {.service = kRegistryService, .path = kRootPath};
}

void AtSpiBus::onStateChanged(const QDBusMessage &message)
{
    const QVariantList arguments = message.arguments();
    if (arguments.size() < 2 || arguments.at(0).toString() != "focused"_L1)
        return;
    const AtSpiReference object{.service = message.service(), .path = message.path()};
    Q_EMIT focusEvent(object, arguments.at(1).toInt() != 0);
}

void AtSpiBus::onChildrenChanged(const QDBusMessage &message)
{
    const QVariantList arguments = message.arguments();
    if (arguments.size() < 4)
        return;
    const AtSpiReference root = AtSpiReference::read(arguments.at(3));
    if (root.isNull())
        return;
    if (arguments.at(0).toString() == "add"_L1)
        Q_EMIT applicationAdded(root);
    else
        Q_EMIT applicationRemoved(root);
}

void AtSpiBus::onDisconnected()
{
    leaveBus();
    if (m_isStarted)
        connectLater();
}

QCoro::Task<> AtSpiBus::connectToBus()
{
    const int attempt = ++m_attempt;
    m_retry.stop();
    const QPointer<AtSpiBus> self(this);
    QDBusMessage enable = QDBusMessage::createMethodCall(kLauncherService, kLauncherPath,
                                                         u"org.freedesktop.DBus.Properties"_s, u"Set"_s);
    enable << u"org.a11y.Status"_s << u"IsEnabled"_s << QVariant::fromValue(QDBusVariant(true));
    // A desktop without accessibility refuses; texts are then read in other ways.
    QDBusConnection::sessionBus().asyncCall(enable);
    const QDBusMessage ask =
        QDBusMessage::createMethodCall(kLauncherService, kLauncherPath, kLauncherService, u"GetAddress"_s);
    // The launcher may have to start the bus first, so this answer gets more time.
    constexpr int kStartDeadline = 10'000; // milliseconds
    const QDBusPendingCall pending = QDBusConnection::sessionBus().asyncCall(ask, kStartDeadline);
    const QDBusMessage reply = co_await pending;
    if (self.isNull() || attempt != m_attempt)
        co_return;
    const QVariantList arguments = reply.arguments();
    const bool isAnswered = reply.type() == QDBusMessage::ReplyMessage && !arguments.isEmpty();
    const QString address = isAnswered ? arguments.first().toString() : QString();
    if (isConnected() && (address.isEmpty() || address == m_address))
        co_return;
    leaveBus();
    if (!address.isEmpty()) {
        const QDBusConnection bus = QDBusConnection::connectToBus(address, kConnectionName);
        if (bus.isConnected()) {
            m_bus = bus;
            m_address = address;
            m_failures = 0;
            listen(bus);
            qCDebug(freedesktopLog) << "connected to the accessibility bus";
            Q_EMIT connected();
            co_return;
        }
        QDBusConnection::disconnectFromBus(kConnectionName);
    }
    connectLater();
}

void AtSpiBus::connectLater()
{
    if (m_failures == kMaximumFailures)
        return;
    m_retry.start(kFirstRetry * (1 << m_failures));
    ++m_failures;
}

void AtSpiBus::leaveBus()
{
    if (!m_bus)
        return;
    ++m_generation;
    m_registryWatcher.reset();
    m_bus.reset();
    m_address.clear();
    QDBusConnection::disconnectFromBus(kConnectionName);
    qCDebug(freedesktopLog) << "left the accessibility bus";
    Q_EMIT disconnected();
}

void AtSpiBus::listen(QDBusConnection bus)
{
    bus.connect(QString(), u"/org/freedesktop/DBus/Local"_s, u"org.freedesktop.DBus.Local"_s,
                u"Disconnected"_s, this, SLOT(onDisconnected()));
    // Of the many events that applications send once somebody listens, only these.
    const QStringList focused(u"focused"_s);
    bus.connect(QString(), QString(), kObjectEvents, u"StateChanged"_s, focused, QString(), this,
                SLOT(onStateChanged(QDBusMessage)));
    bus.connect(kRegistryService, kRootPath, kObjectEvents, u"ChildrenChanged"_s, this,
                SLOT(onChildrenChanged(QDBusMessage)));
    // A restarted registry has forgotten its listeners.
    m_registryWatcher = std::make_unique<QDBusServiceWatcher>(kRegistryService, bus,
                                                              QDBusServiceWatcher::WatchForRegistration);
    connect(m_registryWatcher.get(), &QDBusServiceWatcher::serviceRegistered, this,
            &AtSpiBus::registerEvents);
    registerEvents();
}

void AtSpiBus::registerEvents()
{
    if (!m_bus)
        return;
    // Without this, most toolkits send no events at all.
    QDBusMessage message = QDBusMessage::createMethodCall(kRegistryService, u"/org/a11y/atspi/registry"_s,
                                                          kRegistryService, u"RegisterEvent"_s);
    message << u"object:state-changed:focused"_s << QStringList() << QString();
    m_bus->asyncCall(message);
}

} // namespace vesk
