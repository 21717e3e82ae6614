// SPDX-License-Identifier: MIT
#pragma once

#include "app/menucommands.h"
#include "platform/freedesktop/menubar.h"
#include "platform/freedesktop/statusicon.h"

#include <QCoreApplication>

namespace vesk {

class PanelWindow;
class VeskServices;

/// The menus that the desktop draws if it has a place for them: the menu of Vesk's icon, and the menu bar of
/// the panel.
class DesktopMenus final
{
    Q_DECLARE_TR_FUNCTIONS(vesk::DesktopMenus)

public:
    /// All must outlive this object.
    DesktopMenus(PanelWindow &panel, MenuCommands &items, VeskServices &services);

private:
    StatusIcon m_icon;
    MenuBar m_bar;
};

} // namespace vesk
