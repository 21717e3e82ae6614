// SPDX-License-Identifier: MIT
#pragma once

#include <QDBusConnection>
#include <QList>
#include <QObject>
#include <QTimer>
#include <QVariantList>

#include <chrono>

namespace vesk {

/// A PackageKit transaction, and the packages that it reports.
class PackageKitTransaction final : public QObject
{
    Q_OBJECT

public:
    struct Package
    {
        /// A value of PkInfoEnum.
        uint info = 0;
        QString name;
        QString version;
    };

    /// `path` is the object path of a transaction that was created but not run yet.
    PackageKitTransaction(QDBusConnection bus, QString path);

    /// Runs a method. `finished` is always emitted, at the latest after `limit`; if the transaction is still
    /// running then, it is cancelled.
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
