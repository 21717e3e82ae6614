// SPDX-License-Identifier: MIT
#pragma once

#include "capture/selectionreader.h"
#include "platform/memory/memoryaccessibility.h"
#include "platform/memory/memoryclock.h"
#include "platform/memory/memorykeyboard.h"
#include "platform/memory/memorypasteboard.h"
#include "platform/memory/memoryworkspace.h"

namespace vesk {

/// The desktop of a user who is working in an editor, in memory.
struct CaptureDesktop
{
    static constexpr qint64 kPid = 4711;

    CaptureDesktop() { bringForward(kPid, QStringLiteral("Editor"), QStringLiteral("org.example.Editor")); }

    /// Selects a text in the editor. If empty, the editor reports that nothing is selected; if nullopt, it
    /// cannot tell.
    void select(const std::optional<QString> &text)
    {
        using Finding = SelectedText::Finding;
        const Finding known = text == QString() ? Finding::Nothing : Finding::Selected;
        accessibility.setSelectedText(
            {.finding = text ? known : Finding::Unknown, .text = text.value_or(QString())});
    }

    [[nodiscard]] SelectionReader::Needs readersNeeds()
    {
        return {.accessibility = accessibility,
                .workspace = workspace,
                .pasteboard = pasteboard,
                .watcher = watcher,
                .poster = poster,
                .tap = tap,
                .clock = clock};
    }

    void writePicture()
    {
        const PasteboardData picture{.type = QStringLiteral("image/png"), .data = "other"};
        pasteboard.writeObjects({PasteboardItem{picture}});
    }

    void bringForward(qint64 process, const QString &name = {}, const std::optional<QString> &bundle = {})
    {
        workspace.setFrontmostApplication(RunningApplication{
            .processIdentifier = process, .localizedName = name, .bundleIdentifier = bundle});
    }

    MemoryClock clock;
    MemoryAccessibility accessibility{clock};
    MemoryWorkspace workspace;
    MemoryPasteboard pasteboard;
    MemoryEventPoster poster;
    MemoryEventTap tap;
    PasteboardWatcher watcher{pasteboard, clock};
};

} // namespace vesk
