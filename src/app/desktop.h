// SPDX-License-Identifier: MIT
#pragma once

#include "platform/freedesktop/applicationservice.h"
#include "platform/freedesktop/canberrasounds.h"
#include "platform/freedesktop/consent.h"
#include "platform/freedesktop/inidefaults.h"
#include "platform/freedesktop/packagekitupdates.h"
#include "platform/freedesktop/portalappearance.h"
#include "platform/freedesktop/systemclock.h"
#include "platform/x11/keyboardhold.h"
#include "platform/x11/rawinput.h"
#include "platform/x11/x11accessibility.h"
#include "platform/x11/x11appearance.h"
#include "platform/x11/x11application.h"
#include "platform/x11/x11connection.h"
#include "platform/x11/x11eventposter.h"
#include "platform/x11/x11eventtap.h"
#include "platform/x11/x11hotkeys.h"
#include "platform/x11/x11pasteboard.h"
#include "platform/x11/x11screens.h"
#include "platform/x11/x11windows.h"
#include "platform/x11/x11workspace.h"
#include "platform/x11/xsettings.h"

#include <memory>

namespace vesk {

/// All platform objects of an X11 session, constructed in the order in which they depend on each other.
struct Desktop
{
    Desktop(std::unique_ptr<X11Connection> connection, ApplicationService &service);

    SystemClock clock;
    IniDefaults defaults;
    Consent consent;
    PortalAppearance portal;
    CanberraSounds sounds;
    PackageKitUpdates updates;
    std::unique_ptr<X11Connection> x11;
    XSettings settings;
    X11Appearance appearance;
    RawInput input;
    X11Screens screens;
    X11Windows windows;
    X11Workspace workspace;
    KeyboardHold keyboardHold;
    X11Application application;
    X11HotKeys hotKeys;
    X11Accessibility accessibility;
    X11Pasteboard pasteboard;
    X11Pasteboard primary;
    X11Pasteboard dragged;
    X11EventPoster poster;
    X11EventTap tap;
};

} // namespace vesk
