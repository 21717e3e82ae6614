// SPDX-License-Identifier: MIT
#pragma once

#include "platform/clock.h"

#include <QString>

#include <functional>
#include <optional>

namespace vesk {

/// The copies of the store that lie beside it in case the store is damaged or lost: `Notes.copy` and the
/// generations before it, each an ordinary store in a single file.
class StoreCopy final
{
public:
    /// The result of an attempt to make a copy. Also the exit status of the process that makes it.
    enum class Outcome {
        Made = 0,
        Failed = 1,
        /// The store has no records or does not exist.
        NothingToCopy = 3,
        DiskTooFull = 4,
        StoreDamaged = 5,
        NotAllowed = 6,
    };
    /// How many bytes can still be written in a folder; nullopt if unknown.
    using FreeSpace = std::function<std::optional<qint64>(const QString &folder)>;

    /// `store` is the path of the store to copy.
    explicit StoreCopy(const QString &store);
    StoreCopy(const QString &store, FreeSpace freeSpace);

    /// The path of the newest copy, whether or not it exists.
    [[nodiscard]] const QString &path() const { return m_path; }
    /// When the newest copy was made; nullopt if there is none.
    [[nodiscard]] std::optional<Date> madeAt() const;

    /// Whether the newest copy is at least a day old, and the store is newer and has been left alone for a
    /// while.
    [[nodiscard]] bool isDue(Date now) const;
    /// Whether it has been so long since the last copy that the user must be told. `now` is when an attempt
    /// failed.
    [[nodiscard]] bool isOverdue(Date now) const;

    /// Adds a copy of the store's current state. Returns `Made` once the copy is complete and on the disk;
    /// otherwise the earlier copies are unchanged. Reads and writes the whole store, which can take a while.
    [[nodiscard]] Outcome make() const;

private:
    /// Turns `unfinished` into a sound copy. Throws whatever SQLiteCpp throws.
    [[nodiscard]] Outcome copyTo(const QString &unfinished, qint64 &records) const;

    QString m_store;
    QString m_path;
    FreeSpace m_freeSpace;
};

} // namespace vesk
