// SPDX-License-Identifier: MIT
#include "input/globalhotkey.h"

namespace vesk {

GlobalHotKey::GlobalHotKey(Command command, HotKeys &hotKeys)
    : m_command(command)
    , m_hotKeys(hotKeys)
{
    connect(&hotKeys, &HotKeys::pressed, this, [this](quint32 pressedId) {
        if (pressedId == id())
            Q_EMIT pressed(m_command);
    });
}

GlobalHotKey::~GlobalHotKey()
{
    unregisterKey();
}

bool GlobalHotKey::registerKey(KeyCombination combination)
{
    m_isRegistered = m_hotKeys.registerHotKey(id(), combination);
    return m_isRegistered;
}

void GlobalHotKey::unregisterKey()
{
    if (m_isRegistered)
        m_hotKeys.unregisterHotKey(id());
    m_isRegistered = false;
}

} // namespace vesk
