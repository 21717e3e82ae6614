// SPDX-License-Identifier: MIT
#include "platform/memory/memorydefaults.h"

namespace vesk {

bool MemoryDefaults::boolForKey(const QString &key) const
{
    return m_values.value(key, false);
}

void MemoryDefaults::setBool(bool value, const QString &key)
{
    m_values.insert(key, value);
}

} // namespace vesk
