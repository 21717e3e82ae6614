// SPDX-License-Identifier: MIT
#include "client/remote.h"

#include "platform/freedesktop/applicationservice.h"

#include <QDBusConnectionInterface>
#include <QDBusMessage>
#include <QDeadlineTimer>
#include <QDir>
#include <QFile>
#include <QProcess>
#include <QTemporaryFile>

#include <unistd.h>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace vesk {

namespace {

const QString kService = u"org.vesk.Vesk"_s;
const QString kPath = u"/org/vesk/Vesk"_s;
const QString kOwnInterface = u"org.vesk.Vesk"_s;
const QString kApplicationInterface = u"org.freedesktop.Application"_s;

constexpr std::chrono::milliseconds kCallDeadline = 10s;
constexpr std::chrono::milliseconds kStartDeadline = 15s;

Remote::Answer done()
{
    return {.isDone = true, .error = {}};
}

Remote::Answer failed(const QString &error)
{
    return {.isDone = false, .error = error};
}

QString contentsOf(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()).trimmed() : QString();
}

/// Also true of a zombie, whose parent has not collected it yet.
bool hasEnded(qint64 process)
{
    const QString status = contentsOf(u"/proc/%1/stat"_s.arg(process));
    // The name is in parentheses and may contain anything; the state follows it.
    return status.isEmpty() || status.mid(status.lastIndexOf(u')')).startsWith(u") Z");
}

} // namespace

Remote::Remote()
    : m_bus(QDBusConnection::sessionBus())
{
}

bool Remote::hasBus() const
{
    return m_bus.isConnected();
}

Remote::Owner Remote::owner() const
{
    if (!hasBus())
        return Owner::Nobody;
    QDBusMessage question =
        QDBusMessage::createMethodCall(kService, kPath, kApplicationInterface, u"Activate"_s);
    question << QVariantMap{{ApplicationService::kInBackground, true}};
    question.setAutoStartService(false);
    const QDeadlineTimer deadline(kCallDeadline);
    const QDBusMessage reply = m_bus.call(question, QDBus::Block, int(kCallDeadline.count()));
    if (reply.errorName() == "org.freedesktop.DBus.Error.NameHasNoOwner"_L1)
        return Owner::Nobody;
    switch (QDBusError(reply).type()) {
    case QDBusError::UnknownObject:
    case QDBusError::Disconnected:
        return Owner::Command;
    case QDBusError::NoReply:
        // A NoReply before the deadline means that the owner has left the bus: a command that has finished.
        return deadline.hasExpired() ? Owner::Vesk : Owner::Command;
    default:
        return Owner::Vesk;
    }
}

bool Remote::isRunning() const
{
    for (const QDeadlineTimer deadline(kCallDeadline); !deadline.hasExpired(); pause()) {
        const Owner found = owner();
        if (found != Owner::Command)
            return found == Owner::Vesk;
    }
    return false;
}

Remote::Answer Remote::activate()
{
    return send(kApplicationInterface, u"Activate"_s, {QVariantMap()});
}

Remote::Answer Remote::call(const QString &method, const QVariantList &arguments)
{
    return send(kOwnInterface, method, arguments);
}

Remote::Answer Remote::start(const QString &program)
{
    // If the program fails to start, its standard error up to that point is the reason we show. A file that
    // is unlinked afterwards, because writing to a pipe that nobody reads would kill the program.
    QTemporaryFile words(QDir::tempPath() + u"/vesk-start-XXXXXX"_s);
    if (!words.open())
        return failed(tr("Could not create a temporary file in %1.").arg(QDir::tempPath()));
    QProcess process;
    process.setProgram(program);
    process.setArguments({u"--background"_s});
    process.setWorkingDirectory(QDir::homePath());
    process.setStandardInputFile(QProcess::nullDevice());
    process.setStandardOutputFile(QProcess::nullDevice());
    process.setStandardErrorFile(words.fileName(), QIODevice::Append);
    qint64 pid = 0;
    if (!process.startDetached(&pid))
        return failed(tr("%1 could not be started.").arg(program));
    for (QDeadlineTimer deadline(kStartDeadline); !deadline.hasExpired();) {
        // Vesk takes the name before it opens the notes, and only answers after that.
        if (m_bus.interface()->isServiceRegistered(kService) && owner() == Owner::Vesk)
            return done();
        if (hasEnded(pid)) {
            const QString reason = contentsOf(words.fileName());
            return failed(reason.isEmpty() ? tr("Vesk quit as soon as it was started.") : reason);
        }
        pause();
    }
    return failed(tr("Vesk was started but does not respond yet."));
}

void Remote::pause()
{
    constexpr useconds_t kMoment = 10'000;
    ::usleep(kMoment);
}

bool Remote::takeName()
{
    return hasBus() && m_bus.registerService(kService);
}

Remote::Answer Remote::waitForEnd()
{
    for (QDeadlineTimer deadline(kCallDeadline); !deadline.hasExpired(); pause()) {
        if (!m_bus.interface()->isServiceRegistered(kService))
            return done();
    }
    return failed(tr("Vesk was told to quit but is still running."));
}

Remote::Answer Remote::send(const QString &interface, const QString &method, const QVariantList &arguments)
{
    QDBusMessage message = QDBusMessage::createMethodCall(kService, kPath, interface, method);
    message.setArguments(arguments);
    message.setAutoStartService(false);
    const QDBusMessage reply = m_bus.call(message, QDBus::Block, int(kCallDeadline.count()));
    if (reply.type() == QDBusMessage::ReplyMessage)
        return {.isDone = true, .error = {}, .values = reply.arguments()};
    switch (QDBusError(reply).type()) {
    case QDBusError::NoReply:
    case QDBusError::TimedOut:
        return failed(tr("Vesk is running but does not respond."));
    case QDBusError::UnknownInterface:
    case QDBusError::UnknownMethod:
        return failed(tr("The running Vesk is another version, which does not have this command. Quit it "
                         "and start it again."));
    default:
        return failed(reply.errorMessage());
    }
}

} // namespace vesk
