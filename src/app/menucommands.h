// SPDX-License-Identifier: MIT
#pragma once

#include "app/keyorder.h"

#include <QKeySequence>
#include <QObject>

class QWindow;

namespace vesk {

class NoteEditorController;

/// The commands of the program's File and Format menus, with their keys inside its windows. A key is
/// compared with what stands on it in the user's layout, with and without Shift.
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

    /// Listens to the keys of the program's windows; those of the Format menu are for the panel, whose
    /// open note `editor` stands for. Both have to outlive the commands.
    MenuCommands(QWindow &panel, NoteEditorController &editor);

    /// As the menus show it.
    [[nodiscard]] static QString title(Command command);
    /// Empty for a command whose key works everywhere, and so also in Vesk's windows.
    [[nodiscard]] static QKeySequence keys(Command command);
    /// A command of the Format menu is done at once, and does nothing without an open note.
    void perform(Command command);

Q_SIGNALS:
    /// A command of the File menu was chosen.
    void chosen(vesk::MenuCommands::Command command);

private:
    NoteEditorController &m_editor;
    KeyOrder m_order;
};

} // namespace vesk
