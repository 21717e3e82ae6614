// SPDX-License-Identifier: MIT
#pragma once

namespace vesk {

/// Short sounds of the desktop's own theme.
class Sounds
{
public:
    enum class Sound {
        /// Something was kept.
        Tink,
    };

    virtual ~Sounds() = default;

    /// Starts the sound and returns at once; silent if the desktop has no such sound, or has its
    /// sounds turned off.
    virtual void play(Sound sound) = 0;
};

} // namespace vesk
