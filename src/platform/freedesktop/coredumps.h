// SPDX-License-Identifier: MIT
#pragma once

namespace vesk {

/// Keeps this process's memory, in which all notes are, out of what the system may write or hand to another
/// program after a crash. To be called before anything is read. The programs that Vesk forks off get back
/// what this process was started with: their dumps are their own affair.
void forbidCoreDumps();

/// Gives this process back what it had before `forbidCoreDumps`, for the program that it is about to become.
/// Does nothing without a `forbidCoreDumps`.
void restoreCoreDumps();

} // namespace vesk
