// SPDX-License-Identifier: MIT
#pragma once

#include <QProcess>
#include <QString>

#include <chrono>
#include <memory>

namespace vesk {

/// One program that a virtual desktop runs, in a session of its own. It dies with this object, and
/// with the test's process.
class ChildProcess final
{
public:
    struct Command
    {
        QString program;
        QStringList arguments;
        QProcessEnvironment environment;
        /// The file that takes what the program prints on standard error.
        QString errorFile;
    };

    /// Null if the program could not be started.
    [[nodiscard]] static std::unique_ptr<ChildProcess> start(const Command &command);
    ~ChildProcess();
    Q_DISABLE_COPY_MOVE(ChildProcess)

    /// The next line of its standard output without the line end; empty if none came within `bound`.
    [[nodiscard]] QString readLine(std::chrono::milliseconds bound);

    /// What it has printed on standard output and nobody has read.
    [[nodiscard]] QString output();

    /// True once it has ended. Failure: false after `bound`.
    [[nodiscard]] bool waitForExit(std::chrono::milliseconds bound);

    /// Sends the signal.
    void signal(int number);

    /// Ends it at once, as a power cut would, and returns when it is gone.
    void kill();

    /// Asks it to quit; kills it if it has not within five seconds. True if it went by itself.
    bool quit();

    [[nodiscard]] qint64 pid() const;
    [[nodiscard]] bool isRunning();

    /// Its exit code after it ended by itself, -1 after it was ended by a signal.
    [[nodiscard]] int exitCode() const;
    [[nodiscard]] QString errorOutput() const;

private:
    ChildProcess() = default;

    QProcess m_process;
    QString m_errorFile;
    qint64 m_pid = 0;
};

} // namespace vesk
