// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

namespace vesk {

/// The kinds of reasons why a store cannot be opened.
enum class StoreFault {
    None,
    /// SQLite says that the file is corrupt or not a database, or a table is missing: only a copy of the
    /// store helps.
    Damaged,
    /// The file is missing or empty although it existed before.
    Missing,
    /// Another process has the store open.
    HeldElsewhere,
    /// Anything else, such as a full disk or missing permissions. The notes in the file are sound.
    Other,
};

/// Why a store cannot be used; empty if it can.
struct StoreError
{
    /// One sentence.
    QString text = {};
    StoreFault fault = StoreFault::Other;

    [[nodiscard]] bool isEmpty() const { return text.isEmpty(); }
};

} // namespace vesk
