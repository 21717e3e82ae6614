// SPDX-License-Identifier: MIT
#pragma once

#include <QCoreApplication>
#include <QDBusConnection>
#include <QString>
#include <QVariantList>

#include <chrono>

namespace vesk {

/// The Vesk that runs in this session, seen from another process. Every call waits for its answer: the
/// program that uses this does nothing else meanwhile.
class Remote final
{
    Q_DECLARE_TR_FUNCTIONS(vesk::Remote)

public:
    /// How a call went; `error` says in one sentence why it failed, and is empty if it did not.
    struct Answer
    {
        bool isDone = false;
        QString error;
        /// What the method returned.
        QVariantList values = {};
    };

    Remote();

    /// Who has Vesk's name on the bus.
    enum class Owner {
        Nobody,
        /// A Vesk that stays, whether or not it answers.
        Vesk,
        /// A command that is adding a note at this moment.
        Command,
    };

    /// Without the session's bus nothing else here works.
    [[nodiscard]] bool hasBus() const;
    [[nodiscard]] Owner owner() const;
    /// Waits for a command that has the name.
    [[nodiscard]] bool isRunning() const;

    /// Has the running Vesk come forward.
    [[nodiscard]] Answer activate();
    /// Calls a method of org.vesk.Vesk. Waits up to 10 s, for a Vesk that has only just started.
    [[nodiscard]] Answer call(const QString &method, const QVariantList &arguments = {});

    /// Starts `program` in the background, detached from the terminal, and waits until it answers on the
    /// bus, up to 15 s. Fails if it ends before.
    [[nodiscard]] Answer start(const QString &program);

    /// Takes Vesk's name for the rest of this process, so that none starts meanwhile; false if one runs.
    [[nodiscard]] bool takeName();

    /// Waits until the Vesk that was told to quit is gone, up to 10 s.
    [[nodiscard]] Answer waitForEnd();

    /// Waits a moment before something is asked again.
    static void pause();

private:
    [[nodiscard]] Answer send(const QString &interface, const QString &method, const QVariantList &arguments);

    QDBusConnection m_bus;
};

} // namespace vesk
