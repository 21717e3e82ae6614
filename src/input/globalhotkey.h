// SPDX-License-Identifier: MIT
#pragma once

#include "platform/hotkeys.h"

#include <QObject>

namespace vesk {

/// One global key combination. Owned by the class that acts on it.
class GlobalHotKey final : public QObject
{
    Q_OBJECT

public:
    /// Claims nothing yet. `id` must be unique among the hot keys of `hotKeys`, which must outlive this
    /// object.
    GlobalHotKey(quint32 id, HotKeys &hotKeys);
    /// Gives up the combination.
    ~GlobalHotKey() override;

    /// Claims a combination in place of the previous one. Returns false, with nothing claimed, if it is
    /// taken.
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
