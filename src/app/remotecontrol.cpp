// SPDX-License-Identifier: MIT
#include "app/remotecontrol.h"

#include "platform/accessibility.h"
#include "platform/freedesktop/applicationservice.h"

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
    if (trimmed.isEmpty())
        refuse(message, QDBusError::InvalidArgs, tr("There is no text to add."));
    else if (trimmed.toUtf8().size() > kMaximumTextBytes)
        refuse(message, QDBusError::LimitsExceeded, tr("The text is too long for a note."));
    else if (!m_commands.addNote(trimmed))
        // The store holds on to it and writes it when the disk lets it.
        refuse(
            message, QDBusError::Failed,
            tr("The note is not saved yet: the disk takes nothing. Vesk keeps it and goes on trying; do not "
               "add it again."));
}

QList<QVariantMap> RemoteControl::Keys(QStringList &problems) const
{
    const KeysReport report = m_commands.keys ? m_commands.keys() : KeysReport();
    problems = report.problems;
    return report.toMaps();
}

void RemoteControl::carryOut(const std::function<void()> &command, const QDBusMessage &message)
{
    if (!command) {
        refuse(message, QDBusError::NotSupported, tr("This Vesk cannot do that."));
        return;
    }
    message.setDelayedReply(true);
    QDBusConnection::sessionBus().send(message.createReply());
    command();
}

} // namespace vesk
