// SPDX-License-Identifier: MIT
#pragma once

#include "notes/storecopy.h"

#include <QCoroTask>

#include <QObject>
#include <QPointer>
#include <QProcess>

namespace vesk {

class Clock;

/// Copies the store once a day, when nothing has been written for a while. A separate process makes the copy,
/// so that no key and no window waits for it.
class DailyCopy final : public QObject
{
    Q_OBJECT

public:
    /// The argument that makes `program` copy the store and exit.
    static constexpr auto kWord = "copy-store";

    /// `program` makes the copy; usually the running program itself. The first check is after some minutes.
    DailyCopy(const QString &store, QString program, Clock &clock);
    ~DailyCopy() override;

    /// One sentence for the user: why no copy has been made for days, or that the store is damaged. Empty if
    /// there is no problem.
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
