// SPDX-License-Identifier: MIT
#pragma once

#include "platform/hotkeys.h"

#include <QString>

#include <optional>

/// The names of keys and combinations that the user writes and reads. `keyboard` says what is printed on the
/// user's keys; if it is null or cannot tell, an ANSI keyboard is assumed.
namespace vesk::keynames {

/// Returns the key with this name, such as "Space", or with this single character. Nullopt if there is none.
[[nodiscard]] std::optional<KeyPosition> findKey(QStringView name, const HotKeys *keyboard);
/// Returns the name of a key; empty if it has neither a character nor a name.
[[nodiscard]] QString nameOf(KeyPosition key, const HotKeys *keyboard);

/// Returns the combination as written in the user's file, such as "Super+Alt+N". Shift tapped twice is
/// "Shift Shift".
[[nodiscard]] QString written(KeyCombination combination, const HotKeys *keyboard);
/// Returns the combination key by key as Vesk's texts show it: glyphs, and the letters printed on the keys.
[[nodiscard]] QStringList glyphs(KeyCombination combination, const HotKeys *keyboard);

} // namespace vesk::keynames
