// SPDX-License-Identifier: MIT
#pragma once

namespace vesk {

/// Gives this process mounts of its own, in which it may mount a tmpfs. To be called before there is a second
/// thread. False where the system does not allow it.
[[nodiscard]] bool enterPrivateMounts();

/// Mounts a tmpfs of `bytes` at `folder`; false with `errno` set if that fails.
[[nodiscard]] bool mountTmpfs(const char *folder, unsigned bytes);

} // namespace vesk
