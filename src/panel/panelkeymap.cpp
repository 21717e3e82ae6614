// SPDX-License-Identifier: MIT
#include "panel/panelkeymap.h"

#include <algorithm>
#include <array>
#include <optional>

namespace vesk {

namespace {

/// The keys that the panel distinguishes.
enum class Key {
    N,
    F,
    Arrow,
    Delete,
    Escape,
    Return,
    Tab,
    Menu,
    F10,
};

enum class Held {
    Nothing,
    Command,
    Shift,
    CommandShift,
    /// Any key.
    Anything,
};

enum class When {
    Always,
    NoteIsOpen,
    NoField,
    AnyField,
    InSearch,
    InSearchWithText,
    InComposer,
};

struct Rule
{
    Key key;
    Held held;
    When when;
    PanelAction action;
};

/// The first matching rule decides; if none matches, the key is not the panel's.
constexpr std::array kRules{
    Rule{Key::N, Held::Command, When::Always, PanelAction::WriteNote},
    Rule{Key::F, Held::Command, When::Always, PanelAction::Search},
    Rule{Key::Arrow, Held::Nothing, When::InComposer, PanelAction::Pass},
    Rule{Key::Arrow, Held::Nothing, When::NoteIsOpen, PanelAction::Pass},
    Rule{Key::Arrow, Held::Nothing, When::Always, PanelAction::MoveSelection},
    Rule{Key::Delete, Held::Command, When::AnyField, PanelAction::Pass},
    Rule{Key::Delete, Held::Command, When::Always, PanelAction::DeleteSelected},
    Rule{Key::Escape, Held::Nothing, When::NoteIsOpen, PanelAction::CloseNote},
    Rule{Key::Escape, Held::Nothing, When::NoField, PanelAction::HidePanel},
    Rule{Key::Escape, Held::Nothing, When::InSearchWithText, PanelAction::ClearSearch},
    Rule{Key::Escape, Held::Nothing, When::AnyField, PanelAction::LeaveField},
    Rule{Key::Return, Held::Nothing, When::InSearch, PanelAction::OpenFound},
    Rule{Key::Return, Held::Anything, When::InSearch, PanelAction::Pass},
    Rule{Key::Return, Held::Nothing, When::InComposer, PanelAction::CommitDraft},
    Rule{Key::Return, Held::Shift, When::InComposer, PanelAction::BreakLine},
    Rule{Key::Return, Held::Anything, When::InComposer, PanelAction::Pass},
    Rule{Key::Return, Held::Nothing, When::NoField, PanelAction::OpenSelected},
    Rule{Key::Return, Held::Command, When::NoField, PanelAction::PasteSelected},
    Rule{Key::Tab, Held::Command, When::Always, PanelAction::NextTab},
    Rule{Key::Tab, Held::CommandShift, When::Always, PanelAction::PreviousTab},
    Rule{Key::Menu, Held::Nothing, When::Always, PanelAction::ShowMenu},
    Rule{Key::F10, Held::Shift, When::Always, PanelAction::ShowMenu},
};

std::optional<Key> keyOf(int key)
{
    switch (key) {
    case Qt::Key_N:
        return Key::N;
    case Qt::Key_F:
        return Key::F;
    case Qt::Key_Down:
    case Qt::Key_Up:
        return Key::Arrow;
    case Qt::Key_Backspace:
        return Key::Delete;
    case Qt::Key_Escape:
        return Key::Escape;
    case Qt::Key_Return:
    case Qt::Key_Enter:
        return Key::Return;
    case Qt::Key_Tab:
    case Qt::Key_Backtab:
        return Key::Tab;
    case Qt::Key_Menu:
        return Key::Menu;
    case Qt::Key_F10:
        return Key::F10;
    default:
        return std::nullopt;
    }
}

bool isHeld(Held held, Qt::KeyboardModifiers modifiers)
{
    // Locks and the keypad modifier are ignored.
    constexpr Qt::KeyboardModifiers kCounted =
        Qt::ShiftModifier | Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier;
    switch (held) {
    case Held::Nothing:
        return (modifiers & kCounted) == Qt::NoModifier;
    case Held::Command:
        // In Vesk's own windows, Command is the Control key.
        return (modifiers & kCounted) == Qt::ControlModifier;
    case Held::Shift:
        return (modifiers & kCounted) == Qt::ShiftModifier;
    case Held::CommandShift:
        return (modifiers & kCounted) == (Qt::ControlModifier | Qt::ShiftModifier);
    case Held::Anything:
        return true;
    }
    Q_UNREACHABLE();
}

bool holds(When when, const PanelKeyState &state)
{
    switch (when) {
    case When::Always:
        return true;
    case When::NoteIsOpen:
        return state.isNoteOpen;
    case When::NoField:
        return state.field == PanelKeyboard::Field::None;
    case When::AnyField:
        return state.field != PanelKeyboard::Field::None;
    case When::InSearch:
        return state.field == PanelKeyboard::Field::Search;
    case When::InSearchWithText:
        return state.field == PanelKeyboard::Field::Search && state.isSearching;
    case When::InComposer:
        return state.field == PanelKeyboard::Field::Composer;
    }
    Q_UNREACHABLE();
}

} // namespace

bool repeats(PanelAction action)
{
    switch (action) {
    case PanelAction::Pass:
    case PanelAction::MoveSelection:
    case PanelAction::BreakLine:
    case PanelAction::NextTab:
    case PanelAction::PreviousTab:
        return true;
    default:
        return false;
    }
}

bool actsOnSelection(PanelAction action)
{
    return action == PanelAction::DeleteSelected || action == PanelAction::OpenSelected
           || action == PanelAction::PasteSelected || action == PanelAction::OpenFound;
}

PanelAction panelAction(int key, Qt::KeyboardModifiers modifiers, const PanelKeyState &state)
{
    const std::optional<Key> known = keyOf(key);
    const auto *const rule = std::ranges::find_if(kRules, [&](const Rule &each) {
        return each.key == known && isHeld(each.held, modifiers) && holds(each.when, state);
    });
    return rule == kRules.end() ? PanelAction::Pass : rule->action;
}

} // namespace vesk
