// SPDX-License-Identifier: MIT
#include "app/saveatexit.h"

#include "notes/notesstore.h"

#include <cstdlib>

namespace vesk {

namespace {

NotesStore *g_store = nullptr;

void saveNow()
{
    // Nobody is left to report a failure to; it is on standard error.
    if (g_store)
        static_cast<void>(g_store->save());
}

} // namespace

SaveAtExit::SaveAtExit(NotesStore &store)
{
    g_store = &store;
    // Otherwise the last half second of typing would be lost, as in a power failure.
    static_cast<void>(std::atexit(saveNow));
}

SaveAtExit::~SaveAtExit()
{
    g_store = nullptr;
}

} // namespace vesk
