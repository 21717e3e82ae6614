// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

/// The stores beside a store in which Vesk has kept its notes since another file was put in the store's
/// place: `Notes.rescued.store`, `Notes.rescued.2.store` and so on. Internal to this layer.
namespace vesk::rescuedstores {

/// The path for the next one.
[[nodiscard]] QString nextPath(const QString &store);

/// The path of the one made last; empty if there is none.
[[nodiscard]] QString latest(const QString &store);

} // namespace vesk::rescuedstores
