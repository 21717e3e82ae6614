// SPDX-License-Identifier: MIT
#include "panel/panelmenu.h"

namespace vesk {

PanelMenu::PanelMenu(QObject *parent)
    : QObject(parent)
{
}

void PanelMenu::setCanCheckForUpdates(bool canCheck)
{
    if (m_canCheckForUpdates == canCheck)
        return;
    m_canCheckForUpdates = canCheck;
    Q_EMIT changed();
}

} // namespace vesk
