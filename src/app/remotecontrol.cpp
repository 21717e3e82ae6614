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
    const QString trimmed = text.trimmed();
    if (trimmed.isEmpty()) {
        refuse(message, QDBusError::InvalidArgs, tr("There is no text to add."));
        return;
    }
    if (trimmed.toUtf8().size() > kMaximumTextBytes) {
        refuse(message, QDBusError::LimitsExceeded, tr("The text is too long for a note."));
        return;
    }
    if (!m_doors.addNote) {
        refuse(message, QDBusError::Failed, m_refusal);
        return;
    }
    const QString problem = m_doors.addNote(trimmed);
    qCDebug(appLog) << "bus call" << message.member() << "saved:" << problem.isEmpty();
    // The store keeps it and writes it when the disk allows.
    if (!problem.isEmpty())
        refuse(message, QDBusError::Failed,
               tr("The note was added but is not on the disk yet. Do not add it again. %1").arg(problem));
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
