// SPDX-License-Identifier: MIT
#pragma once

namespace vesk {

/// Keeps this process's memory, which contains all notes, out of core dumps that the system may write or hand
/// to another program after a crash. Must be called before any note is read. Programs that Vesk forks get the
/// original settings back: their dumps are their own business.
void forbidCoreDumps();

/// Restores the settings from before `forbidCoreDumps`, for a program that this process is about to exec.
/// Does nothing if `forbidCoreDumps` was not called.
void restoreCoreDumps();

} // namespace vesk
