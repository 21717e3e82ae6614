// SPDX-License-Identifier: MIT
#pragma once

#include "platform/sounds.h"

#include <QList>

namespace vesk {

/// Records the sounds that were played.
class MemorySounds final : public Sounds
{
public:
    void play(Sound sound) override;

    [[nodiscard]] const QList<Sound> &played() const { return m_played; }

private:
    QList<Sound> m_played;
};

} // namespace vesk
