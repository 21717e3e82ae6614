// SPDX-License-Identifier: MIT
#pragma once

#include <QCoreApplication>
#include <QDBusConnection>
#include <QString>
#include <QVariantList>

#include <chrono>

namespace vesk {

/// The Vesk that runs in this session, as seen from another process. Every call blocks until it is answered.
class Remote final
{
    Q_DECLARE_TR_FUNCTIONS(vesk::Remote)

public:
    /// The result of a call. `error` says in one sentence why it failed, and is empty otherwise.
    struct Answer
    {
        bool isDone = false;
        QString error;
        QVariantList values = {};
    };

    Remote();

    /// Who owns Vesk's name on the bus.
    enum class Owner {
        Nobody,
        /// A running Vesk, whether or not it answers.
        Vesk,
        /// A command that is just adding a note.
        Command,
    };

    /// Without a session bus, nothing else here works.
    [[nodiscard]] bool hasBus() const;
    [[nodiscard]] Owner owner() const;
    /// If a command owns the name, waits until it is done.
    [[nodiscard]] bool isRunning() const;

    /// Shows the panel of the running Vesk.
    [[nodiscard]] Answer activate();
    /// Calls a method of org.vesk.Vesk. Waits up to 10 s, since Vesk may have only just started.
    [[nodiscard]] Answer call(const QString &method, const QVariantList &arguments = {});

    /// Starts `program` in the background, detached from the terminal, and waits up to 15 s until it answers
    /// on the bus. Fails if it exits before that.
    [[nodiscard]] Answer start(const QString &program);

    /// Takes Vesk's name until this process exits, so that no Vesk can start meanwhile. Returns false if the
    /// name is taken.
    [[nodiscard]] bool takeName();

    /// Waits up to 10 s until the Vesk that was told to quit has exited.
    [[nodiscard]] Answer waitForEnd();

    /// Waits a moment before the next attempt.
    static void pause();

private:
    [[nodiscard]] Answer send(const QString &interface, const QString &method, const QVariantList &arguments);

    QDBusConnection m_bus;
};

} // namespace vesk
