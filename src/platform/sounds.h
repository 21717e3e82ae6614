// SPDX-License-Identifier: MIT
#pragma once

namespace vesk {

/// Plays short sounds from the desktop's sound theme.
class Sounds
{
public:
    enum class Sound {
        /// Something was saved.
        Tink,
    };

    virtual ~Sounds() = default;

    /// Starts the sound and returns at once. Does nothing if the desktop has no such sound or its sounds are
    /// off.
    virtual void play(Sound sound) = 0;
};

} // namespace vesk
