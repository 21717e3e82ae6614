// SPDX-License-Identifier: MIT
#pragma once

#include <cstdlib>
#include <memory>

namespace vesk {

struct FreeWithFree
{
    void operator()(void *memory) const { std::free(memory); }
};

/// A reply, event or error of the X server, which comes as memory of malloc's.
template <typename T>
using XReply = std::unique_ptr<T, FreeWithFree>;

/// Whether one of the server's time stamps is at or after another; they wrap around every 49 days.
[[nodiscard]] inline bool isAtOrAfter(unsigned int time, unsigned int other)
{
    return static_cast<int>(time - other) >= 0;
}

} // namespace vesk
