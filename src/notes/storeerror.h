// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

namespace vesk {

/// Why a store cannot be used; empty if it can. Internal to this layer.
struct StoreError
{
    /// One sentence.
    QString text = {};
    /// Whether what is in the file is beyond reach, so that only a copy of it helps.
    bool isDamage = false;

    [[nodiscard]] bool isEmpty() const { return text.isEmpty(); }
};

} // namespace vesk
