// SPDX-License-Identifier: MIT
#pragma once

#include "platform/hotkeys.h"

#include <QLatin1StringView>
#include <QString>
#include <QStringView>

#include <optional>
#include <span>

namespace vesk {

/// What a user can ask of Vesk from outside its windows: by a key, on the command line, on the bus, in a menu
/// or by starting Vesk again.
enum class Command : quint8 {
    // Commands with a key combination come first, in the order in which they are listed to the user.
    Capture,
    CaptureToLastNote,
    Toggle,
    Write,
    CaptureChecklist,
    AddToChecklist,
    SavePrompt,
    // The others.
    QuickNote,
    QuickChecklist,
    Show,
    Quit,
};

/// All that the doors to a command must know about it.
struct CommandRow
{
    Command command;
    /// The words after `vesk`. They also name the command in the user's file of keys. Empty for `Show`, which
    /// needs none.
    QStringView words;
    /// The method of the bus interface org.vesk.Vesk. Empty for `Show`, which has a standard method.
    QLatin1StringView method;
    /// What it does, for lists of commands; untranslated, see `purposeOf()`.
    const char *purpose;
    /// As menus show it; untranslated, see `titleOf()`. Null if it is in no menu.
    const char *title = nullptr;
    /// Unless the user has chosen another one. Nullopt if the command has no key.
    std::optional<KeyCombination> combination = {};
    /// Whether one of Vesk's windows takes the keyboard focus. What is selected in other applications cannot
    /// be read any more after that.
    bool takesFocus = false;
};

/// Stands for two taps of Shift, which cannot be claimed as a combination.
inline constexpr KeyCombination kDoubleShift{.key = KeyPosition::LeftShift, .modifiers = Qt::ShiftModifier};

/// All commands, in the order of the enumeration.
[[nodiscard]] std::span<const CommandRow> commandRows();
/// Those that have a combination by default. The place of a row is the value of its command.
[[nodiscard]] std::span<const CommandRow> commandsWithKeys();
inline constexpr size_t kCommandsWithKeys = static_cast<size_t>(Command::SavePrompt) + 1;

[[nodiscard]] const CommandRow &rowOf(Command command);
/// The command with these words, separated by single spaces. Null if there is none or `words` is empty.
[[nodiscard]] const CommandRow *findCommand(QStringView words);

/// In the user's language.
[[nodiscard]] QString purposeOf(Command command);
/// In the user's language. The command must have a title.
[[nodiscard]] QString titleOf(Command command);
/// The default combination. The command must have one.
[[nodiscard]] KeyCombination combinationOf(Command command);

} // namespace vesk
