// SPDX-License-Identifier: MIT
#include "input/globalhotkey.h"

namespace vesk {

GlobalHotKey::GlobalHotKey(quint32 id, HotKeys &hotKeys)
    : m_id(id)
    , m_hotKeys(hotKeys)
{
    connect(&hotKeys, &HotKeys::pressed, this, [this](quint32 pressedId) {
        if (pressedId == m_id)
            Q_EMIT pressed();
    });
}

GlobalHotKey::~GlobalHotKey()
{
    unregisterKey();
}

bool GlobalHotKey::registerKey(KeyCombination combination)
{
    m_isRegistered = m_hotKeys.registerHotKey(m_id, combination);
    return m_isRegistered;
}

void GlobalHotKey::unregisterKey()
{
    if (m_isRegistered)
        m_hotKeys.unregisterHotKey(m_id);
    m_isRegistered = false;
}

} // namespace vesk
