// SPDX-License-Identifier: MIT
#pragma once

namespace vesk {

/// Gives this process a private mount namespace in which it may mount a tmpfs. Must be called before there is
/// a second thread. Returns false if the system does not allow it.
[[nodiscard]] bool enterPrivateMounts();

/// Mounts a tmpfs of `bytes` at `folder`; returns false, with `errno` set, on failure.
[[nodiscard]] bool mountTmpfs(const char *folder, unsigned bytes);

} // namespace vesk
