// SPDX-License-Identifier: MIT
#include "app/desktopmenus.h"

#include "panel/panelwindow.h"
#include "services/veskservices.h"

namespace vesk {

namespace {

using Item = MenuCommands::Item;

QList<DBusMenuEntry> entries(MenuCommands &items, const QList<Item> &wanted)
{
    QList<DBusMenuEntry> all;
    for (const Item item : wanted)
        all.append({.label = MenuCommands::title(item),
                    .action = [&items, item] { items.choose(item); },
                    .keys = MenuCommands::keys(item)});
    return all;
}

QList<DBusMenuEntry> fileEntries(MenuCommands &items)
{
    return entries(items, {Item::NewNote, Item::QuickNote, Item::QuickChecklist});
}

DBusMenuEntry entry(VeskServices &services, Command command)
{
    return {.label = titleOf(command), .action = [&services, command] { services.perform(command); }};
}

} // namespace

DesktopMenus::DesktopMenus(PanelWindow &panel, MenuCommands &items, VeskServices &services)
    : m_icon(QDBusConnection::sessionBus(),
             {.activated = [&services] { services.perform(Command::Toggle); },
              .menu = QList<DBusMenuEntry>{entry(services, Command::Show)} + fileEntries(items)
                      + QList<DBusMenuEntry>{{}, entry(services, Command::Quit)}})
    , m_bar(QDBusConnection::sessionBus(), static_cast<quint32>(panel.window().winId()),
            {{.label = tr("File"), .action = {}, .children = fileEntries(items)},
             {.label = tr("Format"),
              .action = {},
              .children = entries(items, {Item::Checklist, Item::BulletedList, Item::Heading})}})
{
}

} // namespace vesk
