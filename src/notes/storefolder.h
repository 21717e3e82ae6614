// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

#include <optional>

/// What the file system says about the folder that a store is in. Internal to this layer.
namespace vesk::storefolder {

/// The bytes that the user may still write there; nullopt if the file system does not say.
[[nodiscard]] std::optional<qint64> freeBytes(const QString &folder);

/// Writes a small file without a name, and returns the `errno` of the step that failed; 0 if none did.
[[nodiscard]] int tryWriting(const QString &folder);

/// Whether other machines may have the same files open. SQLite's shared memory does not reach them.
[[nodiscard]] bool isOnNetwork(const QString &folder);

} // namespace vesk::storefolder
