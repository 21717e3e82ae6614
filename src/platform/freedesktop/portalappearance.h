// SPDX-License-Identifier: MIT
#pragma once

#include "platform/freedesktop/desktoplooks.h"

#include <QVariant>

class QDBusMessage;
class QDBusVariant;

namespace vesk {

/// The looks of the desktop according to its settings portal. Empty if there is none.
class PortalAppearance final : public QObject
{
    Q_OBJECT

public:
    /// Asks the portal. `changed` is emitted when the answers arrive.
    PortalAppearance();

    [[nodiscard]] const DesktopLooks &looks() const { return m_looks; }

Q_SIGNALS:
    void changed();

private Q_SLOTS:
    void onSettingChanged(const QString &group, const QString &key, const QDBusVariant &value);

private:
    void ask(const QString &group, const QString &key);
    void take(const QString &group, const QString &key, const QVariant &value);

    DesktopLooks m_looks;
};

} // namespace vesk
