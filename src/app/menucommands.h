// SPDX-License-Identifier: MIT
#pragma once

#include "app/keyorder.h"

#include <QKeySequence>
#include <QObject>

class QWindow;

namespace vesk {

class NoteEditorController;

/// The commands of the File and Format menus, and their keys in Vesk's windows. A key matches if it has the
/// command's character in the user's layout, with or without Shift.
class MenuCommands final : public QObject
{
    Q_OBJECT

public:
    enum class Command {
        // File
        NewNote,
        QuickNote,
        QuickChecklist,
        // Format
        Checklist,
        BulletedList,
        Heading,
    };
    Q_ENUM(Command)

    /// Listens to the keys of the program's windows. Those of the Format menu act on the open note of the
    /// panel, through `editor`. Both must outlive this object.
    MenuCommands(QWindow &panel, NoteEditorController &editor);

    /// The title in the menus.
    [[nodiscard]] static QString title(Command command);
    /// Empty for a command with a global key, which works in Vesk's windows too.
    [[nodiscard]] static QKeySequence keys(Command command);
    /// Carries out a command of the Format menu, which does nothing without an open note; emits `chosen` for
    /// a command of the File menu.
    void perform(Command command);

Q_SIGNALS:
    /// Emitted when a command of the File menu was chosen.
    void chosen(vesk::MenuCommands::Command command);

private:
    NoteEditorController &m_editor;
    KeyOrder m_order;
};

} // namespace vesk
