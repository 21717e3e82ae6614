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

/// One note. Made by its writer, then owned by the store that it is inserted into; equal to another
/// exactly if the identity is the same.
class Note final
{
public:
    /// Every stored field, for making a note again as it was.
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

    /// A new note, made now, with an identity of its own. Takes the text as it is, but for lone
    /// surrogates, which become U+FFFD here and in every other text that it is given.
    Note(const Clock &clock, const QString &text, const std::optional<CaptureSource> &source = std::nullopt);
    /// A note as it was stored.
    Note(const Clock &clock, Fields fields);
    Note(const Note &) = delete;
    Note &operator=(const Note &) = delete;

    /// What the user has written. Sets `updatedAt` to now, also if the text is the same.
    void setText(const QString &text);
    /// Leaves `updatedAt` alone.
    void setPinned(bool isPinned);
    /// Ticks or unticks the checkbox of a line; leaves `updatedAt` alone. Does nothing if the line
    /// has no box or does not exist.
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

    /// The one who hears of changes; none before the note is inserted. Set by the store.
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
