// SPDX-License-Identifier: MIT
#pragma once

#include "notes/note.h"

#include <QByteArray>

#include <vector>

namespace vesk {

/// Formats one line per note, newest first: the local date and time of the last change, a tab, the title.
[[nodiscard]] QByteArray notesAsLines(std::vector<Note::Fields> notes);

/// Formats the notes, newest first, as a JSON array of objects. Dates are UTC; missing values are left out.
[[nodiscard]] QByteArray notesAsJson(std::vector<Note::Fields> notes);

} // namespace vesk
