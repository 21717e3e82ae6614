// SPDX-License-Identifier: MIT
#pragma once

#include "input/keysreport.h"

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
    /// What the methods with the same names do. An empty one returns the error NotSupported.
    struct Commands
    {
        std::function<void()> toggle = {};
        std::function<void()> write = {};
        std::function<void()> quit = {};
        std::function<void()> capture = {};
        std::function<void()> captureToLastNote = {};
        std::function<void()> captureChecklist = {};
        std::function<void()> addToChecklist = {};
        std::function<void()> savePrompt = {};
        std::function<void()> quickNote = {};
        std::function<void()> quickChecklist = {};
        /// Saves the text as a new note. Returns why it is not on the disk yet; empty if it is.
        std::function<QString(const QString &)> addNote = {};
        std::function<KeysReport()> keys = {};
    };

    /// Owned by the service, which exports it under its own name and path.
    RemoteControl(ApplicationService &service, Commands commands);

    /// From now on refuses every command with `reason`, except Quit, and AddNote while there is a store.
    void refuseCommands(const QString &reason) { m_refusal = reason; }

public Q_SLOTS:
    void Toggle(const QDBusMessage &message) const { carryOut(m_commands.toggle, message); }
    void Write(const QDBusMessage &message) const { carryOut(m_commands.write, message); }
    void Quit(const QDBusMessage &message) const { carryOut(m_commands.quit, message, {}); }
    void Capture(const QDBusMessage &message) const { carryOut(m_commands.capture, message); }
    void CaptureToLastNote(const QDBusMessage &message) const
    {
        carryOut(m_commands.captureToLastNote, message);
    }
    void CaptureChecklist(const QDBusMessage &message) const
    {
        carryOut(m_commands.captureChecklist, message);
    }
    void AddToChecklist(const QDBusMessage &message) const { carryOut(m_commands.addToChecklist, message); }
    void SavePrompt(const QDBusMessage &message) const { carryOut(m_commands.savePrompt, message); }
    void QuickNote(const QDBusMessage &message) const { carryOut(m_commands.quickNote, message); }
    void QuickChecklist(const QDBusMessage &message) const { carryOut(m_commands.quickChecklist, message); }
    void AddNote(const QString &text, const QDBusMessage &message) const;
    /// Returns a map for each combination, and the problems in the user's file.
    [[nodiscard]] QList<QVariantMap> Keys(QStringList &problems) const;

private:
    /// Replies to the caller before it runs the command, which may take long.
    static void carryOut(const std::function<void()> &command, const QDBusMessage &message,
                         const QString &refusal);
    void carryOut(const std::function<void()> &command, const QDBusMessage &message) const
    {
        carryOut(command, message, m_refusal);
    }

    Commands m_commands;
    QString m_refusal;
};

} // namespace vesk
