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

/// Makes the calling process the new parent of orphans among its descendants.
void adoptOrphans();

/// Kills all descendants of the calling process and waits for at most two seconds until they are gone.
void endDescendants();

} // namespace vesk
