// SPDX-License-Identifier: MIT
#pragma once

#include "platform/clock.h"

#include <QString>

#include <functional>
#include <optional>

namespace vesk {

/// The copies of the store that lie beside it for the day on which the store is damaged or gone:
/// `Notes.copy` and the generations before it, each an ordinary store in one file.
class StoreCopy final
{
public:
    /// How an attempt to make one ended. Also the exit status of the process that makes it.
    enum class Outcome {
        Made = 0,
        Failed = 1,
        /// The store has no records, or is not there.
        NothingToCopy = 3,
        DiskTooFull = 4,
        StoreDamaged = 5,
        NotAllowed = 6,
    };
    /// The bytes that may still be written in a folder; nullopt if nobody knows.
    using FreeSpace = std::function<std::optional<qint64>(const QString &folder)>;

    /// `store` is the path of the store that is copied.
    explicit StoreCopy(const QString &store);
    StoreCopy(const QString &store, FreeSpace freeSpace);

    /// The path of the newest copy, whether or not it is there.
    [[nodiscard]] const QString &path() const { return m_path; }
    /// When the newest copy was made; nullopt if there is none.
    [[nodiscard]] std::optional<Date> madeAt() const;

    /// Whether the newest copy is a day old, and the store is newer and has been left alone for a while.
    [[nodiscard]] bool isDue(Date now) const;
    /// Whether so long has passed without a copy that the user has to know. `now` is when an attempt has
    /// failed.
    [[nodiscard]] bool isOverdue(Date now) const;

    /// Adds a copy of the store as it is. `Made` once it is on the disk, complete. Otherwise the earlier
    /// copies are as they were. Reads and writes all of the store, which takes its time.
    [[nodiscard]] Outcome make() const;

private:
    /// Makes `unfinished` a sound copy. Throws what SQLiteCpp throws.
    [[nodiscard]] Outcome copyTo(const QString &unfinished, qint64 &records) const;

    QString m_store;
    QString m_path;
    FreeSpace m_freeSpace;
};

} // namespace vesk
