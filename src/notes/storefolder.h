// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

#include <optional>

/// What the file system reports about the store's folder. Internal to this layer.
namespace vesk::storefolder {

/// How many bytes the user can still write there; nullopt if the file system does not say.
[[nodiscard]] std::optional<qint64> freeBytes(const QString &folder);

/// Writes a small nameless file, and returns the `errno` of the step that failed; 0 on success.
[[nodiscard]] int tryWriting(const QString &folder);

/// Whether other machines may have the same files open. SQLite's shared memory does not extend to them.
[[nodiscard]] bool isOnNetwork(const QString &folder);

} // namespace vesk::storefolder
