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

/// Looks for updates through PackageKit, which most desktops have in front of their package manager. Only
/// asks; the desktop's own updater installs.
class PackageKitUpdates final : public Updates
{
    Q_OBJECT

public:
    /// How long to wait.
    struct Limits
    {
        /// For an answer of the service itself.
        std::chrono::milliseconds call = std::chrono::seconds{10};
        /// For a question about packages, which may be queued behind other work.
        std::chrono::milliseconds question = std::chrono::minutes{1};
        /// For refreshing the package lists.
        std::chrono::milliseconds refresh = std::chrono::minutes{3};
    };

    /// `bus` must be the system bus. Does not start the service.
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
    /// Runs `method` in a new transaction. Returns nullopt if it failed.
    static QCoro::Task<Packages> ask(QDBusConnection bus, QString method, QVariantList arguments,
                                     std::chrono::milliseconds callLimit, std::chrono::milliseconds limit);
    static QCoro::Task<Result> findResult(QDBusConnection bus, Limits limits);

    QDBusConnection m_bus;
    Limits m_limits;
    QDBusServiceWatcher m_watcher;
    bool m_isRunning = false;
    /// Whether the bus can start the service.
    bool m_isActivatable = false;
    bool m_isBusy = false;
    bool m_isChecking = false;
    bool m_canCheck = false;
};

} // namespace vesk
