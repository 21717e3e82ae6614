// SPDX-License-Identifier: MIT
#pragma once

#include "virtualdesktop/accessiblebus.h"

#include <QDBusMessage>
#include <QObject>
#include <QString>
#include <QStringList>

namespace vesk {

/// What a screen reader would read aloud unprompted: notifications that appear on the screen.
class Announcements final : public QObject
{
    Q_OBJECT

public:
    /// `busAddress` is that of the session bus, which provides the address of the accessibility bus.
    explicit Announcements(const QString &busAddress);

    /// The names of the notifications, in order.
    [[nodiscard]] const QStringList &heard() const { return m_heard; }

private Q_SLOTS:
    void onStateChanged(const QDBusMessage &message);

private:
    AccessibleBus m_bus;
    QStringList m_heard;
};

} // namespace vesk
