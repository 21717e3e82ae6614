// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>
#include <QString>

namespace vesk {

/// The desktop's way to bring Vesk up to date.
class Updates : public QObject
{
    Q_OBJECT

public:
    enum class Outcome {
        UpToDate,
        /// A newer version can be installed.
        Available,
        /// Vesk was not installed by what updates the system.
        NotInstalled,
        /// The answer did not come, or made no sense.
        Failed,
    };

    struct Result
    {
        Outcome outcome = Outcome::Failed;
        /// The newer version, or the installed one where it is up to date; else empty.
        QString version;
    };

    /// Whether a check can be started now; false while one runs, while the system is being changed by
    /// others, and where nothing could answer.
    [[nodiscard]] virtual bool canCheckForUpdates() const = 0;

    /// Starts a check, without waiting; does nothing if it cannot. May take minutes.
    virtual void checkForUpdates() = 0;

Q_SIGNALS:
    void canCheckForUpdatesChanged();
    /// Once for every check that was started.
    void checkFinished(const vesk::Updates::Result &result);
};

} // namespace vesk
