// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

namespace vesk {

/// What went wrong when the store's file was opened or written, by its name.
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
        /// The folder of the file, or its file system, is not there.
        Unreachable,
        /// One record cannot be written; the others can.
        RecordRefused,
        Other,
    };

    Kind kind = Kind::Other;
    /// What the system calls it, for a user who asks others about it.
    QString detail = {};

    /// From SQLite's extended result code, its message and the `errno` that it met, 0 if it does not
    /// know. Where these leave open what is wrong, a trial file is written in `folder`.
    [[nodiscard]] static StoreTrouble of(int code, const QString &message, int systemError,
                                         const QString &folder);
    /// From what integrity_check has reported, which is not "ok". That it could not read is not damage.
    [[nodiscard]] static StoreTrouble ofCheck(const QString &report, const QString &folder);

    friend bool operator==(const StoreTrouble &, const StoreTrouble &) = default;
};

} // namespace vesk
