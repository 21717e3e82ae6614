// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <QtGlobal>

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
        /// The folder cannot be looked at, or its file system is no longer there.
        Unreachable,
    };

    /// `path` must name the file, and all links in it must have been followed.
    explicit StorePlace(const QString &path);
    ~StorePlace();
    Q_DISABLE_COPY_MOVE(StorePlace)

    [[nodiscard]] Finding look() const;
    /// Where a file that was moved away is; empty if the system does not say.
    [[nodiscard]] QString currentPath() const;

private:
    QString m_path;
    // Opened for its identity alone: closing it leaves SQLite's locks alone. -1 if that failed.
    int m_descriptor;
    dev_t m_device = 0;
    ino_t m_inode = 0;
};

} // namespace vesk
