// SPDX-License-Identifier: MIT
#include "app/dailycopy.h"

#include "platform/clock.h"

#include <QTextStream>

#include <csignal>
#include <sys/prctl.h>
#include <sys/resource.h>
#include <unistd.h>
#include <utility>

namespace vesk {

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace {

/// How often to check whether a copy is due; also how long making one may take.
constexpr auto kPause = 10min;

} // namespace

DailyCopy::DailyCopy(const QString &store, QString program, Clock &clock)
    : m_copy(store)
    , m_program(std::move(program))
    , m_clock(clock)
{
    connect(&m_process, &QProcess::finished, this, &DailyCopy::onFinished);
    connect(&m_process, &QProcess::errorOccurred, this, [this](QProcess::ProcessError error) {
        if (error == QProcess::FailedToStart)
            onFinished(static_cast<int>(StoreCopy::Outcome::Failed), QProcess::NormalExit);
    });
    m_process.setStandardInputFile(QProcess::nullDevice());
    m_process.setStandardOutputFile(QProcess::nullDevice());
    m_process.setStandardErrorFile(QProcess::nullDevice());
    m_process.setChildProcessModifier([] {
        // The lowest priority: everything else on the machine comes first.
        constexpr int kNice = 19;
        ::setpriority(PRIO_PROCESS, 0, kNice);
        ::prctl(PR_SET_PDEATHSIG, SIGKILL);
    });
    keep(this, &clock);
}

DailyCopy::~DailyCopy()
{
    // Destroying this object ends a copy in progress, which is not a failure.
    m_process.disconnect(this);
}

void DailyCopy::makeIfDue(Date now)
{
    if (m_process.state() != QProcess::NotRunning)
        m_process.kill();
    else if (m_copy.isDue(now))
        m_process.start(m_program, {QString::fromLatin1(kWord)});
}

void DailyCopy::onFinished(int exitCode, QProcess::ExitStatus status)
{
    using Outcome = StoreCopy::Outcome;
    const auto outcome = status == QProcess::NormalExit ? static_cast<Outcome>(exitCode) : Outcome::Failed;
    const bool isWell = outcome == Outcome::Made || outcome == Outcome::NothingToCopy;
    // The next check tries again, so a failure is reported only if it persists. Damage is reported at once.
    const bool isTold = outcome == Outcome::StoreDamaged || m_copy.isOverdue(m_clock.now());
    if (isWell)
        setProblem({});
    else if (isTold)
        setProblem(describe(outcome));
}

void DailyCopy::setProblem(const QString &problem)
{
    if (m_problem == problem)
        return;
    m_problem = problem;
    if (!problem.isEmpty())
        QTextStream(stderr) << "vesk: " << problem << '\n';
    Q_EMIT problemChanged();
}

QString DailyCopy::describe(StoreCopy::Outcome outcome)
{
    switch (outcome) {
    case StoreCopy::Outcome::StoreDamaged:
        return tr(
            "The notes file is damaged, so Vesk did not copy it. Quit Vesk and start it again for advice.");
    case StoreCopy::Outcome::DiskTooFull:
        return tr("Vesk cannot keep a copy of your notes: the disk is too full.");
    case StoreCopy::Outcome::NotAllowed:
        return tr("Vesk cannot keep a copy of your notes: it has no permission to write to their folder.");
    default:
        return tr("Vesk cannot keep a copy of your notes: copying them failed.");
    }
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
