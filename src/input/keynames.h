// SPDX-License-Identifier: MIT
#pragma once

#include "platform/hotkeys.h"

#include <QString>

#include <optional>

/// How keys and combinations are called where the user writes and reads them. `keyboard` tells what is
/// printed on the user's keys; where it is null or cannot tell, the keyboard is an ANSI one.
namespace vesk::keynames {

/// The key with this name, as "Space", or with this one character. None if there is no such key.
[[nodiscard]] std::optional<KeyPosition> findKey(QStringView name, const HotKeys *keyboard);
/// Empty for a key that has neither a character nor a name.
[[nodiscard]] QString nameOf(KeyPosition key, const HotKeys *keyboard);

/// As it is written in a file, as "Super+Alt+N"; Shift tapped twice is "Shift Shift".
[[nodiscard]] QString written(KeyCombination combination, const HotKeys *keyboard);
/// Key by key in the notation of Vesk's texts: glyphs and the letters that are printed on the keys.
[[nodiscard]] QStringList glyphs(KeyCombination combination, const HotKeys *keyboard);

} // namespace vesk::keynames
