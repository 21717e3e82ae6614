// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

namespace vesk {

/// What is in a copy of the store, read without changing anything. Internal to this layer.
struct CopyContents
{
    /// Whether it is a store of this version or an older one, and undamaged.
    bool isSound = false;
    /// Notes and prompts; 0 if it is not sound.
    qint64 records = 0;
    /// False if it could not be read for another reason than damage, such as missing rights. It may be
    /// sound then.
    bool isReadable = true;

    [[nodiscard]] static CopyContents read(const QString &path);
};

} // namespace vesk
