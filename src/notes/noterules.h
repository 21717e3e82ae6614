// SPDX-License-Identifier: MIT
#pragma once

#include "notes/notesstore.h"

/// How notes come into the store, whoever brings them.
namespace vesk::noterules {

/// The longest text that is added at once, in bytes of UTF-8.
inline constexpr qsizetype kMaximumBytes = qsizetype{16} * 1024 * 1024;

/// Whether the text has more than `kMaximumBytes`.
[[nodiscard]] bool isTooLong(const QString &text);

/// Where the selected text goes.
enum class Target {
    NewNote,
    /// The note changed last, or a new one if there is none.
    LastNote,
    /// A new note with a checkbox for each line.
    NewChecklist,
    /// The checklist changed last, as checkboxes; or a new one if there is none.
    LastChecklist,
};

enum class Outcome {
    /// There is a new note.
    Added,
    /// A note has become longer.
    Appended,
    /// The newest note already has exactly this text.
    AlreadyThere,
    /// There was nothing but white space. Nothing has changed.
    Empty,
    /// Nothing has changed.
    TooLong,
};

struct Kept
{
    Outcome outcome;
    /// Why the store is not written yet; it goes on trying. Empty if it is written, or nothing has changed.
    QString problem = {};
    /// The title that the longer note had before. Empty if it had none, or no note has become longer.
    QString appendedTo = {};
};

/// Adds a note with the text, without white space at its ends. Saves.
[[nodiscard]] Kept add(NotesStore &store, const Clock &clock, const QString &text);

/// The same for a text that was typed with signs such as "[ ]", which become checkboxes and bullets.
[[nodiscard]] Kept addTyped(NotesStore &store, const Clock &clock, const QString &text);

/// Keeps a selection, which has no white space at its ends. Saves.
[[nodiscard]] Kept keepSelection(NotesStore &store, const Clock &clock, const QString &text,
                                 const std::optional<CaptureSource> &source, Target target);

} // namespace vesk::noterules
