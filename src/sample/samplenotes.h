// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

namespace vesk {

class MemoryClock;
class NotesStore;

namespace samplenotes {

/// Fills a store with notes of the last few days up to the clock's time, which is unchanged afterwards.
/// `kind` selects their texts: "right-to-left", "long-words", "long", "scripts", or everyday ones.
void fill(NotesStore &store, MemoryClock &clock, int count, const QString &kind);
/// Adds prompts of every kind.
void fillPrompts(NotesStore &store, const MemoryClock &clock);

} // namespace samplenotes
} // namespace vesk
