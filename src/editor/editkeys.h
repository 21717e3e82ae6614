// SPDX-License-Identifier: MIT
#pragma once

class QKeyEvent;

namespace vesk {
class EditItem;
class EditSteps;
class EditedText;
} // namespace vesk

/// The keys that do the same in note editors and in text fields. Locks and the keypad modifier are ignored.
namespace vesk::editkeys {

/// Whether the key writes a character. Joiners and direction marks are not printable, but can be typed.
[[nodiscard]] bool isCharacter(const QKeyEvent &event);
/// Some desktops and terminals paste plain text with Control-Shift-V.
[[nodiscard]] bool isPaste(const QKeyEvent &event);
[[nodiscard]] bool isRedo(const QKeyEvent &event);

/// Must be called first for each key. An input method passes on keys that it does not use: a character
/// follows the composed text, so composing ends. Returns true for any other key, which must be dropped
/// because it would tear the composed text apart.
[[nodiscard]] bool isLostInComposing(const QKeyEvent &event, const EditItem &edit);

/// Undoes, redoes or erases. Ends the current step at a key that does not type. Returns false if the key is
/// for something else.
[[nodiscard]] bool handle(const QKeyEvent &event, const EditItem &edit, const EditedText &text,
                          EditSteps &steps);

} // namespace vesk::editkeys
