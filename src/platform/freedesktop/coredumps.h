// SPDX-License-Identifier: MIT
#pragma once

namespace vesk {

/// Keeps this process's memory, in which all notes are, out of the file that the system may write of a
/// crash. To be called before anything is read.
void forbidCoreDumps();

} // namespace vesk
