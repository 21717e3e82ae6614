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

/// Finds out what is selected in the frontmost application by making it copy, and then restores the
/// pasteboard. Owned by the selection reader.
class SyntheticCopy final : public QObject
{
    Q_OBJECT

public:
    /// All of them must outlive this object.
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

    /// Returns the text that the application copies in the window where the user pressed the key, not
    /// trimmed. Nullopt if it copies nothing within 0.5 seconds, no text, or only white space; if the keys
    /// cannot be posted; if the user copies something before they are; or if an earlier call is still
    /// running. Afterwards the pasteboard has its previous content, or what the user has copied meanwhile.
    QCoro::Task<std::optional<QString>> copySelection(EventPoster::Target target);

    /// Whether the last call did not send any keys because the content of the pasteboard could not have been
    /// restored.
    [[nodiscard]] bool wasPasteboardInTheWay() const { return m_wasPasteboardInTheWay; }

private:
    /// The user's content of the pasteboard.
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
    /// Who made a change of the pasteboard.
    enum class Author {
        /// The application, because of our keys.
        Asked,
        /// Perhaps the application, or the platform cannot tell.
        Unclear,
        /// Not the application.
        Another,
    };
    /// A request that the application did not answer in time.
    struct Late
    {
        Request request;
        Saved saved;
        /// Whether the user has done something since that may have made the application copy.
        bool isUserBusy = false;
    };

    QCoro::Task<std::optional<QString>> copyAndRestore(EventPoster::Target target);
    QCoro::Task<std::optional<QString>> takeAnswer(Request request, Saved saved);
    QCoro::Task<std::optional<QString>> takeCopy(Saved saved);
    /// Reads the pasteboard; nullopt if it changes meanwhile or could not be restored.
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
    /// What to restore if the application copies after the wait is over.
    std::optional<Late> m_late;
    /// Counts the waits for a late copy.
    int m_lateWait = 0;
};

} // namespace vesk
