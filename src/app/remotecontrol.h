// SPDX-License-Identifier: MIT
#pragma once

#include "commands/command.h"
#include "input/keysreport.h"
#include "notes/noterules.h"

#include <QDBusAbstractAdaptor>
#include <QDBusContext>
#include <QDBusMessage>

#include <functional>

namespace vesk {

class ApplicationService;
class Clock;
class NotesStore;

/// The interface org.vesk.Vesk on the session bus: the commands of the keys, for scripts and for desktops on
/// which a program cannot have global keys. Only the user's own processes can reach that bus.
class RemoteControl final : public QDBusAbstractAdaptor
{
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.vesk.Vesk")

public:
    /// What the methods do. A command without `perform` returns the error NotSupported.
    struct Doors
    {
        std::function<void(Command)> perform = {};
        /// Works from the first moment to the last, as `perform` does not.
        std::function<void()> quit = {};
        /// Adds a note, by the rules of adding one.
        std::function<noterules::Kept(const QString &)> addNote = {};
        std::function<KeysReport()> keys = {};
    };

    /// Owned by the service, which exports it under its own name and path.
    RemoteControl(ApplicationService &service, Doors doors);

    /// From now on refuses every command with `reason`, except Quit, and AddNote while there is a store.
    void refuseCommands(const QString &reason) { m_refusal = reason; }

public Q_SLOTS:
    void Toggle(const QDBusMessage &message) const { carryOut(Command::Toggle, message); }
    void Write(const QDBusMessage &message) const { carryOut(Command::Write, message); }
    void Capture(const QDBusMessage &message) const { carryOut(Command::Capture, message); }
    void CaptureToLastNote(const QDBusMessage &message) const
    {
        carryOut(Command::CaptureToLastNote, message);
    }
    void CaptureChecklist(const QDBusMessage &message) const { carryOut(Command::CaptureChecklist, message); }
    void AddToChecklist(const QDBusMessage &message) const { carryOut(Command::AddToChecklist, message); }
    void SavePrompt(const QDBusMessage &message) const { carryOut(Command::SavePrompt, message); }
    void QuickNote(const QDBusMessage &message) const { carryOut(Command::QuickNote, message); }
    void QuickChecklist(const QDBusMessage &message) const { carryOut(Command::QuickChecklist, message); }
    void Quit(const QDBusMessage &message) const;
    void AddNote(const QString &text, const QDBusMessage &message) const;
    /// Returns a map for each combination, and the problems in the user's file.
    [[nodiscard]] QList<QVariantMap> Keys(QStringList &problems) const;

private:
    /// Replies to the caller before it carries out the command, which may take long.
    void carryOut(Command command, const QDBusMessage &message) const;

    Doors m_doors;
    QString m_refusal;
};

} // namespace vesk
