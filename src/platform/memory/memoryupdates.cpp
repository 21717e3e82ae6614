// SPDX-License-Identifier: MIT
#include "platform/memory/memoryupdates.h"

namespace vesk {

void MemoryUpdates::checkForUpdates()
{
    if (m_canCheck)
        ++m_checkCount;
}

void MemoryUpdates::setCanCheck(bool canCheck)
{
    if (m_canCheck == canCheck)
        return;
    m_canCheck = canCheck;
    Q_EMIT canCheckForUpdatesChanged();
}

} // namespace vesk
