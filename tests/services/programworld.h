// SPDX-License-Identifier: MIT
#pragma once

#include "../capture/capturedesktop.h"
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
#include "services/veskservices.h"
#include "virtualdesktop/files.h"

#include <QQmlEngine>

namespace vesk {

/// The program over the in-memory platform and a store in a file, without its quick-note box and without the
/// code behind the keys.
struct ProgramWorld : CaptureDesktop
{
    /// The date is now; `path` is that of the store, `keysFile` the user's choice of keys.
    ProgramWorld(const QString &path, Date now, const QByteArray &keysFile = {})
        : opened((clock.setNow(now), NotesStore::open(path, clock)))
        , keysPath(written(path + QStringLiteral(".keys"), keysFile))
        , keys(hotKeys, keysPath)
    {
    }

    /// What the services need, with this box.
    [[nodiscard]] VeskServices::Needs servicesNeeds(QuickNoteBox &box)
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
                .toast = toast};
    }

    [[nodiscard]] static QString written(const QString &path, const QByteArray &text)
    {
        return !text.isEmpty() && !writeFile(path, text) ? QString() : path;
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
    QString keysPath;
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
