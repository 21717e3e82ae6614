// SPDX-License-Identifier: MIT
#pragma once

#include "../services/programworld.h"
#include "capture/pasteback.h"
#include "quicknote/quicknotepanel.h"

namespace vesk {

/// The whole program, with its windows.
struct SoakWorld : ProgramWorld
{
    SoakWorld(const QString &path, Date now)
        : ProgramWorld(path, now)
    {
        QObject::connect(panel.cards(), &CardActions::pasteRequested, &pasteBack,
                         &PasteBack::pasteIntoPreviousApp);
        QObject::connect(panel.cards(), &CardActions::copyRequested, &watcher, [this](const QString &text) {
            pasteboard.setString(text);
            watcher.markOwn();
        });
        QObject::connect(panel.menu(), &PanelMenu::quickNoteRequested, &watcher,
                         [this] { box.show(QuickNoteBox::Mode::Note); });
        QObject::connect(panel.menu(), &PanelMenu::quickChecklistRequested, &watcher,
                         [this] { box.show(QuickNoteBox::Mode::Checklist); });
        watcher.start();
        services.start();
    }

    /// What pasting may insert.
    [[nodiscard]] QStringList pasteTexts() const
    {
        QStringList texts;
        for (const MemoryPasteboard *each : {&pasteboard, &primary}) {
            for (const PasteboardItem &item : each->items()) {
                for (const PasteboardData &form : item)
                    texts.append(QString::fromUtf8(form.data));
            }
        }
        return texts;
    }

    PasteBack pasteBack{{.clock = clock,
                         .application = application,
                         .workspace = workspace,
                         .pasteboard = pasteboard,
                         .watcher = watcher,
                         .poster = poster}};
    QuickNotePanel box{{.engine = engine,
                        .store = store,
                        .clock = clock,
                        .application = application,
                        .screens = screens,
                        .windows = windows,
                        .sounds = sounds,
                        .toast = toast}};
    VeskServices services{servicesNeeds(box)};
};

} // namespace vesk
