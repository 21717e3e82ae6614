// SPDX-License-Identifier: MIT
#pragma once

#include "platform/hotkeys.h"

#include <QStringView>

#include <array>

namespace vesk {

/// One of Vesk's own key combinations.
struct HotKeyRow
{
    quint32 id;
    KeyCombination combination;
};

/// The combinations by which Vesk is reached from everywhere.
namespace hotkeytable {

inline constexpr Qt::KeyboardModifiers kBase = Qt::MetaModifier | Qt::AltModifier;

/// Saves the selected text, or opens the place to write a note.
inline constexpr HotKeyRow kQuickNote{.id = 1, .combination = {.key = KeyPosition::N, .modifiers = kBase}};
/// Adds the selection to the last note.
inline constexpr HotKeyRow kAppend{
    .id = 2, .combination = {.key = KeyPosition::N, .modifiers = kBase | Qt::ShiftModifier}};
/// Opens or hides Vesk.
inline constexpr HotKeyRow kOpen{.id = 3, .combination = {.key = KeyPosition::T, .modifiers = kBase}};
/// Opens Vesk to write a new note.
inline constexpr HotKeyRow kWrite{
    .id = 4, .combination = {.key = KeyPosition::N, .modifiers = kBase | Qt::ControlModifier}};
/// Saves the selection as a checklist.
inline constexpr HotKeyRow kChecklist{.id = 5, .combination = {.key = KeyPosition::C, .modifiers = kBase}};
/// Adds the selection to the last checklist.
inline constexpr HotKeyRow kAddToChecklist{
    .id = 6, .combination = {.key = KeyPosition::C, .modifiers = kBase | Qt::ShiftModifier}};

/// Applications that have `kChecklist`'s combination for themselves, and keep it while they are
/// frontmost. No file manager of this desktop does.
inline constexpr std::array<QStringView, 0> kChecklistKeyOwners{};

} // namespace hotkeytable
} // namespace vesk
