// SPDX-License-Identifier: MIT
#pragma once

#include "client/commandline.h"
#include "client/remote.h"

#include <QCoreApplication>

namespace vesk {

/// Carries out a command line. One per program.
class Client final
{
    Q_DECLARE_TR_FUNCTIONS(vesk::Client)

public:
    /// `app` is the path of the program with the windows.
    explicit Client(QString app);

    /// Returns the exit status; prints errors to standard error. Does not return if this process becomes the
    /// application.
    [[nodiscard]] int run(const CommandLine &command);

private:
    [[nodiscard]] int start(const CommandLine &command);
    [[nodiscard]] int call(const QString &method);
    [[nodiscard]] int quit(const QString &method);
    [[nodiscard]] int keys(const CommandLine &command);
    [[nodiscard]] int addInput();
    [[nodiscard]] int add(const QString &text);
    /// Adds to the store directly. This process must own the bus name of Vesk.
    [[nodiscard]] int addToStore(const QString &text);
    [[nodiscard]] int becomeApp(const QStringList &arguments);

    QString m_app;
    Remote m_remote;
};

/// Prints one line to standard error.
void sayError(const QString &message);

} // namespace vesk
