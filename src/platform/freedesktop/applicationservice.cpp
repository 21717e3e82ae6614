// SPDX-License-Identifier: MIT
#include "platform/freedesktop/applicationservice.h"

#include <QDBusConnection>
#include <QDBusConnectionInterface>
#include <QDBusError>
#include <QDBusMessage>
#include <QDeadlineTimer>

#include <unistd.h>

namespace vesk {

namespace {

const QString kService = QStringLiteral("org.vesk.Vesk");
const QString kPath = QStringLiteral("/org/vesk/Vesk");
const QString kInterface = QStringLiteral("org.freedesktop.Application");
constexpr std::chrono::milliseconds kForwardDeadline{5000};
constexpr useconds_t kMoment = 10'000;

} // namespace

ApplicationService::Claim ApplicationService::claim(IfTaken ifTaken)
{
    QDBusConnection bus = QDBusConnection::sessionBus();
    if (!bus.isConnected())
        return Claim::NoBus;
    // Register the object before the name: a second instance calls as soon as it sees the name.
    bus.registerObject(kPath, this, QDBusConnection::ExportAllSlots | QDBusConnection::ExportAdaptors);
    for (QDeadlineTimer deadline(kForwardDeadline); !deadline.hasExpired();) {
        if (bus.registerService(kService))
            return Claim::First;
        if (const std::optional<Claim> claim = forward(ifTaken)) {
            bus.unregisterObject(kPath);
            return *claim;
        }
        ::usleep(kMoment);
    }
    bus.unregisterObject(kPath);
    return Claim::NoAnswer;
}

std::optional<ApplicationService::Claim> ApplicationService::forward(IfTaken ifTaken)
{
    QDBusMessage call =
        QDBusMessage::createMethodCall(kService, kPath, kInterface, QStringLiteral("Activate"));
    call.setAutoStartService(false);
    call << (ifTaken == IfTaken::LeaveAlone ? QVariantMap{{kInBackground, true}} : QVariantMap());
    const QDBusMessage answer =
        QDBusConnection::sessionBus().call(call, QDBus::Block, int(kForwardDeadline.count()));
    if (answer.type() == QDBusMessage::ReplyMessage)
        return Claim::Forwarded;
    const bool isMomentary = QDBusError(answer).type() == QDBusError::UnknownObject
                             || answer.errorName() == u"org.freedesktop.DBus.Error.NameHasNoOwner";
    return isMomentary ? std::nullopt : std::optional(Claim::NoAnswer);
}

void ApplicationService::Activate(const QVariantMap &platformData)
{
    if (!platformData.value(kInBackground).toBool())
        Q_EMIT activated();
}

void ApplicationService::Open(const QStringList &uris, const QVariantMap &platformData)
{
    // Vesk opens no files; being asked to means that the user wants to see it.
    Q_UNUSED(uris)
    Activate(platformData);
}

void ApplicationService::ActivateAction(const QString &name, const QVariantList &parameter,
                                        const QVariantMap &platformData)
{
    Q_UNUSED(parameter)
    Q_UNUSED(platformData)
    Q_EMIT actionActivated(name);
}

} // namespace vesk
