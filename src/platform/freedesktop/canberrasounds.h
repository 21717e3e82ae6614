// SPDX-License-Identifier: MIT
#pragma once

#include "platform/sounds.h"

#include <memory>

struct ca_context;

namespace vesk {

/// Plays sounds of the desktop's sound theme, in a separate thread: the first contact blocks until the sound
/// server answers, and a hung server would block Vesk. Nobody waits for that thread, not even when the
/// program exits.
class CanberraSounds final : public Sounds
{
public:
    CanberraSounds();
    ~CanberraSounds() override;

    void play(Sound sound) override;

private:
    struct Player;

    /// Shared with the thread, which may outlive this object. Null if sound is not available.
    std::shared_ptr<Player> m_player;
};

} // namespace vesk
