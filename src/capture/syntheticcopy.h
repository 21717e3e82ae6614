// SPDX-License-Identifier: MIT
#pragma once

#include "capture/pasteboardwatcher.h"
#include "platform/pasteboard.h"

#include <QCoroTask>

#include <QObject>
#include <QString>

#include <optional>

namespace vesk {

class Clock;
class EventPoster;
class EventTap;
class Workspace;

/// Learns what is selected in the frontmost application by letting it copy, and puts back what the
/// user had on the pasteboard. Owned by the selection reader.
class SyntheticCopy final : public QObject
{
    Q_OBJECT

public:
    /// What it works with; all of it outlives it.
    struct Needs
    {
        Clock &clock;
        Workspace &workspace;
        Pasteboard &pasteboard;
        PasteboardWatcher &watcher;
        EventPoster &poster;
        EventTap &tap;
    };

    explicit SyntheticCopy(const Needs &needs);

    /// The text that the application copies, without white space at its ends. None if it copies
    /// nothing within 0.5 seconds, no text or only white space, if the keys cannot be posted, or if
    /// an earlier question is not answered yet. The pasteboard then has what it had before, unless
    /// the user has copied something meanwhile.
    QCoro::Task<std::optional<QString>> copySelection();

private:
    /// What the user had on the pasteboard.
    struct Saved
    {
        QList<PasteboardItem> items;
        PasteboardWatcher::Standing standing;
    };

    QCoro::Task<std::optional<QString>> copyAndRestore();
    QCoro::Task<std::optional<QString>> takeCopy(Saved saved);
    void restore(const Saved &saved);

    void awaitLateCopy(const Saved &saved);
    QCoro::Task<> stopAwaitingLater();
    QCoro::Task<> undoLateCopy(Saved saved);

    Needs m_needs;
    bool m_isCopying = false;
    /// What is to be put back if the application still copies, after nobody waits for it any more.
    std::optional<Saved> m_late;
    /// Counts the waits for a late copy.
    int m_lateWait = 0;
};

} // namespace vesk
