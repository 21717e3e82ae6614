// SPDX-License-Identifier: MIT
#pragma once

#include "components/surroundings.h"
#include "platform/memory/memoryaccessibility.h"
#include "platform/memory/memoryappearance.h"
#include "platform/memory/memoryapplication.h"
#include "platform/memory/memoryclock.h"
#include "platform/memory/memorydefaults.h"
#include "platform/memory/memorypasteboard.h"
#include "platform/memory/memoryscreens.h"
#include "platform/memory/memorysounds.h"
#include "platform/memory/memorywindows.h"
#include "platform/memory/memoryworkspace.h"

#include <QQmlEngine>

namespace vesk {

/// The desktop that a view needs, in memory, and an engine that has been lent it.
struct MemoryDesktop
{
    MemoryDesktop() { lendToEngine(engine, appearance, workspace, windows); }

    MemoryClock clock;
    MemoryAccessibility accessibility{clock};
    MemoryAppearance appearance;
    MemoryApplication application;
    MemoryDefaults defaults;
    MemoryPasteboard pasteboard;
    MemoryPasteboard primary;
    MemoryPasteboard dragged;
    MemoryScreens screens;
    MemorySounds sounds;
    MemoryWindows windows{screens};
    MemoryWorkspace workspace;
    QQmlEngine engine;
};

} // namespace vesk
