// SPDX-License-Identifier: MIT
#pragma once

#include "notes/note.h"
#include "notes/storeerror.h"

#include <vector>

namespace vesk {

/// The notes of a store's file in no particular order, or why they cannot be read. A file that never existed
/// holds no notes, which is not an error; a file that is missing although copies of it exist is one.
struct NotesReading
{
    std::vector<Note::Fields> notes = {};
    StoreError error = {};
};

/// Reads the saved notes while another program may have the store open; neither disturbs the other. Does not
/// change the file and needs no disk space.
[[nodiscard]] NotesReading readNotes(const QString &path);

} // namespace vesk
