// SPDX-License-Identifier: MIT
#pragma once

#include "notes/notesstore.h"

/// How notes are added to the store, wherever they come from.
namespace vesk::noterules {

/// The longest text that can be added at once, in bytes of UTF-8.
inline constexpr qsizetype kMaximumBytes = qsizetype{16} * 1024 * 1024;

/// Whether the text has more than `kMaximumBytes`.
[[nodiscard]] bool isTooLong(const QString &text);

/// Where the selected text goes.
enum class Target {
    NewNote,
    /// The most recently changed note, or a new one if there is none.
    LastNote,
    /// A new note with a checkbox for each line.
    NewChecklist,
    /// The most recently changed checklist, as checkboxes; or a new one if there is none.
    LastChecklist,
};

enum class Outcome {
    /// A new note was added.
    Added,
    /// The text was appended to a note.
    Appended,
    /// The newest note already has exactly this text.
    AlreadyThere,
    /// The text was only white space. Nothing has changed.
    Empty,
    /// Nothing has changed.
    TooLong,
};

struct Kept
{
    Outcome outcome;
    /// Why the store is not written yet; it keeps trying. Empty if it is written, or nothing has changed.
    QString problem = {};
    /// The previous title of the note that was appended to. Empty if it had none, or nothing was appended.
    QString appendedTo = {};
};

/// Adds a note with the text, trimmed of white space. Saves.
[[nodiscard]] Kept add(NotesStore &store, const Clock &clock, const QString &text);

/// The same for a typed text, in which signs such as "[ ]" become checkboxes and bullets.
[[nodiscard]] Kept addTyped(NotesStore &store, const Clock &clock, const QString &text);

/// Keeps a selection, which must already be trimmed. Saves.
[[nodiscard]] Kept keepSelection(NotesStore &store, const Clock &clock, const QString &text,
                                 const std::optional<CaptureSource> &source, Target target);

} // namespace vesk::noterules
