// SPDX-License-Identifier: MIT
#include "platform/freedesktop/packagekitupdates.h"

#include <QCoroDBus>
#include <QCoroSignal>

#include <QDBusConnectionInterface>
#include <QDBusMessage>
#include <QDBusObjectPath>
#include <QDBusPendingReply>
#include <QPointer>
#include <QScopedPointer>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace vesk {

namespace {

const QString kService = u"org.freedesktop.PackageKit"_s;
const QString kPath = u"/org/freedesktop/PackageKit"_s;
const QString kPackage = u"vesk"_s;

// PkFilterEnum, as bits.
constexpr quint64 kNoFilter = 1 << 1;
constexpr quint64 kInstalled = 1 << 2;
// PkInfoEnum: an update that the package manager holds back.
constexpr uint kBlocked = 9;

using Package = PackageKitTransaction::Package;

std::optional<Package> findOurs(const QList<Package> &packages)
{
    const auto found = std::ranges::find_if(packages, [](const Package &package) {
        return package.name == kPackage && package.info != kBlocked;
    });
    return found == packages.end() ? std::nullopt : std::optional(*found);
}

} // namespace

PackageKitUpdates::PackageKitUpdates(QDBusConnection bus, Limits limits)
    : m_bus(std::move(bus))
    , m_limits(limits)
    , m_watcher(kService, m_bus)
{
    connect(&m_watcher, &QDBusServiceWatcher::serviceRegistered, this, &PackageKitUpdates::onRegistered);
    connect(&m_watcher, &QDBusServiceWatcher::serviceUnregistered, this, &PackageKitUpdates::onUnregistered);
    m_bus.connect(kService, kPath, kService, u"TransactionListChanged"_s, this,
                  SLOT(onTransactionListChanged(QStringList)));
    lookForService();
}

void PackageKitUpdates::checkForUpdates()
{
    if (m_canCheck)
        check();
}

void PackageKitUpdates::onTransactionListChanged(const QStringList &transactions)
{
    m_isBusy = !transactions.isEmpty();
    update();
}

void PackageKitUpdates::onRegistered()
{
    m_isRunning = true;
    update();
    lookForTransactions();
}

void PackageKitUpdates::onUnregistered()
{
    // The daemon exits when idle, and the bus starts it again.
    m_isRunning = false;
    m_isBusy = false;
    update();
    lookForService();
}

void PackageKitUpdates::update()
{
    const bool canCheck = (m_isRunning || m_isActivatable) && !m_isBusy && !m_isChecking;
    if (m_canCheck == canCheck)
        return;
    m_canCheck = canCheck;
    Q_EMIT canCheckForUpdatesChanged();
}

QCoro::Task<> PackageKitUpdates::lookForService()
{
    const QPointer<PackageKitUpdates> self(this);
    const auto ask = [this](const QString &list) {
        const QDBusMessage question = QDBusMessage::createMethodCall(
            u"org.freedesktop.DBus"_s, u"/org/freedesktop/DBus"_s, u"org.freedesktop.DBus"_s, list);
        return m_bus.asyncCall(question, int(m_limits.call.count()));
    };
    const QDBusPendingReply<QStringList> running = ask(u"ListNames"_s);
    const QDBusPendingReply<QStringList> activatable = ask(u"ListActivatableNames"_s);
    co_await running;
    if (self.isNull())
        co_return;
    // It may have started since this answer was sent.
    if (!m_isRunning && !running.isError() && running.value().contains(kService))
        onRegistered();
    co_await activatable;
    if (self.isNull())
        co_return;
    m_isActivatable = !activatable.isError() && activatable.value().contains(kService);
    update();
}

QCoro::Task<> PackageKitUpdates::lookForTransactions()
{
    const QPointer<PackageKitUpdates> self(this);
    const QDBusMessage question =
        QDBusMessage::createMethodCall(kService, kPath, kService, u"GetTransactionList"_s);
    const QDBusPendingReply<QList<QDBusObjectPath>> reply =
        m_bus.asyncCall(question, int(m_limits.call.count()));
    co_await reply;
    if (self.isNull() || reply.isError())
        co_return;
    m_isBusy = !reply.value().isEmpty();
    update();
}

QCoro::Task<> PackageKitUpdates::check()
{
    const QPointer<PackageKitUpdates> self(this);
    m_isChecking = true;
    update();
    const Result result = co_await findResult(m_bus, m_limits);
    if (self.isNull())
        co_return;
    m_isChecking = false;
    update();
    Q_EMIT checkFinished(result);
}

QCoro::Task<Updates::Result> PackageKitUpdates::findResult(QDBusConnection bus, Limits limits)
{
    const QVariantList name{kInstalled, QStringList{kPackage}};
    const Packages installed = co_await ask(bus, u"Resolve"_s, name, limits.call, limits.question);
    if (!installed)
        co_return Result{};
    const std::optional<Package> ours = findOurs(*installed);
    if (!ours)
        co_return Result{.outcome = Outcome::NotInstalled, .version = {}};
    // Without the network, or permission to use it, use what was fetched last.
    const QVariantList ifOld{false};
    co_await ask(bus, u"RefreshCache"_s, ifOld, limits.call, limits.refresh);
    const QVariantList all{kNoFilter};
    const Packages updates = co_await ask(bus, u"GetUpdates"_s, all, limits.call, limits.question);
    if (!updates)
        co_return Result{};
    const std::optional<Package> newer = findOurs(*updates);
    if (newer)
        co_return Result{.outcome = Outcome::Available, .version = newer->version};
    co_return Result{.outcome = Outcome::UpToDate, .version = ours->version};
}

QCoro::Task<PackageKitUpdates::Packages> PackageKitUpdates::ask(QDBusConnection bus, QString method,
                                                                QVariantList arguments,
                                                                std::chrono::milliseconds callLimit,
                                                                std::chrono::milliseconds limit)
{
    const QDBusMessage creation =
        QDBusMessage::createMethodCall(kService, kPath, kService, u"CreateTransaction"_s);
    const QDBusPendingReply<QDBusObjectPath> path = bus.asyncCall(creation, int(callLimit.count()));
    co_await path;
    if (path.isError())
        co_return std::nullopt;
    // It finishes during a signal of its own, so it must outlive this function briefly.
    const QScopedPointer<PackageKitTransaction, QScopedPointerDeleteLater> transaction(
        new PackageKitTransaction(bus, path.value().path()));
    transaction->run(method, arguments, limit);
    const bool isSuccess = co_await qCoro(transaction.get(), &PackageKitTransaction::finished);
    if (!isSuccess)
        co_return std::nullopt;
    QList<Package> packages = transaction->packages();
    co_return packages;
}

} // namespace vesk
