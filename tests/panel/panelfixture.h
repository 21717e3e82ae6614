// SPDX-License-Identifier: MIT
#pragma once

#include "../components/memorydesktop.h"
#include "editor/lentpasteboards.h"
#include "notes/notesstore.h"
#include "panel/panelmodel.h"
#include "panel/panelwindow.h"

#include <QTemporaryDir>

namespace vesk {

/// The real panel over the in-memory platform and an empty store.
struct PanelFixture : MemoryDesktop
{
    /// Adds a note with the current time, then advances the clock by a second so that the next one is newer.
    Note &addNote(const QString &text, const std::optional<CaptureSource> &source = std::nullopt)
    {
        Note &note = store->insert(std::make_unique<Note>(clock, text, source));
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
    std::unique_ptr<NotesStore> store =
        NotesStore::open(folder.filePath(QStringLiteral("Notes.store")), clock).store;
    const bool hasSeenGuide = (defaults.setBool(true, QStringLiteral("hasSeenGuide")), true);
    PanelModel model{*store, clock, defaults, application, accessibility};
    const bool isLent = (lendToEditors(engine, pasteboard, nullptr), true);
    PanelWindow panel{engine, model, application, screens, windows};
};

} // namespace vesk
