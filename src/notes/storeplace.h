// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <QtGlobal>

#include <optional>
#include <sys/stat.h>
#include <sys/types.h>

namespace vesk {

/// Identifies the store's file by device and inode rather than by name while it is open. Internal to this
/// layer.
class StorePlace final
{
public:
    enum class Finding {
        /// The file is in its place.
        There,
        /// It no longer has a name anywhere.
        Deleted,
        /// It has a different name now.
        MovedAway,
        /// Another file has its name.
        Replaced,
        /// Somebody else has written into it since `remember`, for example by copying another file over it.
        Overwritten,
        /// The folder cannot be read, or its file system is gone.
        Unreachable,
    };

    /// `path` must name the file, with all links already followed.
    explicit StorePlace(const QString &path);
    ~StorePlace();
    Q_DISABLE_COPY_MOVE(StorePlace)

    /// Call this when the file is as this program left it, if nobody else may write into it.
    void remember();

    [[nodiscard]] Finding look() const;
    /// The current path of a file that was moved away; empty if the system does not say.
    [[nodiscard]] QString currentPath() const;

private:
    QString m_path;
    // Used only to identify the file: closing it does not release SQLite's locks. -1 if opening it failed.
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
