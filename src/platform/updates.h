// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>

namespace vesk {

/// The desktop's way to bring Vesk up to date.
class Updates : public QObject
{
    Q_OBJECT

public:
    /// Whether a check can be started now; false while one runs, and where nothing could answer it.
    [[nodiscard]] virtual bool canCheckForUpdates() const = 0;

    /// Starts a check whose outcome the desktop shows to the user; does nothing if it cannot.
    virtual void checkForUpdates() = 0;

Q_SIGNALS:
    void canCheckForUpdatesChanged();
};

} // namespace vesk
