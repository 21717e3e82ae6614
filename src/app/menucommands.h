// SPDX-License-Identifier: MIT
#pragma once

#include "app/keyorder.h"
#include "commands/command.h"

#include <QKeySequence>
#include <QObject>

class QWindow;

namespace vesk {

class NoteEditorController;

/// The items of the File and Format menus, and their keys in Vesk's windows. A key matches if it has the
/// item's character in the user's layout, with or without Shift.
class MenuCommands final : public QObject
{
    Q_OBJECT

public:
    enum class Item {
        // File
        NewNote,
        QuickNote,
        QuickChecklist,
        // Format
        Checklist,
        BulletedList,
        Heading,
    };

    /// Listens to the keys of the program's windows. Those of the Format menu act on the open note of the
    /// panel, through `editor`. Both must outlive this object.
    MenuCommands(QWindow &panel, NoteEditorController &editor);

    /// The title in the menus.
    [[nodiscard]] static QString title(Item item);
    /// Empty for an item whose command has a global key, which works in Vesk's windows too.
    [[nodiscard]] static QKeySequence keys(Item item);
    /// Carries out an item of the Format menu, which does nothing without an open note; emits `chosen` for an
    /// item of the File menu.
    void choose(Item item);

Q_SIGNALS:
    /// Emitted when an item of the File menu was chosen, with its command.
    void chosen(vesk::Command command);

private:
    NoteEditorController &m_editor;
    KeyOrder m_order;
};

} // namespace vesk
