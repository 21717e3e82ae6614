// SPDX-License-Identifier: MIT
#pragma once

#include "notes/storecopy.h"

#include <QCoroTask>

#include <QObject>
#include <QPointer>
#include <QProcess>

namespace vesk {

class Clock;

/// Has a copy of the store made once a day, when nobody has written anything for a while. A process of
/// its own makes it, so that neither a key nor a window waits for it.
class DailyCopy final : public QObject
{
    Q_OBJECT

public:
    /// What the program that makes the copy is called with.
    static constexpr auto kWord = "copy-store";

    /// `program` makes the copy; usually the one that runs. Looks for the first time after some minutes.
    DailyCopy(const QString &store, QString program, Clock &clock);
    ~DailyCopy() override;

    /// Why no copy has been made for days, or that the store turned out to be damaged, in one sentence for
    /// the user; empty if all is well.
    [[nodiscard]] const QString &problem() const { return m_problem; }

Q_SIGNALS:
    void problemChanged();

private:
    void onFinished(int exitCode, QProcess::ExitStatus status);
    void setProblem(const QString &problem);
    [[nodiscard]] static QString describe(StoreCopy::Outcome outcome);
    void makeIfDue(Date now);
    static QCoro::Task<> keep(QPointer<DailyCopy> self, Clock *clock);

    StoreCopy m_copy;
    QString m_program;
    Clock &m_clock;
    QString m_problem;
    // Ends with this object.
    QProcess m_process;
};

} // namespace vesk
