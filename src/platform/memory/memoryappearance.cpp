// SPDX-License-Identifier: MIT
#include "platform/memory/memoryappearance.h"

namespace vesk {

void MemoryAppearance::setColorScheme(ColorScheme scheme)
{
    if (m_colorScheme == scheme)
        return;
    m_colorScheme = scheme;
    Q_EMIT changed();
}

void MemoryAppearance::setAccentColor(const std::optional<QColor> &color)
{
    if (m_accentColor == color)
        return;
    m_accentColor = color;
    Q_EMIT changed();
}

void MemoryAppearance::setReduceMotion(bool reducesMotion)
{
    if (m_reducesMotion == reducesMotion)
        return;
    m_reducesMotion = reducesMotion;
    Q_EMIT changed();
}

} // namespace vesk
