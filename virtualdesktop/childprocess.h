// SPDX-License-Identifier: MIT
#pragma once

#include <QProcess>
#include <QString>

#include <chrono>
#include <memory>

namespace vesk {

/// A program on a virtual desktop, in a separate session. It is killed with this object, and with the test's
/// process.
class ChildProcess final
{
public:
    struct Command
    {
        QString program;
        QStringList arguments;
        QProcessEnvironment environment;
        /// The file that receives the program's standard error.
        QString errorFile;
    };

    /// Null if the program could not be started.
    [[nodiscard]] static std::unique_ptr<ChildProcess> start(const Command &command);
    ~ChildProcess();
    Q_DISABLE_COPY_MOVE(ChildProcess)

    /// The next line of its standard output without the line end; empty if none arrived within `bound`.
    [[nodiscard]] QString readLine(std::chrono::milliseconds bound);

    /// What it has printed on standard output that has not been read yet.
    [[nodiscard]] QString output();

    /// Returns true once it has exited, false after `bound`.
    [[nodiscard]] bool waitForExit(std::chrono::milliseconds bound);

    /// Sends the signal.
    void signal(int number);

    /// Kills it at once, as a power failure would, and returns when it is gone.
    void kill();

    /// Asks it to quit; kills it after five seconds. Returns true if it quit by itself.
    bool quit();

    [[nodiscard]] qint64 pid() const;
    [[nodiscard]] bool isRunning();

    /// Its exit code if it exited by itself, -1 if a signal ended it.
    [[nodiscard]] int exitCode() const;
    [[nodiscard]] QString errorOutput() const;

private:
    ChildProcess() = default;

    QProcess m_process;
    QString m_errorFile;
    qint64 m_pid = 0;
};

} // namespace vesk
