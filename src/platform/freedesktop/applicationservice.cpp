// SPDX-License-Identifier: MIT
#include "platform/freedesktop/applicationservice.h"

#include <QDBusConnection>
#include <QDBusConnectionInterface>
#include <QDBusMessage>

namespace vesk {

namespace {

const QString kService = QStringLiteral("org.vesk.Vesk");
const QString kPath = QStringLiteral("/org/vesk/Vesk");
const QString kInterface = QStringLiteral("org.freedesktop.Application");
constexpr int kForwardDeadline = 5000; // milliseconds

} // namespace

ApplicationService::Claim ApplicationService::claim()
{
    QDBusConnection bus = QDBusConnection::sessionBus();
    if (!bus.isConnected())
        return Claim::NoBus;
    // The object has to stand before the name does: a second start calls as soon as it sees the name.
    bus.registerObject(kPath, this, QDBusConnection::ExportAllSlots);
    if (bus.registerService(kService))
        return Claim::First;
    bus.unregisterObject(kPath);
    QDBusMessage call =
        QDBusMessage::createMethodCall(kService, kPath, kInterface, QStringLiteral("Activate"));
    call << QVariantMap();
    const QDBusMessage answer = bus.call(call, QDBus::Block, kForwardDeadline);
    return answer.type() == QDBusMessage::ReplyMessage ? Claim::Forwarded : Claim::NoAnswer;
}

void ApplicationService::Activate(const QVariantMap &platformData)
{
    Q_UNUSED(platformData)
    Q_EMIT activated();
}

void ApplicationService::Open(const QStringList &uris, const QVariantMap &platformData)
{
    // Vesk opens no files; being asked to is a wish to see it.
    Q_UNUSED(uris)
    Activate(platformData);
}

void ApplicationService::ActivateAction(const QString &name, const QVariantList &parameter,
                                        const QVariantMap &platformData)
{
    Q_UNUSED(name)
    Q_UNUSED(parameter)
    Activate(platformData);
}

} // namespace vesk
