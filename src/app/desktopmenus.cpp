// SPDX-License-Identifier: MIT
#include "app/desktopmenus.h"

#include "panel/panelwindow.h"

namespace vesk {

namespace {

using Command = MenuCommands::Command;

QList<DBusMenuEntry> entries(MenuCommands &commands, const QList<Command> &wanted)
{
    QList<DBusMenuEntry> all;
    for (const Command command : wanted)
        all.append({.label = MenuCommands::title(command),
                    .action = [&commands, command] { commands.perform(command); },
                    .keys = MenuCommands::keys(command)});
    return all;
}

QList<DBusMenuEntry> fileEntries(MenuCommands &commands)
{
    return entries(commands, {Command::NewNote, Command::QuickNote, Command::QuickChecklist});
}

} // namespace

DesktopMenus::DesktopMenus(PanelWindow &panel, MenuCommands &commands)
    : m_icon(
        QDBusConnection::sessionBus(),
        {.activated = [&panel] { panel.togglePanel(); },
         .menu =
             QList<DBusMenuEntry>{{.label = tr("Open Vesk"), .action = [&panel] { panel.showPanel(); }}}
             + fileEntries(commands)
             + QList<DBusMenuEntry>{{}, {.label = tr("Quit"), .action = [] { QCoreApplication::exit(0); }}}})
    , m_bar(QDBusConnection::sessionBus(), static_cast<quint32>(panel.window().winId()),
            {{.label = tr("File"), .action = {}, .children = fileEntries(commands)},
             {.label = tr("Format"),
              .action = {},
              .children = entries(commands, {Command::Checklist, Command::BulletedList, Command::Heading})}})
{
}

} // namespace vesk
