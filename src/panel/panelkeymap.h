// SPDX-License-Identifier: MIT
#pragma once

#include "panel/panelkeyboard.h"

namespace vesk {

/// What a key does in the panel.
enum class PanelAction {
    /// The key is not the panel's: it goes to whatever has the focus.
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
    /// Shows the menu of the focused field, otherwise of the selected card.
    ShowMenu,
};

/// What the meaning of a key depends on.
struct PanelKeyState
{
    PanelKeyboard::Field field = PanelKeyboard::Field::None;
    bool isNoteOpen = false;
    bool isSearching = false;
};

/// Whether an action repeats while its key is held. Other actions happen once per press: a key held a moment
/// too long must not delete one note after another.
[[nodiscard]] bool repeats(PanelAction action);
/// Whether an action applies to the selected card.
[[nodiscard]] bool actsOnSelection(PanelAction action);

/// The panel's key map: what a key does. `key` is a `Qt::Key`.
[[nodiscard]] PanelAction panelAction(int key, Qt::KeyboardModifiers modifiers, const PanelKeyState &state);

} // namespace vesk
