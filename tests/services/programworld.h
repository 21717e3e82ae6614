// SPDX-License-Identifier: MIT
#pragma once

#include "../capture/capturedesktop.h"
#include "services/veskservices.h"
#include "components/surroundings.h"
#include "editor/lentpasteboards.h"
#include "input/globalkeys.h"
#include "notes/notesstore.h"
#include "panel/panelmodel.h"
#include "panel/panelwindow.h"
#include "platform/memory/memoryappearance.h"
#include "platform/memory/memoryapplication.h"
#include "platform/memory/memorydefaults.h"
#include "platform/memory/memoryscreens.h"
#include "platform/memory/memorysounds.h"
#include "platform/memory/memorywindows.h"
#include "quicknote/toast.h"

#include <QQmlEngine>

namespace vesk {

/// The program over the in-memory platform and a store in a file, without its quick-note box and without the
/// code behind the keys.
struct ProgramWorld : CaptureDesktop
{
    /// Starts at `now`; `path` is the store's.
    ProgramWorld(const QString &path, Date now)
        : opened((clock.setNow(now), NotesStore::open(path, clock)))
        , keys(hotKeys, path + QStringLiteral(".keys"))
    {
    }

    /// The dependencies of the services, with this box; `owners` use the checklist combination themselves.
    [[nodiscard]] VeskServices::Needs servicesNeeds(QuickNoteBox &box,
                                                    std::span<const QStringView> owners = {})
    {
        return {.clock = clock,
                .keys = keys,
                .tap = tap,
                .accessibility = accessibility,
                .workspace = workspace,
                .sounds = sounds,
                .store = store,
                .reader = reader,
                .panel = panel,
                .panelWindow = panelWindow,
                .quickNote = box,
                .toast = toast,
                .checklistKeyOwners = owners};
    }

    void tapShiftTwice()
    {
        for (const auto held : {Qt::ShiftModifier, Qt::NoModifier, Qt::ShiftModifier, Qt::NoModifier})
            tap.setFlags({.held = held, .isCapsLocked = false, .time = {}});
    }

    NotesStore::OpenResult opened;
    NotesStore &store = *opened.store;
    MemoryAppearance appearance;
    MemoryApplication application;
    MemoryDefaults defaults;
    MemoryHotKeys hotKeys;
    GlobalKeys keys;
    MemoryPasteboard primary;
    MemoryScreens screens;
    MemorySounds sounds;
    MemoryWindows windows{screens};
    QQmlEngine engine;
    const bool isLent =
        (lendToEngine(engine, appearance, workspace, windows), lendToEditors(engine, pasteboard, &primary),
         defaults.setBool(true, QStringLiteral("hasSeenGuide")), true);
    SelectionReader reader{readersNeeds()};
    PanelModel panel{store, clock, defaults, application, accessibility};
    PanelWindow panelWindow{engine, panel, application, screens, windows};
    Toast toast{engine, screens, windows, clock};
};

} // namespace vesk
