// SPDX-License-Identifier: MIT
#include "fakepackagekit.h"

#include <QDBusMessage>

using namespace Qt::StringLiterals;

namespace vesk {

namespace {

const auto kService = u"org.freedesktop.PackageKit"_s;
const auto kPath = u"/org/freedesktop/PackageKit"_s;
const auto kTransaction = u"org.freedesktop.PackageKit.Transaction"_s;

} // namespace

FakePackageKit::FakePackageKit(QDBusConnection bus)
    : m_bus(std::move(bus))
{
    m_bus.registerObject(kPath, this, QDBusConnection::ExportAllSlots);
}

void FakePackageKit::appear()
{
    m_bus.registerService(kService);
}

void FakePackageKit::vanish()
{
    m_bus.unregisterService(kService);
}

void FakePackageKit::setOthersAreBusy(bool areBusy)
{
    m_others = areBusy ? QList{QDBusObjectPath(u"/1_others"_s)} : QList<QDBusObjectPath>();
    QStringList paths;
    for (const QDBusObjectPath &path : std::as_const(m_others))
        paths.append(path.path());
    QDBusMessage signal = QDBusMessage::createSignal(kPath, kService, u"TransactionListChanged"_s);
    signal << paths;
    m_bus.send(signal);
}

QDBusObjectPath FakePackageKit::CreateTransaction()
{
    const QString path = u"/%1_ours"_s.arg(++m_count);
    const bool refuses = m_script.failure == Script::Failure::Refuses;
    auto *transaction = new FakeTransaction(*this, path, refuses ? m_script.failing : QString());
    m_bus.registerObject(path, transaction, QDBusConnection::ExportAllSlots);
    return QDBusObjectPath(path);
}

void FakePackageKit::work(const QString &path, const QString &method)
{
    constexpr uint kInstalled = 1;
    constexpr uint kNormalUpdate = 5;
    constexpr uint kSuccess = 1;
    constexpr uint kFailed = 2;
    m_calls.append(method);
    const bool isFailing = method == m_script.failing;
    if (method == u"Cancel" || (isFailing && m_script.failure == Script::Failure::Hangs))
        return;
    if (isFailing && m_script.failure == Script::Failure::Vanishes) {
        vanish();
        return;
    }
    const QStringList packages = method == u"Resolve"      ? m_script.installed
                                 : method == u"GetUpdates" ? m_script.updates
                                                           : QStringList();
    for (const QString &package : packages)
        tell(path, u"Package"_s,
             {method == u"Resolve" ? kInstalled : kNormalUpdate, package, u"a summary"_s});
    tell(path, u"Finished"_s, {isFailing ? kFailed : kSuccess, 12U});
}

void FakePackageKit::tell(const QString &path, const QString &signal, const QVariantList &arguments)
{
    QDBusMessage message = QDBusMessage::createSignal(path, kTransaction, signal);
    message.setArguments(arguments);
    m_bus.send(message);
}

FakeTransaction::FakeTransaction(FakePackageKit &service, QString path, QString refused)
    : QObject(&service)
    , m_service(service)
    , m_path(std::move(path))
    , m_refused(std::move(refused))
{
}

void FakeTransaction::Resolve(qulonglong filter, const QStringList &packages)
{
    // Packages that are not installed are left out of the answer with this filter.
    constexpr qulonglong kInstalledFilter = 4;
    if (filter == kInstalledFilter && packages == QStringList{u"vesk"_s})
        take(u"Resolve"_s);
    else
        sendErrorReply(QDBusError::InvalidArgs, u"Not what was to be asked"_s);
}

void FakeTransaction::take(const QString &method)
{
    if (method == m_refused)
        sendErrorReply(QDBusError::AccessDenied, u"Not allowed"_s);
    else
        m_service.work(m_path, method);
}

} // namespace vesk
