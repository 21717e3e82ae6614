// SPDX-License-Identifier: MIT
#pragma once

#include "platform/hotkeys.h"

#include <QStringView>

#include <array>

namespace vesk {

/// One of Vesk's global key combinations.
struct HotKeyRow
{
    quint32 id;
    /// The default.
    KeyCombination combination;
    /// The words after `vesk` that do the same, which also name the combination in the user's file.
    QStringView command;
    /// Must be translated before it is shown.
    const char *purpose;
};

/// The global key combinations.
namespace hotkeytable {

inline constexpr Qt::KeyboardModifiers kBase = Qt::MetaModifier | Qt::AltModifier;

/// Saves the selected text, or opens the place to write a note.
inline constexpr HotKeyRow kQuickNote{
    .id = 1,
    .combination = {.key = KeyPosition::N, .modifiers = kBase},
    .command = u"capture",
    .purpose = QT_TRANSLATE_NOOP("vesk::KeysReport",
                                 "save the selected text; with nothing selected, write a quick note")};
/// Adds the selection to the last note.
inline constexpr HotKeyRow kAppend{
    .id = 2,
    .combination = {.key = KeyPosition::N, .modifiers = kBase | Qt::ShiftModifier},
    .command = u"capture --append",
    .purpose = QT_TRANSLATE_NOOP("vesk::KeysReport", "add the selected text to the note changed last")};
/// Opens or hides Vesk.
inline constexpr HotKeyRow kOpen{.id = 3,
                                 .combination = {.key = KeyPosition::T, .modifiers = kBase},
                                 .command = u"toggle",
                                 .purpose = QT_TRANSLATE_NOOP("vesk::KeysReport", "open or hide Vesk")};
/// Opens Vesk to write a new note.
inline constexpr HotKeyRow kWrite{
    .id = 4,
    .combination = {.key = KeyPosition::N, .modifiers = kBase | Qt::ControlModifier},
    .command = u"write",
    .purpose = QT_TRANSLATE_NOOP("vesk::KeysReport", "open Vesk to write a new note")};
/// Saves the selection as a checklist.
inline constexpr HotKeyRow kChecklist{
    .id = 5,
    .combination = {.key = KeyPosition::C, .modifiers = kBase},
    .command = u"capture --checklist",
    .purpose = QT_TRANSLATE_NOOP("vesk::KeysReport", "make a checklist of the selected lines, or write one")};
/// Adds the selection to the last checklist.
inline constexpr HotKeyRow kAddToChecklist{
    .id = 6,
    .combination = {.key = KeyPosition::C, .modifiers = kBase | Qt::ShiftModifier},
    .command = u"add-to-checklist",
    .purpose = QT_TRANSLATE_NOOP("vesk::KeysReport", "add the selected lines to the checklist changed last")};
/// Saves the selection as a prompt. Shift with Shift stands for two taps of Shift, which are not a
/// combination that can be claimed.
inline constexpr HotKeyRow kSavePrompt{
    .id = 7,
    .combination = {.key = KeyPosition::LeftShift, .modifiers = Qt::ShiftModifier},
    .command = u"save-prompt",
    .purpose = QT_TRANSLATE_NOOP("vesk::KeysReport", "save the selected text as a prompt")};

/// In the order of their identifiers, which start at 1.
inline constexpr std::array kAll{kQuickNote, kAppend,         kOpen,      kWrite,
                                 kChecklist, kAddToChecklist, kSavePrompt};

/// Applications that use the combination of `kChecklist` themselves, and keep it while they are in front. No
/// file manager of this desktop does.
inline constexpr std::array<QStringView, 0> kChecklistKeyOwners{};

} // namespace hotkeytable
} // namespace vesk
