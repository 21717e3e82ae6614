// SPDX-License-Identifier: MIT
#pragma once

#include "client/commandline.h"
#include "client/remote.h"

#include <QCoreApplication>

namespace vesk {

/// Does what a command line asks for. One for the run of the program.
class Client final
{
    Q_DECLARE_TR_FUNCTIONS(vesk::Client)

public:
    /// `app` is the path of the program that shows the windows.
    explicit Client(QString app);

    /// Returns the program's exit status; what went wrong stands on standard error. Does not return if
    /// this process becomes the application.
    [[nodiscard]] int run(const CommandLine &command);

private:
    [[nodiscard]] int start(const CommandLine &command);
    [[nodiscard]] int call(const QString &method);
    [[nodiscard]] int quit(const QString &method);
    [[nodiscard]] int keys(const CommandLine &command);
    [[nodiscard]] int addInput();
    [[nodiscard]] int add(const QString &text);
    /// Adds to the store itself, while this process has the name of Vesk.
    [[nodiscard]] int addToStore(const QString &text);
    [[nodiscard]] int becomeApp(const QStringList &arguments);

    QString m_app;
    Remote m_remote;
};

/// Prints one line on standard error.
void sayError(const QString &message);

} // namespace vesk
