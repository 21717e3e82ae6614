// SPDX-License-Identifier: MIT
#include "platform/memory/memorysounds.h"

namespace vesk {

void MemorySounds::play(Sound sound)
{
    m_played.append(sound);
}

} // namespace vesk
