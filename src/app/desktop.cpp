// SPDX-License-Identifier: MIT
#include "app/desktop.h"

namespace vesk {

Desktop::Desktop(std::unique_ptr<X11Connection> connection, ApplicationService &service)
    : defaults(IniDefaults::standardPath())
    , consent(defaults)
    , updates(QDBusConnection::systemBus(), {})
    , x11(std::move(connection))
    , settings(*x11)
    , appearance(portal, settings)
    , input(*x11)
    , screens(*x11)
    , windows(*x11, screens)
    , workspace(*x11)
    , keyboardHold(*x11, input)
    , application(*x11, workspace, keyboardHold, service)
    , hotKeys(*x11, input)
    , accessibility(*x11, input, workspace, consent)
    , pasteboard(*x11)
    , primary(*x11, X11Pasteboard::Kind::Primary)
    , dragged(*x11, X11Pasteboard::Kind::Dragged)
    , poster({.connection = *x11,
              .input = input,
              .workspace = workspace,
              .accessibility = accessibility,
              .clock = clock,
              .hold = &keyboardHold})
    , tap(input)
{
}

} // namespace vesk
