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

/// Knows how old the content of the pasteboard is, and whether this program put it there. Owned by the
/// application, one per program.
class PasteboardWatcher final : public QObject
{
    Q_OBJECT

public:
    /// What is known about one content of the pasteboard.
    struct Standing
    {
        /// By the monotonic clock; nullopt for content that was there before the watcher.
        std::optional<std::chrono::microseconds> changedAt;
        /// Whether this program wrote it.
        bool isOwn = false;
        /// A hash of the text, to recognise it without keeping it; nullopt while the text is not known.
        std::optional<size_t> fingerprint;
    };

    /// Both must outlive the watcher.
    PasteboardWatcher(Pasteboard &pasteboard, Clock &clock);

    /// Starts watching; a second call does nothing. Polls every 0.5 seconds, unless the pasteboard reports
    /// its changes.
    void start();

    /// Marks the current content as this program's own. Must be called right after writing it.
    void markOwn();

    /// Returns what is known about the current content. Content that was not seen before counts as new.
    [[nodiscard]] Standing standing();
    /// Gives the current content the standing that it had before it was replaced for a moment. Must be called
    /// right after it was written back.
    void markRestored(const Standing &standing);

    /// Returns the pasteboard's text, trimmed, if the user copied it within the last `maximumAge`. Nullopt if
    /// it is older, this program's own, empty or not text. Content that another program, such as a clipboard
    /// manager, has taken over keeps its age.
    QCoro::Task<std::optional<QString>> recentCopy(std::chrono::milliseconds maximumAge);

Q_SIGNALS:
    /// Emitted when there is new content.
    void changed();

private:
    void look();
    QCoro::Task<> lookNowAndThen();
    [[nodiscard]] bool holdsOwn() const;
    /// What is known about the content that was seen last.
    [[nodiscard]] Standing current() const;
    /// Reads the current text, to recognise it later.
    QCoro::Task<> recognise();
    /// Gives the current content the standing of the previous one if `text` is the same.
    void compareWithPrevious(const QString &text);

    Pasteboard &m_pasteboard;
    Clock &m_clock;
    bool m_isStarted = false;
    /// The content seen last, and when it was first seen.
    qint64 m_changeCount;
    std::optional<std::chrono::microseconds> m_changedAt;
    std::optional<size_t> m_fingerprint;
    /// False while there is no owner.
    bool m_hasContents;
    /// The previous content, if there was any.
    std::optional<Standing> m_previous;
    std::optional<qint64> m_ownPasteChangeCount;
};

} // namespace vesk
