// SPDX-License-Identifier: MIT
#pragma once

#include <QCoroTask>

#include <QObject>
#include <QString>

#include <chrono>
#include <optional>

namespace vesk {

class Clock;
class Pasteboard;

/// Knows how long ago the pasteboard's content came, and whether this program put it there. Owned by
/// the application, one for the program.
class PasteboardWatcher final : public QObject
{
    Q_OBJECT

public:
    /// What is known of one content of the pasteboard.
    struct Standing
    {
        /// By the monotonic clock; none for content that was there before the watcher.
        std::optional<std::chrono::microseconds> changedAt;
        /// Whether this program wrote it by itself, to be pasted.
        bool isOwn = false;
        /// Tells the text from others, without keeping it; nullopt while it is not known.
        std::optional<size_t> fingerprint;
    };

    /// Both must outlive the watcher.
    PasteboardWatcher(Pasteboard &pasteboard, Clock &clock);

    /// Begins to watch; a second call does nothing. Wakes up every 0.5 seconds, but where the
    /// pasteboard reports its changes only for those.
    void start();

    /// Marks the content of now as this program's own. To be called right after writing it.
    void markOwn();

    /// What is known of the content of now. Content not seen before counts as having come just now.
    [[nodiscard]] Standing standing();
    /// Gives the content of now the standing that it had before it was away for a moment. To be
    /// called right after it was written back.
    void markRestored(const Standing &standing);

    /// The pasteboard's text without white space at its ends, if the user put it there within the
    /// last `maximumAge`. Nullopt if it is older, this program's own, empty or not text. A content that
    /// another program, such as a clipboard manager, has taken over is as old as it was.
    QCoro::Task<std::optional<QString>> recentCopy(std::chrono::milliseconds maximumAge);

Q_SIGNALS:
    /// There is content that was not seen before.
    void changed();

private:
    void look();
    QCoro::Task<> lookNowAndThen();
    [[nodiscard]] bool holdsOwn() const;
    /// What is known of the content that was seen last.
    [[nodiscard]] Standing current() const;
    /// Reads the text of the content of now, to know it again.
    QCoro::Task<> recognise();
    /// Gives the content of now, with this text, the standing of the one before if it is the same.
    void compareWithPrevious(const QString &text);

    Pasteboard &m_pasteboard;
    Clock &m_clock;
    bool m_isStarted = false;
    /// The content seen last, and when it was first seen.
    qint64 m_changeCount;
    std::optional<std::chrono::microseconds> m_changedAt;
    std::optional<size_t> m_fingerprint;
    /// False after an owner has gone that nobody has followed yet.
    bool m_hasContents;
    /// The content before, if there was any.
    std::optional<Standing> m_previous;
    std::optional<qint64> m_ownPasteChangeCount;
};

} // namespace vesk
