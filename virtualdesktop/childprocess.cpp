// SPDX-License-Identifier: MIT
#include "virtualdesktop/childprocess.h"

#include "virtualdesktop/files.h"

#include <QElapsedTimer>

#include <csignal>
#include <sys/prctl.h>
#include <unistd.h>

using namespace std::chrono_literals;

namespace vesk {

std::unique_ptr<ChildProcess> ChildProcess::start(const Command &command)
{
    std::unique_ptr<ChildProcess> child(new ChildProcess);
    child->m_errorFile = command.errorFile;
    QProcess &process = child->m_process;
    process.setProcessEnvironment(command.environment);
    // Files that it leaves behind are removed with the home folder.
    process.setWorkingDirectory(command.environment.value(QStringLiteral("HOME")));
    process.setStandardErrorFile(command.errorFile, QIODevice::Append);
    process.setStandardInputFile(QProcess::nullDevice());
    process.setChildProcessModifier([] {
        setsid();
        prctl(PR_SET_PDEATHSIG, SIGKILL);
    });
    process.start(command.program, command.arguments);
    if (!process.waitForStarted())
        return nullptr;
    child->m_pid = process.processId();
    return child;
}

ChildProcess::~ChildProcess()
{
    kill();
}

QString ChildProcess::readLine(std::chrono::milliseconds bound)
{
    QElapsedTimer timer;
    timer.start();
    while (!m_process.canReadLine()) {
        const int left = int(bound.count() - timer.elapsed());
        if (left <= 0 || !m_process.waitForReadyRead(left))
            return {};
    }
    return QString::fromUtf8(m_process.readLine()).trimmed();
}

QString ChildProcess::output()
{
    return QString::fromUtf8(m_process.readAllStandardOutput());
}

bool ChildProcess::waitForExit(std::chrono::milliseconds bound)
{
    return !isRunning() || m_process.waitForFinished(int(bound.count()));
}

void ChildProcess::signal(int number)
{
    if (isRunning())
        ::kill(pid_t(m_pid), number);
}

void ChildProcess::kill()
{
    if (!isRunning())
        return;
    m_process.kill();
    m_process.waitForFinished();
}

bool ChildProcess::quit()
{
    signal(SIGTERM);
    const bool went = waitForExit(5s);
    kill();
    return went;
}

qint64 ChildProcess::pid() const
{
    return m_pid;
}

bool ChildProcess::isRunning()
{
    // Check whether it has exited meanwhile; no event loop is running that would report it.
    if (m_process.state() != QProcess::NotRunning)
        m_process.waitForFinished(0);
    return m_process.state() != QProcess::NotRunning;
}

int ChildProcess::exitCode() const
{
    return m_process.exitStatus() == QProcess::NormalExit ? m_process.exitCode() : -1;
}

QString ChildProcess::errorOutput() const
{
    return QString::fromUtf8(contentsOf(m_errorFile));
}

} // namespace vesk
