// SPDX-License-Identifier: MIT
#pragma once

#include "capture/pasteboardwatcher.h"
#include "platform/eventposter.h"
#include "platform/pasteboard.h"

#include <QCoroTask>

#include <QObject>
#include <QString>

#include <optional>

namespace vesk {

class Clock;
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

    /// The text that the application copies in the window that the user pressed a key in, with any white
    /// space at its ends. Nullopt if it copies nothing within 0.5 seconds, no text or only white space, if
    /// the keys cannot be posted, if the user copies something before they are, or if an earlier question is
    /// not answered yet. The pasteboard then has what it had before, or what the user has copied meanwhile.
    QCoro::Task<std::optional<QString>> copySelection(EventPoster::Target target);

    /// Whether the last question was not asked because what is on the pasteboard could not have been put
    /// back.
    [[nodiscard]] bool wasPasteboardInTheWay() const { return m_wasPasteboardInTheWay; }

private:
    /// What the user has on the pasteboard.
    struct Saved
    {
        QList<PasteboardItem> items;
        PasteboardWatcher::Standing standing;
        qint64 changeCount = 0;
    };
    /// The keys that were sent.
    struct Request
    {
        std::optional<qint64> processIdentifier;
        /// By the monotonic clock.
        std::chrono::microseconds at{0};
    };
    /// Whose a change of the pasteboard is.
    enum class Author {
        /// The application's, by our keys.
        Asked,
        /// The application's perhaps; or the platform cannot tell.
        Unclear,
        /// Not the application's.
        Another,
    };
    /// A request that the application has not answered in time.
    struct Late
    {
        Request request;
        Saved saved;
        /// The user has done something since by which the application may have been told to copy.
        bool isUserBusy = false;
    };

    QCoro::Task<std::optional<QString>> copyAndRestore(EventPoster::Target target);
    QCoro::Task<std::optional<QString>> takeAnswer(Request request, Saved saved);
    QCoro::Task<std::optional<QString>> takeCopy(Saved saved);
    /// What is on the pasteboard; none if it changes meanwhile or could not be put back.
    QCoro::Task<std::optional<Saved>> save();
    void restore(const Saved &saved);
    [[nodiscard]] Author authorOf(const Request &request) const;

    void awaitLateCopy(const Late &late);
    void onChanged();
    void setUserBusy();
    QCoro::Task<> stopAwaitingLater();
    QCoro::Task<> saveAgain();
    QCoro::Task<> undoLateCopy(Late late);

    Needs m_needs;
    bool m_isCopying = false;
    bool m_wasPasteboardInTheWay = false;
    /// What is to be put back if the application still copies, after nobody waits for it any more.
    std::optional<Late> m_late;
    /// Counts the waits for a late copy.
    int m_lateWait = 0;
};

} // namespace vesk
