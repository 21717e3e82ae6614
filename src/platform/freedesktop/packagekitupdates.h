// SPDX-License-Identifier: MIT
#pragma once

#include "platform/freedesktop/packagekittransaction.h"
#include "platform/updates.h"

#include <QCoroTask>

#include <QDBusConnection>
#include <QDBusServiceWatcher>
#include <QStringList>

#include <chrono>
#include <optional>

namespace vesk {

/// Updates by PackageKit, which speaks for the package manager of most desktops. It only asks; the
/// desktop's own updater installs.
class PackageKitUpdates final : public Updates
{
    Q_OBJECT

public:
    /// How long is waited for what.
    struct Limits
    {
        /// An answer of the service itself.
        std::chrono::milliseconds call = std::chrono::seconds{10};
        /// A question about packages, which may be behind the work of others.
        std::chrono::milliseconds question = std::chrono::minutes{1};
        /// Fetching the news from the package sources.
        std::chrono::milliseconds refresh = std::chrono::minutes{3};
    };

    /// `bus` is the system's. Starts no service by itself.
    PackageKitUpdates(QDBusConnection bus, Limits limits);

    [[nodiscard]] bool canCheckForUpdates() const override { return m_canCheck; }
    void checkForUpdates() override;

private Q_SLOTS:
    // A signal of the service.
    void onTransactionListChanged(const QStringList &transactions);

private:
    using Packages = std::optional<QList<PackageKitTransaction::Package>>;

    void onRegistered();
    void onUnregistered();
    void update();
    QCoro::Task<> lookForService();
    QCoro::Task<> lookForTransactions();
    QCoro::Task<> check();
    /// Has a transaction of its own do `method`; none if that failed.
    static QCoro::Task<Packages> ask(QDBusConnection bus, QString method, QVariantList arguments,
                                     std::chrono::milliseconds callLimit, std::chrono::milliseconds limit);
    static QCoro::Task<Result> findResult(QDBusConnection bus, Limits limits);

    QDBusConnection m_bus;
    Limits m_limits;
    QDBusServiceWatcher m_watcher;
    bool m_isRunning = false;
    /// The bus would start it.
    bool m_isActivatable = false;
    bool m_isBusy = false;
    bool m_isChecking = false;
    bool m_canCheck = false;
};

} // namespace vesk
