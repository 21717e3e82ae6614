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

void accept(const QDBusMessage &message)
{
    message.setDelayedReply(true);
    QDBusConnection::sessionBus().send(message.createReply());
}

} // namespace

RemoteControl::RemoteControl(ApplicationService &service, Doors doors)
    : QDBusAbstractAdaptor(&service)
    , m_doors(std::move(doors))
{
    qDBusRegisterMetaType<QList<QVariantMap>>();
}

void RemoteControl::Quit(const QDBusMessage &message) const
{
    accept(message);
    m_doors.quit();
}

void RemoteControl::AddNote(const QString &text, const QDBusMessage &message) const
{
    using Outcome = noterules::Outcome;
    if (!m_doors.addNote)
        return refuse(message, QDBusError::Failed, m_refusal);
    const noterules::Kept kept = m_doors.addNote(text);
    qCDebug(appLog) << "bus call" << message.member() << "saved:" << kept.problem.isEmpty();
    if (kept.outcome == Outcome::Empty)
        refuse(message, QDBusError::InvalidArgs, tr("There is no text to add."));
    else if (kept.outcome == Outcome::TooLong)
        refuse(message, QDBusError::LimitsExceeded, tr("The text is too long for a note."));
    else if (!kept.problem.isEmpty())
        // The store keeps it and writes it when the disk allows.
        refuse(
            message, QDBusError::Failed,
            tr("The note was added but is not on the disk yet. Do not add it again. %1").arg(kept.problem));
}

QList<QVariantMap> RemoteControl::Keys(QStringList &problems) const
{
    const KeysReport report = m_doors.keys ? m_doors.keys() : KeysReport();
    problems = report.problems;
    return report.toMaps();
}

void RemoteControl::carryOut(Command command, const QDBusMessage &message) const
{
    qCDebug(appLog) << "bus call" << message.member() << "refused:" << !m_refusal.isEmpty();
    if (!m_refusal.isEmpty())
        return refuse(message, QDBusError::Failed, m_refusal);
    if (!m_doors.perform)
        return refuse(message, QDBusError::NotSupported, tr("This Vesk does not support that command."));
    accept(message);
    m_doors.perform(command);
}

} // namespace vesk
