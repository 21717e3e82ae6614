// SPDX-License-Identifier: MIT
#pragma once

#include "platform/sounds.h"

#include <memory>

struct ca_context;

namespace vesk {

/// Sounds of the desktop's sound theme. The sound server is spoken to on a thread of its own: the
/// first contact waits for the server's answer, and a hung server would hold up Vesk. Nobody waits for that
/// thread, not even at the program's end.
class CanberraSounds final : public Sounds
{
public:
    CanberraSounds();
    ~CanberraSounds() override;

    void play(Sound sound) override;

private:
    struct Player;

    /// Shared with the thread, which may outlive this object. Null if there is no sound.
    std::shared_ptr<Player> m_player;
};

} // namespace vesk
