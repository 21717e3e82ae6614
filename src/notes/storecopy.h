// SPDX-License-Identifier: MIT
#pragma once

#include "platform/clock.h"

#include <QString>

#include <optional>

namespace vesk {

/// The copy of the store that lies beside it for the day on which the store is damaged: `Notes.copy`, an
/// ordinary store in one file.
class StoreCopy final
{
public:
    /// `store` is the path of the store that is copied.
    explicit StoreCopy(const QString &store);

    [[nodiscard]] const QString &path() const { return m_path; }
    /// None if there is no copy.
    [[nodiscard]] std::optional<Date> madeAt() const;

    /// Whether the copy is a day old, and the store is newer and has been left alone for a while.
    [[nodiscard]] bool isDue(Date now) const;

    /// Replaces the copy by one of the store as it is. True once it is on the disk, complete. False, with
    /// the earlier copy as it was, if the store is damaged or holds nothing, or the disk is too full.
    /// Reads and writes all of the store, which takes its time.
    [[nodiscard]] bool make() const;

    /// For a shell: sets what is left of the store aside and puts the copy in its place.
    [[nodiscard]] QString restoringCommand() const;

private:
    /// Returns whether `unfinished` is a sound copy now. Throws what SQLiteCpp throws.
    [[nodiscard]] bool copyTo(const QString &unfinished) const;

    QString m_store;
    QString m_path;
};

} // namespace vesk
