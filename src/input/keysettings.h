// SPDX-License-Identifier: MIT
#pragma once

#include "commands/command.h"

#include <QStringList>

#include <array>
#include <optional>

namespace vesk {

/// The combinations that the user has chosen.
struct KeySettings
{
    /// In the order of `commandsWithKeys()`; nullopt for one that is switched off.
    std::array<std::optional<KeyCombination>, kCommandsWithKeys> combinations;
    /// In the same order: the identifiers of applications that keep the combination for themselves while they
    /// are in front.
    std::array<QStringList, kCommandsWithKeys> exceptions;
    /// The problems in the user's lines, one or two sentences each.
    QStringList problems;

    [[nodiscard]] const std::optional<KeyCombination> &of(Command command) const
    {
        return combinations.at(static_cast<size_t>(command));
    }
};

/// Parses the user's file. Each line has a command, "=" and its combination, or nothing or "none" to switch
/// the command off; lines that start with "#" or ";" are comments. A command whose line is wrong keeps its
/// default. `keyboard` says where the user's letters are; null stands for an ANSI keyboard.
[[nodiscard]] KeySettings readKeySettings(const QString &text, const HotKeys *keyboard);

} // namespace vesk
