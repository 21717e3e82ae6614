// SPDX-License-Identifier: MIT
#include "app/saveatexit.h"

#include "notes/notesstore.h"

#include <cstdlib>

namespace vesk {

namespace {

NotesStore *g_store = nullptr;

void saveNow()
{
    // Nobody is left to be told of a failure, which is on standard error.
    if (g_store)
        static_cast<void>(g_store->save());
}

} // namespace

SaveAtExit::SaveAtExit(NotesStore &store)
{
    g_store = &store;
    // Without it, what was typed in the last half second would be lost, as in a power cut.
    static_cast<void>(std::atexit(saveNow));
}

SaveAtExit::~SaveAtExit()
{
    g_store = nullptr;
}

} // namespace vesk
