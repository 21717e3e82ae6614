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

using Item = MenuCommands::Item;

struct Entry
{
    Item item;
    /// nullopt in the Format menu.
    std::optional<Command> command = {};
    /// Null if the command has its own title.
    const char *title = nullptr;
    const char *keys = "";
    /// The marker that an item of the Format menu inserts at the start of a line.
    QStringView marker = {};
};

constexpr std::array kEntries{
    Entry{.item = Item::NewNote, .command = Command::Write, .keys = "Ctrl+N"},
    Entry{.item = Item::QuickNote, .command = Command::QuickNote},
    Entry{.item = Item::QuickChecklist, .command = Command::QuickChecklist},
    Entry{.item = Item::Checklist,
          .title = QT_TRANSLATE_NOOP("vesk::MenuCommands", "Checklist"),
          .keys = "Ctrl+Shift+L",
          .marker = u"\u2610 "},
    Entry{.item = Item::BulletedList,
          .title = QT_TRANSLATE_NOOP("vesk::MenuCommands", "Bulleted List"),
          .keys = "Ctrl+Shift+8",
          .marker = u"\u2022 "},
    Entry{.item = Item::Heading,
          .title = QT_TRANSLATE_NOOP("vesk::MenuCommands", "Heading"),
          .keys = "Ctrl+Shift+H",
          .marker = u"# "},
};

const Entry &entryOf(Item item)
{
    return *std::ranges::find(kEntries, item, &Entry::item);
}

} // namespace

MenuCommands::MenuCommands(QWindow &panel, NoteEditorController &editor)
    : m_editor(editor)
    , m_order(panel)
{
    for (const Entry &entry : kEntries) {
        const QKeySequence keys = MenuCommands::keys(entry.item);
        if (keys.isEmpty())
            continue;
        // NOLINTNEXTLINE(cppcoreguidelines-owning-memory): the window owns it.
        auto *shortcut = new QShortcut(keys, &panel);
        shortcut->setAutoRepeat(false);
        shortcut->setContext(entry.command ? Qt::ApplicationShortcut : Qt::WindowShortcut);
        connect(shortcut, &QShortcut::activated, this,
                [this, item = entry.item] { m_order.run([this, item] { choose(item); }); });
    }
}

QString MenuCommands::title(Item item)
{
    const Entry &entry = entryOf(item);
    return entry.command ? titleOf(*entry.command) : tr(entry.title);
}

QKeySequence MenuCommands::keys(Item item)
{
    return {QString::fromLatin1(entryOf(item).keys), QKeySequence::PortableText};
}

void MenuCommands::choose(Item item)
{
    const Entry &entry = entryOf(item);
    // Do not change a note that is covered by something else.
    const NoteTextView *text = m_editor.textView();
    if (entry.command)
        Q_EMIT chosen(*entry.command);
    else if (text && text->isEnabled())
        m_editor.toggleLinePrefix(entry.marker.toString());
}

} // namespace vesk
