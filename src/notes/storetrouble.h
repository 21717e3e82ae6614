// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

namespace vesk {

/// What went wrong when the store's file was opened or written.
struct StoreTrouble
{
    enum class Kind {
        Damaged,
        NotADatabase,
        InUse,
        DiskFull,
        QuotaUsedUp,
        ReadOnly,
        NotAllowed,
        /// The file is not in its place, and no new one could be put there.
        Lost,
        /// The file's folder, or its file system, does not exist.
        Unreachable,
        /// One record cannot be written; the others can.
        RecordRefused,
        Other,
    };

    Kind kind = Kind::Other;
    /// The system's own term for it, so that the user can ask others about it.
    QString detail = {};

    /// Classifies SQLite's extended result code, its message and the `errno` that it saw (0 if unknown). If
    /// these are not conclusive, tries to write a file in `folder`.
    [[nodiscard]] static StoreTrouble of(int code, const QString &message, int systemError,
                                         const QString &folder);
    /// Classifies a report of integrity_check other than "ok". Being unable to read the file is not damage.
    [[nodiscard]] static StoreTrouble ofCheck(const QString &report, const QString &folder);

    friend bool operator==(const StoreTrouble &, const StoreTrouble &) = default;
};

} // namespace vesk
