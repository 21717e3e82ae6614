// SPDX-License-Identifier: MIT
#include "app/dailycopy.h"

#include "platform/clock.h"

#include <csignal>
#include <sys/prctl.h>
#include <sys/resource.h>
#include <unistd.h>
#include <utility>

namespace vesk {

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace {

/// How often it is looked whether a copy is due; also how long one may take.
constexpr auto kPause = 10min;

} // namespace

DailyCopy::DailyCopy(const QString &store, QString program, Clock &clock)
    : m_copy(store)
    , m_program(std::move(program))
{
    m_process.setStandardInputFile(QProcess::nullDevice());
    m_process.setStandardOutputFile(QProcess::nullDevice());
    m_process.setStandardErrorFile(QProcess::nullDevice());
    m_process.setChildProcessModifier([] {
        // Whatever else the machine does comes first.
        constexpr int kNice = 19;
        ::setpriority(PRIO_PROCESS, 0, kNice);
        ::prctl(PR_SET_PDEATHSIG, SIGKILL);
    });
    keep(this, &clock);
}

void DailyCopy::makeIfDue(Date now)
{
    if (m_process.state() != QProcess::NotRunning)
        m_process.kill();
    else if (m_copy.isDue(now))
        // Nobody is told of a failure: the earlier copy is still there, and the next look tries again.
        m_process.start(m_program, {QString::fromLatin1(kWord)});
}

QCoro::Task<> DailyCopy::keep(QPointer<DailyCopy> self, Clock *clock)
{
    while (true) {
        co_await clock->sleep(kPause);
        if (!self)
            co_return;
        self->makeIfDue(clock->now());
    }
}

} // namespace vesk
