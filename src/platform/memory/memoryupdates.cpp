// SPDX-License-Identifier: MIT
#include "platform/memory/memoryupdates.h"

namespace vesk {

void MemoryUpdates::checkForUpdates()
{
    if (!canCheckForUpdates())
        return;
    m_isChecking = true;
    Q_EMIT canCheckForUpdatesChanged();
}

void MemoryUpdates::setCanCheck(bool canCheck)
{
    if (m_canCheck == canCheck)
        return;
    m_canCheck = canCheck;
    if (!m_isChecking)
        Q_EMIT canCheckForUpdatesChanged();
}

void MemoryUpdates::finish(const Result &result)
{
    if (!m_isChecking)
        return;
    m_isChecking = false;
    if (m_canCheck)
        Q_EMIT canCheckForUpdatesChanged();
    Q_EMIT checkFinished(result);
}

} // namespace vesk
