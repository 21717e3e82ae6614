// SPDX-License-Identifier: MIT
#pragma once

#include "../capture/capturedesktop.h"
#include "capture/pasteback.h"
#include "commands/veskservices.h"
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
#include "quicknote/quicknotepanel.h"
#include "quicknote/toast.h"

namespace vesk {

/// The whole program, with its windows and a store in a file, over the platform in memory.
struct SoakWorld : CaptureDesktop
{
    SoakWorld(const QString &path, Date now)
        : opened((clock.setNow(now), NotesStore::open(path, clock)))
        , keys(hotKeys, path + QStringLiteral(".keys"))
    {
        QObject::connect(panel.cards(), &CardActions::pasteRequested, &pasteBack,
                         &PasteBack::pasteIntoPreviousApp);
        QObject::connect(panel.cards(), &CardActions::copyRequested, &watcher, [this](const QString &text) {
            pasteboard.setString(text);
            watcher.markOwn();
        });
        QObject::connect(panel.keyboard(), &PanelKeyboard::fieldPasteRequested, &watcher,
                         [this] { panel.keyboard()->insertIntoField(QStringLiteral("pasted\ntext")); });
        QObject::connect(panel.menu(), &PanelMenu::quickNoteRequested, &watcher,
                         [this] { box.show(QuickNoteBox::Mode::Note); });
        QObject::connect(panel.menu(), &PanelMenu::quickChecklistRequested, &watcher,
                         [this] { box.show(QuickNoteBox::Mode::Checklist); });
        watcher.start();
        services.start();
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
    PasteBack pasteBack{{.clock = clock,
                         .application = application,
                         .workspace = workspace,
                         .pasteboard = pasteboard,
                         .watcher = watcher,
                         .poster = poster}};
    PanelModel panel{store, clock, defaults, application, accessibility};
    PanelWindow panelWindow{engine, panel, application, screens, windows};
    Toast toast{engine, screens, windows, clock};
    QuickNotePanel box{{.engine = engine,
                        .store = store,
                        .clock = clock,
                        .application = application,
                        .screens = screens,
                        .windows = windows,
                        .sounds = sounds,
                        .toast = toast}};
    VeskServices services{{.clock = clock,
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
                           .toast = toast}};
};

} // namespace vesk
