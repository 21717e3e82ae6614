// SPDX-License-Identifier: MIT
#include "platform/freedesktop/packagekittransaction.h"

#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>
#include <QDBusServiceWatcher>

using namespace Qt::StringLiterals;

namespace vesk {

namespace {

const QString kService = u"org.freedesktop.PackageKit"_s;
const QString kInterface = u"org.freedesktop.PackageKit.Transaction"_s;

} // namespace

PackageKitTransaction::PackageKitTransaction(QDBusConnection bus, QString path)
    : m_bus(std::move(bus))
    , m_path(std::move(path))
{
    m_limit.setSingleShot(true);
    connect(&m_limit, &QTimer::timeout, this, [this] {
        m_bus.send(QDBusMessage::createMethodCall(kService, m_path, kInterface, u"Cancel"_s));
        end(false);
    });
    listen(u"Package"_s, SLOT(onPackage(uint, QString, QString)));
    listen(u"Finished"_s, SLOT(onFinished(uint, uint)));
    auto *watcher =
        new QDBusServiceWatcher(kService, m_bus, QDBusServiceWatcher::WatchForUnregistration, this);
    connect(watcher, &QDBusServiceWatcher::serviceUnregistered, this, [this] { end(false); });
}

void PackageKitTransaction::run(const QString &method, const QVariantList &arguments,
                                std::chrono::milliseconds limit)
{
    m_limit.start(limit);
    QDBusMessage call = QDBusMessage::createMethodCall(kService, m_path, kInterface, method);
    call.setArguments(arguments);
    auto *watcher = new QDBusPendingCallWatcher(m_bus.asyncCall(call, int(limit.count())), this);
    connect(watcher, &QDBusPendingCallWatcher::finished, this, [this, watcher] {
        // Success only means that the work was accepted; an error is final.
        if (QDBusPendingReply<>(*watcher).isError())
            end(false);
    });
}

void PackageKitTransaction::onPackage(uint info, const QString &packageId, const QString &summary)
{
    Q_UNUSED(summary)
    // "name;version;architecture;origin"
    const QStringList parts = packageId.split(u';');
    if (parts.size() >= 2)
        m_packages.append({.info = info, .name = parts.at(0), .version = parts.at(1)});
}

void PackageKitTransaction::onFinished(uint exit, uint runtime)
{
    Q_UNUSED(runtime)
    constexpr uint kSuccess = 1;
    end(exit == kSuccess);
}

void PackageKitTransaction::listen(const QString &signal, const char *slot)
{
    m_bus.connect(kService, m_path, kInterface, signal, this, slot);
}

void PackageKitTransaction::end(bool isSuccess)
{
    if (m_hasEnded)
        return;
    m_hasEnded = true;
    m_limit.stop();
    Q_EMIT finished(isSuccess);
}

} // namespace vesk
