// SPDX-License-Identifier: MIT
#pragma once

namespace vesk {

class MemoryClock;
class NotesStore;

namespace samplenotes {

/// Fills a store with notes of the last days, up to the clock's time, which ends where it was.
void fill(NotesStore &store, MemoryClock &clock, int count);
/// Adds prompts of every kind.
void fillPrompts(NotesStore &store, const MemoryClock &clock);

} // namespace samplenotes
} // namespace vesk
