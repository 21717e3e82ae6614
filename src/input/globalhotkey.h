// SPDX-License-Identifier: MIT
#pragma once

#include "platform/hotkeys.h"

#include <QObject>

namespace vesk {

/// One system-wide key combination. Owned by whoever acts on it.
class GlobalHotKey final : public QObject
{
    Q_OBJECT

public:
    /// Claims nothing yet. `id` is unique among all hot keys on the same platform object, which has
    /// to outlive this one.
    GlobalHotKey(quint32 id, HotKeys &hotKeys);
    /// Gives the combination up.
    ~GlobalHotKey() override;

    /// Claims a combination in place of the one before. False, and inert, if it is not to be had.
    bool registerKey(KeyCombination combination);
    void unregisterKey();
    [[nodiscard]] bool isRegistered() const { return m_isRegistered; }

Q_SIGNALS:
    void pressed();

private:
    quint32 m_id;
    HotKeys &m_hotKeys;
    bool m_isRegistered = false;
};

} // namespace vesk
