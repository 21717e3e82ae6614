// SPDX-License-Identifier: MIT
#pragma once

#include <functional>

namespace vesk {

/// Runs `body` in a process of its own, below a guard process that ends every process started under
/// it, and returns the body's exit code.
///
/// Programs that the session bus activates are nobody's children that we know of, so ending our own
/// children is not enough. The guard collects such orphans, and it also wakes when the process that
/// the test runner knows is killed, so that a test that ran out of time leaves nothing behind.
[[nodiscard]] int runGuarded(const std::function<int()> &body);

/// Makes the calling process the one that orphans below it are handed to.
void adoptOrphans();

/// Kills every process below the calling one and waits until none is left, for two seconds at most.
void endDescendants();

} // namespace vesk
