// SPDX-License-Identifier: MIT
#pragma once

#include "notes/notesstore.h"
#include "soak/opentext.h"

#include <QMap>
#include <QSet>

#include <functional>

namespace vesk {

/// The expected contents of the store, kept separately: each action declares what it may do, and any other
/// difference is a fault.
class Ledger final
{
public:
    struct Entry
    {
        bool isPrompt = false;
        QString text;
        /// Pinned, or done.
        bool isMarked = false;
        Date createdAt{};
        /// For a prompt, the date of its creation.
        Date updatedAt{};
        /// Where it was captured; empty if it was written in Vesk.
        QStringList source = {};
        bool operator==(const Entry &) const = default;
    };
    using Entries = QMap<RecordId, Entry>;

    /// The effect of an action on the store.
    struct Effect
    {
        /// Must be there afterwards, exactly once, as a new record.
        std::optional<QString> added = {};
        /// Whether `added` is certain to happen.
        bool isAddedForSure = true;
        bool isPrompt = false;
        /// Whether `added` comes from another application.
        bool isCaptured = false;
        /// Must be gone.
        std::optional<RecordId> removed = {};
        /// Must have a different text that satisfies this.
        std::optional<RecordId> changed = {};
        std::function<bool(const QString &before, const QString &after)> isRight = {};
        /// Any one of these may be removed, or have its mark or one of its checkboxes toggled.
        QSet<RecordId> mayTouch = {};
        /// Whether all done prompts may be removed together.
        bool mayClearDone = false;
    };

    [[nodiscard]] static Entries read(NotesStore &store);

    /// Compares with the store after an action, and takes over its state. Returns what is wrong; empty if
    /// nothing is. A note that is or was open may have a different text if `openText` can explain it.
    [[nodiscard]] QString follow(NotesStore &store, const Effect &effect, const QSet<RecordId> &openNotes,
                                 const OpenText &openText);

    [[nodiscard]] const Entries &entries() const { return m_entries; }
    [[nodiscard]] bool isOpenTextChanged() const { return m_isOpenTextChanged; }

private:
    [[nodiscard]] QString findAdded(const Entries &now, const Effect &effect) const;

    Entries m_entries;
    bool m_isOpenTextChanged = false;
};

} // namespace vesk
