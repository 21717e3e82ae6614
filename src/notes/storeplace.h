// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <QtGlobal>

#include <optional>
#include <sys/stat.h>
#include <sys/types.h>

namespace vesk {

/// Knows the store's file for what it is, not by its name, while the file is open. Internal to this layer.
class StorePlace final
{
public:
    enum class Finding {
        /// The file is in its place.
        There,
        /// It no longer has a name anywhere.
        Deleted,
        /// It has another name now.
        MovedAway,
        /// Another file has its name.
        Replaced,
        /// Somebody else has written into it since `remember`, as by copying another file over it.
        Overwritten,
        /// The folder cannot be looked at, or its file system is no longer there.
        Unreachable,
    };

    /// `path` must name the file, and all links in it must have been followed.
    explicit StorePlace(const QString &path);
    ~StorePlace();
    Q_DISABLE_COPY_MOVE(StorePlace)

    /// To be called when the file is as this program has left it, if nobody else may write into it.
    void remember();

    [[nodiscard]] Finding look() const;
    /// Where a file that was moved away is; empty if the system does not say.
    [[nodiscard]] QString currentPath() const;

private:
    QString m_path;
    // Opened for its identity alone: closing it leaves SQLite's locks alone. -1 if that failed.
    int m_descriptor;
    dev_t m_device = 0;
    ino_t m_inode = 0;
    struct Stamp
    {
        qint64 size;
        qint64 seconds;
        qint64 nanoseconds;

        [[nodiscard]] static Stamp of(const struct stat &status);
        friend bool operator==(const Stamp &, const Stamp &) = default;
    };
    std::optional<Stamp> m_stamp;
};

} // namespace vesk
