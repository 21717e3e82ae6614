// SPDX-License-Identifier: MIT
#include "virtualdesktop/guard.h"

#include "virtualdesktop/files.h"

#include <QHash>
#include <QList>

#include <csignal>
#include <sys/prctl.h>
#include <sys/wait.h>
#include <unistd.h>

using namespace Qt::StringLiterals;

namespace vesk {

namespace {

/// The parents of all running processes.
QHash<pid_t, pid_t> processParents()
{
    QHash<pid_t, pid_t> parents;
    const QStringList names = QDir(u"/proc"_s).entryList(QDir::Dirs | QDir::NoDotAndDotDot);
    for (const QString &name : names) {
        bool isProcess = false;
        const pid_t process = name.toInt(&isProcess);
        if (!isProcess)
            continue;
        // The program's name is in parentheses and may contain anything, so parse from its end.
        const QByteArray line = contentsOf(u"/proc/%1/stat"_s.arg(name));
        const QList<QByteArray> fields = line.mid(line.lastIndexOf(')') + 2).split(' ');
        if (fields.size() > 1)
            parents.insert(process, fields.at(1).toInt());
    }
    return parents;
}

QList<pid_t> descendantsOf(pid_t ancestor)
{
    const QHash<pid_t, pid_t> parents = processParents();
    QList<pid_t> descendants;
    for (auto process = parents.keyBegin(); process != parents.keyEnd(); ++process) {
        pid_t parent = parents.value(*process);
        while (parent != 0 && parent != ancestor)
            parent = parents.value(parent);
        if (parent == ancestor)
            descendants.append(*process);
    }
    return descendants;
}

int exitCodeOf(int status)
{
    return WIFEXITED(status) ? WEXITSTATUS(status) : 128 + WTERMSIG(status);
}

/// Asks the kernel to send `signal` when `parent`, our parent, exits; exits at once if it already has.
void endWith(pid_t parent, int signal)
{
    prctl(PR_SET_PDEATHSIG, signal);
    if (getppid() != parent)
        _exit(1);
}

/// Waits until the body or the runner's process exits, then ends everything that is left.
[[noreturn]] void keepGuard(pid_t body, const sigset_t &signals)
{
    for (;;) {
        int signal = 0;
        sigwait(&signals, &signal);
        if (signal != SIGCHLD) {
            endDescendants();
            _exit(128 + signal);
        }
        int status = 0;
        for (pid_t ended = waitpid(-1, &status, WNOHANG); ended > 0; ended = waitpid(-1, &status, WNOHANG)) {
            if (ended != body)
                continue;
            const int code = exitCodeOf(status);
            endDescendants();
            _exit(code);
        }
    }
}

} // namespace

void adoptOrphans()
{
    prctl(PR_SET_CHILD_SUBREAPER, 1);
}

void endDescendants()
{
    constexpr int kRounds = 1000;
    constexpr useconds_t kPause = 2000;
    for (int round = 0; round < kRounds; ++round) {
        const QList<pid_t> descendants = descendantsOf(getpid());
        if (descendants.isEmpty())
            return;
        for (const pid_t process : descendants)
            kill(process, SIGKILL);
        while (waitpid(-1, nullptr, WNOHANG) > 0) {
        }
        usleep(kPause);
    }
}

int runGuarded(const std::function<int()> &body)
{
    const pid_t runner = getpid();
    const pid_t guard = fork();
    if (guard > 0) {
        int status = 0;
        while (waitpid(guard, &status, 0) < 0) {
        }
        return exitCodeOf(status);
    }

    sigset_t signals;
    sigset_t before;
    sigemptyset(&signals);
    for (const int signal : {SIGCHLD, SIGTERM, SIGINT, SIGHUP})
        sigaddset(&signals, signal);
    sigprocmask(SIG_BLOCK, &signals, &before);
    endWith(runner, SIGTERM);
    adoptOrphans();

    const pid_t guardProcess = getpid();
    const pid_t child = fork();
    if (child > 0)
        keepGuard(child, signals);
    sigprocmask(SIG_SETMASK, &before, nullptr);
    endWith(guardProcess, SIGKILL);
    adoptOrphans();
    return body();
}

} // namespace vesk
