// SPDX-License-Identifier: MIT
#pragma once

#include "virtualdesktop/accessiblebus.h"

#include <QDBusMessage>
#include <QObject>
#include <QString>
#include <QStringList>

namespace vesk {

/// What a screen reader would read out by itself: notifications that come on the screen.
class Announcements final : public QObject
{
    Q_OBJECT

public:
    /// `busAddress` is that of the session bus, which knows the accessibility bus.
    explicit Announcements(const QString &busAddress);

    /// Their names, the first one first.
    [[nodiscard]] const QStringList &heard() const { return m_heard; }

private Q_SLOTS:
    void onStateChanged(const QDBusMessage &message);

private:
    AccessibleBus m_bus;
    QStringList m_heard;
};

} // namespace vesk
