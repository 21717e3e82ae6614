// SPDX-License-Identifier: MIT
#pragma once

#include "notes/notesstore.h"
#include "soak/opentext.h"

#include <QMap>
#include <QSet>

#include <functional>

namespace vesk {

/// What has to be in the store, kept beside it: each action says what it may do, and whatever else differs
/// is a fault.
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
        /// Of a prompt, that of its creation.
        Date updatedAt{};
        /// Where it was captured; empty if it was written in Vesk.
        QStringList source = {};
        bool operator==(const Entry &) const = default;
    };
    using Entries = QMap<RecordId, Entry>;

    /// What an action does to the store.
    struct Effect
    {
        /// Has to be there afterwards, once, and new.
        std::optional<QString> added = {};
        /// `added` may as well not have happened.
        bool isAddedForSure = true;
        bool isPrompt = false;
        /// Whether `added` comes from another application.
        bool isCaptured = false;
        /// Has to be gone.
        std::optional<RecordId> removed = {};
        /// Has to have another text, of which this is true.
        std::optional<RecordId> changed = {};
        std::function<bool(const QString &before, const QString &after)> isRight = {};
        /// One of these may be removed, or one mark or one box of it turn.
        QSet<RecordId> mayTouch = {};
        /// All prompts that are done may go, together.
        bool mayClearDone = false;
    };

    [[nodiscard]] static Entries read(NotesStore &store);

    /// Compares with the store, which an action has changed, and takes its state over. Returns what is
    /// wrong; empty if nothing is. A note that was open or is may have another text, if `openText` can
    /// explain it.
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
