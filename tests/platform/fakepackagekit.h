// SPDX-License-Identifier: MIT
#pragma once

#include <QDBusConnection>
#include <QDBusContext>
#include <QDBusObjectPath>
#include <QObject>
#include <QStringList>

namespace vesk {

/// A PackageKit that answers what a test has laid down.
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
        /// The method that does not succeed, and how; empty for none.
        QString failing;
        enum class Failure {
            /// It ends with an error.
            Finishes,
            /// It never ends.
            Hangs,
            /// It is refused at once.
            Refuses,
            /// The service goes away in the middle.
            Vanishes,
        } failure = Failure::Finishes;
    };

    explicit FakePackageKit(QDBusConnection bus);

    void setScript(const Script &script) { m_script = script; }
    void appear();
    void vanish();
    /// Another program's transactions, or their end.
    void setOthersAreBusy(bool areBusy);
    /// The methods that transactions were given, in order.
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

/// One of its transactions.
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
