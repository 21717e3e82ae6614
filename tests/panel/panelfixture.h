// SPDX-License-Identifier: MIT
#pragma once

#include "components/surroundings.h"
#include "editor/lentpasteboards.h"
#include "notes/notesstore.h"
#include "panel/panelmodel.h"
#include "panel/panelwindow.h"
#include "platform/memory/memoryaccessibility.h"
#include "platform/memory/memoryappearance.h"
#include "platform/memory/memoryapplication.h"
#include "platform/memory/memoryclock.h"
#include "platform/memory/memorydefaults.h"
#include "platform/memory/memorypasteboard.h"
#include "platform/memory/memoryscreens.h"
#include "platform/memory/memorywindows.h"
#include "platform/memory/memoryworkspace.h"

#include <QQmlEngine>
#include <QTemporaryDir>

namespace vesk {

/// The real panel over the platform in memory and an empty store.
struct PanelFixture
{
    /// A note of the present moment; the clock then goes on by a second, so that the next is newer.
    Note &addNote(const QString &text)
    {
        Note &note = store->insert(std::make_unique<Note>(clock, text));
        clock.advance(std::chrono::seconds(1));
        return note;
    }

    Prompt &addPrompt(const QString &text)
    {
        Prompt &prompt = store->insert(std::make_unique<Prompt>(clock, text, Prompt::Origin::FollowUp));
        clock.advance(std::chrono::seconds(1));
        return prompt;
    }

    QTemporaryDir folder;
    MemoryClock clock;
    std::unique_ptr<NotesStore> store =
        NotesStore::open(folder.filePath(QStringLiteral("Notes.store")), clock).store;
    MemoryDefaults defaults;
    const bool hasSeenGuide = (defaults.setBool(true, QStringLiteral("hasSeenGuide")), true);
    MemoryApplication application;
    MemoryAccessibility accessibility{clock};
    MemoryAppearance appearance;
    MemoryWorkspace workspace;
    MemoryScreens screens;
    MemoryWindows windows{screens};
    MemoryPasteboard pasteboard;
    PanelModel model{*store, clock, defaults, application, accessibility};
    QQmlEngine engine;
    const bool isLent = (lendToEngine(engine, appearance, workspace, windows),
                         lendToEditors(engine, pasteboard, nullptr), true);
    PanelWindow panel{engine, model, application, screens, windows};
};

} // namespace vesk
