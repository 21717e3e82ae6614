// SPDX-License-Identifier: MIT
#pragma once

#include "notes/note.h"

#include <vector>

namespace vesk {

/// The notes of a store's file in no order, or why there are none. A file that does not exist holds no
/// notes, which is no error.
struct NotesReading
{
    std::vector<Note::Fields> notes;
    QString error;
};

/// Reads what is saved, for a program beside the one that has the store open: neither disturbs the
/// other. Changes nothing in the file, and makes none.
[[nodiscard]] NotesReading readNotes(const QString &path);

} // namespace vesk
