// SPDX-License-Identifier: MIT
#pragma once

class QKeyEvent;

namespace vesk {
class EditItem;
class EditSteps;
class EditedText;
} // namespace vesk

/// The keys that do the same in note editors and in text fields. The locks and the number pad do not count.
namespace vesk::editkeys {

/// Whether the key writes a character. Joiners and marks of direction are not printed, but are typed.
[[nodiscard]] bool isCharacter(const QKeyEvent &event);
/// Some desktops, and terminals, paste plain text by Control-Shift-V.
[[nodiscard]] bool isPaste(const QKeyEvent &event);
[[nodiscard]] bool isRedo(const QKeyEvent &event);

/// To be asked of each key first. An input method lets through what it has no use for: a character follows
/// what was composed so far, so composing ends. Returns true for any other key, which is to be dropped, as it
/// would tear apart what is composed.
[[nodiscard]] bool isLostInComposing(const QKeyEvent &event, const EditItem &edit);

/// Undoes, redoes or erases. Ends the current step at a key that does not type. Returns false if the key is
/// for something else.
[[nodiscard]] bool handle(const QKeyEvent &event, const EditItem &edit, const EditedText &text,
                          EditSteps &steps);

} // namespace vesk::editkeys
