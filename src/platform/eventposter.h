// SPDX-License-Identifier: MIT
#pragma once

#include <QCoroTask>

#include <functional>

namespace vesk {

/// Sends key presses to the frontmost application as if the user had made them.
class EventPoster
{
public:
    enum class Command {
        Copy,
        Paste,
    };

    virtual ~EventPoster() = default;

    /// Posts the key combination of `command`. Waits first until the key that started Vesk's own
    /// command is up, and leaves no modifier pressed. False, with nothing posted, if the frontmost
    /// application would take the keys for something else (a terminal takes Copy for an
    /// interrupt) or does not answer, if the key stays down for 700 ms, if `isWanted`, asked right
    /// before the keys go out, says no, or if the platform cannot post.
    virtual QCoro::Task<bool> post(Command command, std::function<bool()> isWanted) = 0;
};

} // namespace vesk
