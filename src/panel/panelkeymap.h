// SPDX-License-Identifier: MIT
#pragma once

#include "panel/panelkeyboard.h"

namespace vesk {

/// What a key does in the panel.
enum class PanelAction {
    /// The key is not the panel's: it goes on to whatever has the keyboard.
    Pass,
    WriteNote,
    Search,
    MoveSelection,
    DeleteSelected,
    CloseNote,
    HidePanel,
    ClearSearch,
    LeaveField,
    OpenFound,
    CommitDraft,
    BreakLine,
    OpenSelected,
    PasteSelected,
    NextTab,
    PreviousTab,
    /// The menu of the field that has the keyboard, or else of the selected card.
    ShowMenu,
};

/// What the meaning of a key depends on.
struct PanelKeyState
{
    PanelKeyboard::Field field = PanelKeyboard::Field::None;
    bool isNoteOpen = false;
    bool isSearching = false;
};

/// Whether an action is done again and again while its key is held. The others are done once a press:
/// a key that is held a moment too long must not delete one note after another.
[[nodiscard]] bool repeats(PanelAction action);
/// Whether an action is done to the selected card.
[[nodiscard]] bool actsOnSelection(PanelAction action);

/// The key map of the panel: what a key does there. `key` is a `Qt::Key`.
[[nodiscard]] PanelAction panelAction(int key, Qt::KeyboardModifiers modifiers, const PanelKeyState &state);

} // namespace vesk
