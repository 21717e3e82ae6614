// SPDX-License-Identifier: MIT
#pragma once

namespace vesk {

/// Keeps this process's memory, in which all notes are, out of what the system may write or hand to another
/// program after a crash. To be called before anything is read.
void forbidCoreDumps();

} // namespace vesk
