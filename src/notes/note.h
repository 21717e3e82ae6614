// SPDX-License-Identifier: MIT
#pragma once

#include "notes/capturesource.h"
#include "notes/compacttext.h"
#include "notes/markup.h"
#include "notes/record.h"
#include "platform/clock.h"

#include <QString>

#include <optional>

namespace vesk {

/// One note. Created by its writer, then owned by the store that it is inserted into. Two notes are equal
/// exactly if their identities are.
class Note final
{
public:
    /// Every stored field, to recreate a note exactly.
    struct Fields
    {
        RecordId id;
        CompactText text;
        Date createdAt{};
        Date updatedAt{};
        bool isPinned = false;
        std::optional<QString> sourceApp;
        std::optional<QString> sourceBundleID;
        std::optional<QString> sourceTitle;
        std::optional<QString> sourceURL;
    };

    /// A new note, created now, with a new identity. Keeps the text unchanged except for lone surrogates,
    /// which become U+FFFD here and in every text that is set later.
    Note(const Clock &clock, const QString &text, const std::optional<CaptureSource> &source = std::nullopt);
    /// A note as it was stored.
    Note(const Clock &clock, Fields fields);
    Note(const Note &) = delete;
    Note &operator=(const Note &) = delete;

    /// The text as the user wrote it. Sets `updatedAt` to now even if the text is unchanged.
    void setText(const QString &text);
    /// Does not change `updatedAt`.
    void setPinned(bool isPinned);
    /// Toggles the checkbox of a line without changing `updatedAt`. Does nothing if the line has no checkbox
    /// or does not exist.
    void toggleItem(qsizetype line);
    /// Adds every line of `text` as a checkbox after the last one; sets `updatedAt` to now.
    void addChecklistItems(const QString &text);
    /// Adds `text` at the end; sets `updatedAt` to now.
    void append(const QString &text);

    [[nodiscard]] const RecordId &id() const { return m_fields.id; }
    /// Converted on every call.
    [[nodiscard]] QString text() const { return m_fields.text.toString(); }
    [[nodiscard]] const QByteArray &utf8Text() const { return m_fields.text.utf8(); }
    [[nodiscard]] Date createdAt() const { return m_fields.createdAt; }
    [[nodiscard]] Date updatedAt() const { return m_fields.updatedAt; }
    [[nodiscard]] bool isPinned() const { return m_fields.isPinned; }
    [[nodiscard]] const std::optional<QString> &sourceApp() const { return m_fields.sourceApp; }
    [[nodiscard]] const std::optional<QString> &sourceBundleID() const { return m_fields.sourceBundleID; }
    [[nodiscard]] const std::optional<QString> &sourceTitle() const { return m_fields.sourceTitle; }
    [[nodiscard]] const std::optional<QString> &sourceURL() const { return m_fields.sourceURL; }

    // Computed from the text on every call.
    [[nodiscard]] QString title() const { return markup::title(text()); }
    [[nodiscard]] QString preview() const { return markup::preview(text()); }
    [[nodiscard]] QList<ChecklistItem> checklistItems() const { return markup::checklistItems(text()); }
    [[nodiscard]] std::optional<Progress> progress() const { return markup::progress(text()); }
    [[nodiscard]] bool isBlank() const { return markup::isBlank(text()); }

    /// Receives this note's changes; null until the note is inserted. Set by the store.
    void setObserver(RecordObserver *observer) { m_observer = observer; }

    friend bool operator==(const Note &a, const Note &b) { return a.id() == b.id(); }

private:
    void changed();

    const Clock &m_clock;
    Fields m_fields;
    RecordObserver *m_observer = nullptr;
};

[[nodiscard]] inline size_t qHash(const Note &note, size_t seed = 0)
{
    return qHash(note.id(), seed);
}

} // namespace vesk
