// SPDX-License-Identifier: MIT
#include "app/remotecontrol.h"

#include "platform/accessibility.h"
#include "platform/freedesktop/applicationservice.h"
#include "platform/logging.h"

#include <QDBusConnection>
#include <QDBusMetaType>

using namespace Qt::StringLiterals;

namespace vesk {

namespace {

void refuse(const QDBusMessage &message, QDBusError::ErrorType type, const QString &reason)
{
    message.setDelayedReply(true);
    QDBusConnection::sessionBus().send(message.createErrorReply(type, reason));
}

} // namespace

RemoteControl::RemoteControl(ApplicationService &service, Commands commands)
    : QDBusAbstractAdaptor(&service)
    , m_commands(std::move(commands))
{
    qDBusRegisterMetaType<QList<QVariantMap>>();
}

void RemoteControl::AddNote(const QString &text, const QDBusMessage &message) const
{
    const QString trimmed = text.trimmed();
    if (trimmed.isEmpty()) {
        refuse(message, QDBusError::InvalidArgs, tr("There is no text to add."));
        return;
    }
    if (trimmed.toUtf8().size() > kMaximumTextBytes) {
        refuse(message, QDBusError::LimitsExceeded, tr("The text is too long for a note."));
        return;
    }
    if (!m_commands.addNote) {
        refuse(message, QDBusError::Failed, m_refusal);
        return;
    }
    const QString problem = m_commands.addNote(trimmed);
    qCDebug(appLog) << "bus call" << message.member() << "saved:" << problem.isEmpty();
    // The store holds on to it and writes it when the disk lets it.
    if (!problem.isEmpty())
        refuse(message, QDBusError::Failed,
               tr("The note was added but is not on the disk yet. Do not add it again. %1").arg(problem));
}

QList<QVariantMap> RemoteControl::Keys(QStringList &problems) const
{
    const KeysReport report = m_commands.keys ? m_commands.keys() : KeysReport();
    problems = report.problems;
    return report.toMaps();
}

void RemoteControl::carryOut(const std::function<void()> &command, const QDBusMessage &message,
                             const QString &refusal)
{
    qCDebug(appLog) << "bus call" << message.member() << "refused:" << !refusal.isEmpty();
    if (!refusal.isEmpty()) {
        refuse(message, QDBusError::Failed, refusal);
        return;
    }
    if (!command) {
        refuse(message, QDBusError::NotSupported, tr("This Vesk does not support that command."));
        return;
    }
    message.setDelayedReply(true);
    QDBusConnection::sessionBus().send(message.createReply());
    command();
}

} // namespace vesk
