// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

/// The stores in which Vesk kept its notes after another file was put in its store's place:
/// `Notes.rescued.store`, `Notes.rescued.2.store` and so on, beside the store. Internal to this layer.
namespace vesk::rescuedstores {

/// The path for the next rescued store.
[[nodiscard]] QString nextPath(const QString &store);

/// The path of the latest rescued store; empty if there is none.
[[nodiscard]] QString latest(const QString &store);

} // namespace vesk::rescuedstores
