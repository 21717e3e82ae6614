// SPDX-License-Identifier: MIT
#pragma once

#include <QDBusConnection>
#include <QList>
#include <QObject>
#include <QTimer>
#include <QVariantList>

#include <chrono>

namespace vesk {

/// One piece of work of PackageKit's, and what it tells while it does it.
class PackageKitTransaction final : public QObject
{
    Q_OBJECT

public:
    struct Package
    {
        /// Of PkInfoEnum.
        uint info = 0;
        QString name;
        QString version;
    };

    /// `path` is that of a transaction that was created and has yet to be given its work.
    PackageKitTransaction(QDBusConnection bus, QString path);

    /// Gives it its work. `finished` follows in any case, after `limit` at the latest; what still runs
    /// then is cancelled.
    void run(const QString &method, const QVariantList &arguments, std::chrono::milliseconds limit);

    [[nodiscard]] const QList<Package> &packages() const { return m_packages; }

Q_SIGNALS:
    void finished(bool isSuccess);

private Q_SLOTS:
    // Signals of the transaction.
    void onPackage(uint info, const QString &packageId, const QString &summary);
    void onFinished(uint exit, uint runtime);

private:
    void listen(const QString &signal, const char *slot);
    void end(bool isSuccess);

    QDBusConnection m_bus;
    QString m_path;
    QList<Package> m_packages;
    QTimer m_limit;
    bool m_hasEnded = false;
};

} // namespace vesk
