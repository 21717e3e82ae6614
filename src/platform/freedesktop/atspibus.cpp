// SPDX-License-Identifier: MIT
#include "platform/freedesktop/atspibus.h"

#include <QCoroDBusPendingCall>

#include <QDBusPendingCall>
#include <QDBusVariant>
#include <QPointer>

namespace vesk {

using namespace Qt::StringLiterals;

namespace {

const QString kLauncherService = QStringLiteral("org.a11y.Bus");
const QString kLauncherPath = QStringLiteral("/org/a11y/bus");
const QString kConnectionName = QStringLiteral("vesk-accessibility");
const QString kRegistryService = QStringLiteral("org.a11y.atspi.Registry");
const QString kObjectEvents = QStringLiteral("org.a11y.atspi.Event.Object");

} // namespace

bool AtSpiReference::isNull() const
{
    return service.isEmpty() || path == "/org/a11y/atspi/null"_L1;
}

AtSpiBus::~AtSpiBus()
{
    stop();
}

void AtSpiBus::start()
{
    if (m_bus)
        return;
    QDBusMessage enable = QDBusMessage::createMethodCall(kLauncherService, kLauncherPath,
                                                         u"org.freedesktop.DBus.Properties"_s, u"Set"_s);
    enable << u"org.a11y.Status"_s << u"IsEnabled"_s << QVariant::fromValue(QDBusVariant(true));
    // A desktop without accessibility says no; the texts then come by the other routes.
    QDBusConnection::sessionBus().asyncCall(enable);
    connectToBus();
}

void AtSpiBus::stop()
{
    ++m_generation;
    if (!m_bus)
        return;
    m_bus.reset();
    QDBusConnection::disconnectFromBus(kConnectionName);
}

QCoro::Task<std::optional<QVariantList>> AtSpiBus::call(AtSpiReference object, QString interface,
                                                        QString method, QVariantList arguments)
{
    if (!m_bus || !m_bus->isConnected())
        co_return std::nullopt;
    QDBusMessage message = QDBusMessage::createMethodCall(object.service, object.path, interface, method);
    message.setArguments(arguments);
    const QDBusPendingCall pending = m_bus->asyncCall(message, static_cast<int>(kDeadline.count()));
    const QDBusMessage reply = co_await pending;
    if (reply.type() != QDBusMessage::ReplyMessage)
        co_return std::nullopt;
    co_return reply.arguments();
}

QCoro::Task<std::optional<qint64>> AtSpiBus::processIdentifier(QString service)
{
    const AtSpiReference daemon{.service = u"org.freedesktop.DBus"_s, .path = u"/org/freedesktop/DBus"_s};
    QVariantList arguments;
    arguments.append(service);
    const std::optional<QVariantList> reply =
        co_await call(daemon, u"org.freedesktop.DBus"_s, u"GetConnectionUnixProcessID"_s, arguments);
    if (!reply || reply->isEmpty())
        co_return std::nullopt;
    co_return reply->first().toLongLong();
}

void AtSpiBus::onStateChanged(const QDBusMessage &message)
{
    const QVariantList arguments = message.arguments();
    if (arguments.size() < 2 || arguments.at(0).toString() != "focused"_L1)
        return;
    const AtSpiReference object{.service = message.service(), .path = message.path()};
    Q_EMIT focusEvent(object, arguments.at(1).toInt() != 0);
}

QCoro::Task<> AtSpiBus::connectToBus()
{
    const int generation = m_generation;
    const QPointer<AtSpiBus> self(this);
    const QDBusMessage ask =
        QDBusMessage::createMethodCall(kLauncherService, kLauncherPath, kLauncherService, u"GetAddress"_s);
    // The launcher may have to start the bus first, so this one answer is given more time.
    constexpr int kStartDeadline = 10'000; // milliseconds
    const QDBusPendingCall pending = QDBusConnection::sessionBus().asyncCall(ask, kStartDeadline);
    const QDBusMessage reply = co_await pending;
    if (self.isNull() || generation != m_generation || reply.type() != QDBusMessage::ReplyMessage
        || reply.arguments().isEmpty())
        co_return;
    QDBusConnection bus =
        QDBusConnection::connectToBus(reply.arguments().first().toString(), kConnectionName);
    if (!bus.isConnected()) {
        QDBusConnection::disconnectFromBus(kConnectionName);
        co_return;
    }
    m_bus = bus;
    bus.connect(QString(), QString(), kObjectEvents, u"StateChanged"_s, this,
                SLOT(onStateChanged(QDBusMessage)));
    // Without this, most toolkits send no events at all.
    registerEvent(bus, u"object:state-changed:focused"_s);
    Q_EMIT connected();
}

void AtSpiBus::registerEvent(const QDBusConnection &bus, const QString &name)
{
    QDBusMessage message = QDBusMessage::createMethodCall(kRegistryService, u"/org/a11y/atspi/registry"_s,
                                                          kRegistryService, u"RegisterEvent"_s);
    message << name << QStringList() << QString();
    bus.asyncCall(message);
}

} // namespace vesk
