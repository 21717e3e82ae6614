// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

namespace vesk {

/// The contents of a copy of the store, read without changing anything. Internal to this layer.
struct CopyContents
{
    /// Whether the copy is an undamaged store of this version or an older one.
    bool isSound = false;
    /// Notes and prompts; 0 if it is not sound.
    qint64 records = 0;
    /// False if it could not be read for a reason other than damage, such as missing permissions. It may
    /// still be sound.
    bool isReadable = true;

    [[nodiscard]] static CopyContents read(const QString &path);
};

} // namespace vesk
