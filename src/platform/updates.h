// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>
#include <QString>

namespace vesk {

/// Asks the desktop's package service whether there is a newer Vesk.
class Updates : public QObject
{
    Q_OBJECT

public:
    enum class Outcome {
        UpToDate,
        /// A newer version can be installed.
        Available,
        /// Vesk was not installed by the system's package manager.
        NotInstalled,
        /// There was no answer, or it was invalid.
        Failed,
    };

    struct Result
    {
        Outcome outcome = Outcome::Failed;
        /// `Available`: the newer version. `UpToDate`: the installed one. Otherwise empty.
        QString version;
    };

    /// Whether a check can be started now. False while one is running, while packages are being installed or
    /// removed, and if there is no package service.
    [[nodiscard]] virtual bool canCheckForUpdates() const = 0;

    /// Starts a check and returns at once; `checkFinished` follows, possibly after minutes. Does nothing if
    /// `canCheckForUpdates` is false.
    virtual void checkForUpdates() = 0;

Q_SIGNALS:
    void canCheckForUpdatesChanged();
    /// Emitted once for every check that was started.
    void checkFinished(const vesk::Updates::Result &result);
};

} // namespace vesk
