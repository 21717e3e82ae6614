// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

namespace vesk {

/// What kind of trouble keeps a store from being opened.
enum class StoreFault {
    None,
    /// SQLite calls the file corrupt or not a database, or a table is missing: only a copy of it helps.
    Damaged,
    /// The file is missing or empty although it was there once.
    Missing,
    /// Another process has the store open.
    HeldElsewhere,
    /// Anything else, such as a full disk or missing rights. The notes in the file are sound.
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
