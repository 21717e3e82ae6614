// SPDX-License-Identifier: MIT
#pragma once

#include "input/hotkeytable.h"

#include <QStringList>

#include <array>
#include <optional>

namespace vesk {

/// The combinations as the user wants them.
struct KeySettings
{
    /// In the order of `hotkeytable::kAll`; none for one that is switched off.
    std::array<std::optional<KeyCombination>, hotkeytable::kAll.size()> combinations;
    /// What is wrong with the user's lines, a sentence or two each.
    QStringList problems;
};

/// Reads the text of the user's file: on each line a command, "=" and its combination, or nothing or
/// "none" to switch it off; "#" or ";" begins a remark. A line that is wrong leaves its command as it is
/// by default. `keyboard` tells where the user's letters are; null for an ANSI keyboard.
[[nodiscard]] KeySettings readKeySettings(const QString &text, const HotKeys *keyboard);

} // namespace vesk
