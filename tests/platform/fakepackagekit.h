// SPDX-License-Identifier: MIT
#pragma once

#include <QDBusConnection>
#include <QDBusContext>
#include <QDBusObjectPath>
#include <QObject>
#include <QStringList>

namespace vesk {

/// A PackageKit with answers defined by the test.
class FakePackageKit final : public QObject, protected QDBusContext
{
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.freedesktop.PackageKit")

public:
    struct Script
    {
        /// Package identifiers.
        QStringList installed;
        QStringList updates;
        /// The method that fails, and how; empty if none does.
        QString failing;
        enum class Failure {
            /// Ends with an error.
            Finishes,
            /// Never ends.
            Hangs,
            /// Is refused at once.
            Refuses,
            /// The service disappears in the middle.
            Vanishes,
        } failure = Failure::Finishes;
    };

    explicit FakePackageKit(QDBusConnection bus);

    void setScript(const Script &script) { m_script = script; }
    void appear();
    void vanish();
    /// Starts or ends other programs' transactions.
    void setOthersAreBusy(bool areBusy);
    /// The methods called on transactions, in order.
    [[nodiscard]] const QStringList &calls() const { return m_calls; }
    void work(const QString &path, const QString &method);

public Q_SLOTS:
    QDBusObjectPath CreateTransaction();
    QList<QDBusObjectPath> GetTransactionList() { return m_others; }

private:
    void tell(const QString &path, const QString &signal, const QVariantList &arguments);

    QDBusConnection m_bus;
    Script m_script;
    QStringList m_calls;
    QList<QDBusObjectPath> m_others;
    int m_count = 0;
};

/// A transaction of the service.
class FakeTransaction final : public QObject, protected QDBusContext
{
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.freedesktop.PackageKit.Transaction")

public:
    FakeTransaction(FakePackageKit &service, QString path, QString refused);

public Q_SLOTS:
    void Resolve(qulonglong filter, const QStringList &packages);
    void RefreshCache(bool isForced)
    {
        Q_UNUSED(isForced)
        take(QStringLiteral("RefreshCache"));
    }
    void GetUpdates(qulonglong filter)
    {
        Q_UNUSED(filter)
        take(QStringLiteral("GetUpdates"));
    }
    void Cancel() { m_service.work(m_path, QStringLiteral("Cancel")); }

private:
    void take(const QString &method);

    FakePackageKit &m_service;
    QString m_path;
    QString m_refused;
};

} // namespace vesk
