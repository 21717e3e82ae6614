// SPDX-License-Identifier: MIT
#pragma once

#include "notes/note.h"
#include "notes/storeerror.h"

#include <vector>

namespace vesk {

/// The notes of a store's file in no order, or why there are none. A file that was never there holds no
/// notes, which is not an error; one that is missing although there are copies of it is.
struct NotesReading
{
    std::vector<Note::Fields> notes = {};
    StoreError error = {};
};

/// Reads what is saved, for a program beside the one that has the store open: neither disturbs the
/// other. Changes nothing in the file, and needs no space on the disk.
[[nodiscard]] NotesReading readNotes(const QString &path);

} // namespace vesk
