// SPDX-License-Identifier: MIT
#include "app/menucommands.h"

#include "editor/noteeditorcontroller.h"
#include "editor/notetextview.h"

#include <QShortcut>
#include <QWindow>

#include <algorithm>
#include <array>

using namespace Qt::StringLiterals;

namespace vesk {

namespace {

using Command = MenuCommands::Command;

struct Entry
{
    Command command;
    const char *title;
    const char *keys;
    /// What a command of the Format menu puts before a line.
    QStringView marker;
};

constexpr std::array kEntries{
    Entry{.command = Command::NewNote,
          .title = QT_TRANSLATE_NOOP("vesk::MenuCommands", "New Note"),
          .keys = "Ctrl+N",
          .marker = {}},
    Entry{.command = Command::QuickNote,
          .title = QT_TRANSLATE_NOOP("vesk::MenuCommands", "Quick Note\u2026"),
          .keys = "",
          .marker = {}},
    Entry{.command = Command::QuickChecklist,
          .title = QT_TRANSLATE_NOOP("vesk::MenuCommands", "Quick Checklist\u2026"),
          .keys = "",
          .marker = {}},
    Entry{.command = Command::Checklist,
          .title = QT_TRANSLATE_NOOP("vesk::MenuCommands", "Checklist"),
          .keys = "Ctrl+Shift+L",
          .marker = u"\u2610 "},
    Entry{.command = Command::BulletedList,
          .title = QT_TRANSLATE_NOOP("vesk::MenuCommands", "Bulleted List"),
          .keys = "Ctrl+Shift+8",
          .marker = u"\u2022 "},
    Entry{.command = Command::Heading,
          .title = QT_TRANSLATE_NOOP("vesk::MenuCommands", "Heading"),
          .keys = "Ctrl+Shift+H",
          .marker = u"# "},
};

const Entry &entryOf(Command command)
{
    return *std::ranges::find(kEntries, command, &Entry::command);
}

} // namespace

MenuCommands::MenuCommands(QWindow &panel, NoteEditorController &editor)
    : m_editor(editor)
    , m_order(panel)
{
    for (const Entry &entry : kEntries) {
        const QKeySequence keys = MenuCommands::keys(entry.command);
        if (keys.isEmpty())
            continue;
        // NOLINTNEXTLINE(cppcoreguidelines-owning-memory): the window owns it.
        auto *shortcut = new QShortcut(keys, &panel);
        shortcut->setAutoRepeat(false);
        shortcut->setContext(entry.marker.isEmpty() ? Qt::ApplicationShortcut : Qt::WindowShortcut);
        connect(shortcut, &QShortcut::activated, this,
                [this, command = entry.command] { m_order.run([this, command] { perform(command); }); });
    }
}

QString MenuCommands::title(Command command)
{
    return tr(entryOf(command).title);
}

QKeySequence MenuCommands::keys(Command command)
{
    return {QString::fromLatin1(entryOf(command).keys), QKeySequence::PortableText};
}

void MenuCommands::perform(Command command)
{
    const QStringView marker = entryOf(command).marker;
    // A note that something lies over is not to be changed unseen.
    const NoteTextView *text = m_editor.textView();
    if (marker.isEmpty())
        Q_EMIT chosen(command);
    else if (text && text->isEnabled())
        m_editor.toggleLinePrefix(marker.toString());
}

} // namespace vesk
