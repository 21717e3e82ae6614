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

std::optional<int> MemoryDefaults::intForKey(const QString &key) const
{
    const auto found = m_numbers.constFind(key);
    return found == m_numbers.constEnd() ? std::nullopt : std::optional(*found);
}

void MemoryDefaults::setInt(int value, const QString &key)
{
    m_numbers.insert(key, value);
}

} // namespace vesk
