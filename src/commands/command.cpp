// SPDX-License-Identifier: MIT
#include "commands/command.h"

#include <QCoreApplication>

#include <algorithm>
#include <array>

using namespace Qt::StringLiterals;

namespace vesk {

namespace {

constexpr Qt::KeyboardModifiers kBase = Qt::MetaModifier | Qt::AltModifier;

constexpr std::array kRows{
    CommandRow{.command = Command::Capture,
               .words = u"capture",
               .method = "Capture"_L1,
               .purpose = QT_TRANSLATE_NOOP(
                   "vesk::Command", "save the selected text; with nothing selected, write a quick note"),
               .combination = KeyCombination{.key = KeyPosition::N, .modifiers = kBase}},
    CommandRow{.command = Command::CaptureToLastNote,
               .words = u"capture --append",
               .method = "CaptureToLastNote"_L1,
               .purpose =
                   QT_TRANSLATE_NOOP("vesk::Command", "add the selected text to the note changed last"),
               .combination = KeyCombination{.key = KeyPosition::N, .modifiers = kBase | Qt::ShiftModifier}},
    CommandRow{.command = Command::Toggle,
               .words = u"toggle",
               .method = "Toggle"_L1,
               .purpose = QT_TRANSLATE_NOOP("vesk::Command", "open or hide Vesk"),
               .combination = KeyCombination{.key = KeyPosition::T, .modifiers = kBase},
               .takesFocus = true},
    CommandRow{.command = Command::Write,
               .words = u"write",
               .method = "Write"_L1,
               .purpose = QT_TRANSLATE_NOOP("vesk::Command", "open Vesk to write a new note"),
               .title = QT_TRANSLATE_NOOP("vesk::Command", "New Note"),
               .combination = KeyCombination{.key = KeyPosition::N, .modifiers = kBase | Qt::ControlModifier},
               .takesFocus = true},
    CommandRow{.command = Command::CaptureChecklist,
               .words = u"capture --checklist",
               .method = "CaptureChecklist"_L1,
               .purpose =
                   QT_TRANSLATE_NOOP("vesk::Command", "make a checklist of the selected lines, or write one"),
               .combination = KeyCombination{.key = KeyPosition::C, .modifiers = kBase}},
    CommandRow{.command = Command::AddToChecklist,
               .words = u"add-to-checklist",
               .method = "AddToChecklist"_L1,
               .purpose =
                   QT_TRANSLATE_NOOP("vesk::Command", "add the selected lines to the checklist changed last"),
               .combination = KeyCombination{.key = KeyPosition::C, .modifiers = kBase | Qt::ShiftModifier}},
    CommandRow{.command = Command::SavePrompt,
               .words = u"save-prompt",
               .method = "SavePrompt"_L1,
               .purpose = QT_TRANSLATE_NOOP("vesk::Command", "save the selected text as a prompt"),
               .combination = kDoubleShift},
    CommandRow{.command = Command::QuickNote,
               .words = u"quick-note",
               .method = "QuickNote"_L1,
               .purpose = QT_TRANSLATE_NOOP("vesk::Command", "open the box for a quick note"),
               .title = QT_TRANSLATE_NOOP("vesk::Command", "Quick Note\u2026"),
               .takesFocus = true},
    CommandRow{.command = Command::QuickChecklist,
               .words = u"quick-note --checklist",
               .method = "QuickChecklist"_L1,
               .purpose = QT_TRANSLATE_NOOP("vesk::Command", "open the box for a checklist"),
               .title = QT_TRANSLATE_NOOP("vesk::Command", "Quick Checklist\u2026"),
               .takesFocus = true},
    CommandRow{.command = Command::Show,
               .words = {},
               .method = {},
               .purpose = QT_TRANSLATE_NOOP("vesk::Command", "open Vesk"),
               .title = QT_TRANSLATE_NOOP("vesk::Command", "Open Vesk"),
               .takesFocus = true},
    CommandRow{.command = Command::Quit,
               .words = u"quit",
               .method = "Quit"_L1,
               .purpose = QT_TRANSLATE_NOOP("vesk::Command", "quit Vesk"),
               .title = QT_TRANSLATE_NOOP("vesk::Command", "Quit")},
};

consteval bool areRowsInOrder()
{
    for (size_t i = 0; i < kRows.size(); ++i) {
        if (static_cast<size_t>(kRows.at(i).command) != i)
            return false;
        if (kRows.at(i).combination.has_value() != (i < kCommandsWithKeys))
            return false;
    }
    return true;
}
static_assert(areRowsInOrder());

} // namespace

std::span<const CommandRow> commandRows()
{
    return kRows;
}

std::span<const CommandRow> commandsWithKeys()
{
    return commandRows().first(kCommandsWithKeys);
}

const CommandRow &rowOf(Command command)
{
    return kRows.at(static_cast<size_t>(command));
}

const CommandRow *findCommand(QStringView words)
{
    const auto *const row = std::ranges::find(kRows, words, &CommandRow::words);
    return words.isEmpty() || row == kRows.end() ? nullptr : row;
}

QString purposeOf(Command command)
{
    return QCoreApplication::translate("vesk::Command", rowOf(command).purpose);
}

QString titleOf(Command command)
{
    return QCoreApplication::translate("vesk::Command", rowOf(command).title);
}

KeyCombination combinationOf(Command command)
{
    return rowOf(command).combination.value();
}

} // namespace vesk
