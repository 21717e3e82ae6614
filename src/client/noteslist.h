// SPDX-License-Identifier: MIT
#pragma once

#include "notes/note.h"

#include <QByteArray>

#include <vector>

namespace vesk {

/// The notes newest first, one a line: the local date and time of the last change, a tab, the title.
[[nodiscard]] QByteArray notesAsLines(std::vector<Note::Fields> notes);

/// The notes newest first, as a JSON array of objects. Dates are UTC; what a note has not is left out.
[[nodiscard]] QByteArray notesAsJson(std::vector<Note::Fields> notes);

} // namespace vesk
