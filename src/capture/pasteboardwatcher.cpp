// SPDX-License-Identifier: MIT
#include "capture/pasteboardwatcher.h"

#include "notes/markup.h"
#include "platform/clock.h"
#include "platform/pasteboard.h"

#include <QHashFunctions>
#include <QPointer>

namespace vesk {

namespace {

constexpr std::chrono::milliseconds kPeriod{500};

} // namespace

PasteboardWatcher::PasteboardWatcher(Pasteboard &pasteboard, Clock &clock)
    : m_pasteboard(pasteboard)
    , m_clock(clock)
    , m_changeCount(pasteboard.changeCount())
    , m_hasContents(pasteboard.hasContents())
{
}

void PasteboardWatcher::start()
{
    if (m_isStarted)
        return;
    m_isStarted = true;
    if (m_pasteboard.reportsChanges())
        connect(&m_pasteboard, &Pasteboard::changed, this, &PasteboardWatcher::look);
    else
        lookNowAndThen();
    recognise();
}

void PasteboardWatcher::markOwn()
{
    m_ownPasteChangeCount = m_pasteboard.changeCount();
}

PasteboardWatcher::Standing PasteboardWatcher::standing()
{
    look();
    return current();
}

PasteboardWatcher::Standing PasteboardWatcher::current() const
{
    return {.changedAt = m_changedAt,
            .isOwn = m_ownPasteChangeCount == m_changeCount,
            .fingerprint = m_fingerprint};
}

void PasteboardWatcher::markRestored(const Standing &standing)
{
    m_changeCount = m_pasteboard.changeCount();
    m_changedAt = standing.changedAt;
    m_fingerprint = standing.fingerprint;
    m_hasContents = m_pasteboard.hasContents();
    if (standing.isOwn)
        m_ownPasteChangeCount = m_changeCount;
}

QCoro::Task<std::optional<QString>> PasteboardWatcher::recentCopy(std::chrono::milliseconds maximumAge)
{
    // Make sure that contents that have just arrived are recorded first.
    look();
    // Measured before asking, so that a slow owner does not make the contents look older.
    const std::chrono::microseconds asked = m_clock.monotonic();
    const auto isRecent = [this, asked, maximumAge] {
        return !holdsOwn() && m_changedAt && asked - *m_changedAt <= maximumAge;
    };
    if (!isRecent())
        co_return std::nullopt;
    const QPointer<PasteboardWatcher> self(this);
    const qint64 count = m_changeCount;
    const std::optional<QString> string = co_await m_pasteboard.string();
    if (!string || self.isNull())
        co_return std::nullopt;
    look();
    if (m_changeCount == count)
        compareWithPrevious(*string);
    // This program may have written to the pasteboard while the owner was asked, or the contents may turn out
    // to be older than they looked.
    if (!isRecent())
        co_return std::nullopt;
    const QString text = markup::trimmed(*string);
    if (text.isEmpty())
        co_return std::nullopt;
    co_return text;
}

void PasteboardWatcher::look()
{
    const qint64 count = m_pasteboard.changeCount();
    if (count == m_changeCount)
        return;
    // An owner that exits leaves the pasteboard empty; its successor may offer the same contents again.
    if (m_hasContents)
        m_previous = current();
    m_changeCount = count;
    m_changedAt = m_clock.monotonic();
    m_fingerprint.reset();
    m_hasContents = m_pasteboard.hasContents();
    Q_EMIT changed();
    recognise();
}

QCoro::Task<> PasteboardWatcher::recognise()
{
    if (!m_hasContents)
        co_return;
    const QPointer<PasteboardWatcher> self(this);
    const qint64 count = m_changeCount;
    const std::optional<QString> text = co_await m_pasteboard.string();
    if (!self.isNull() && text && m_changeCount == count && m_pasteboard.changeCount() == count)
        compareWithPrevious(*text);
}

void PasteboardWatcher::compareWithPrevious(const QString &text)
{
    using Claim = Pasteboard::Claim;
    // Some clipboard managers drop white space at the ends.
    m_fingerprint = qHash(markup::trimmed(text), static_cast<size_t>(QHashSeed::globalSeed()));
    if (!m_previous)
        return;
    const Claim claim = m_pasteboard.origin().claim;
    const bool isSame = m_previous->fingerprint == m_fingerprint;
    // When an owner exits before its text was read, a clipboard manager takes over at once; a user copies
    // later.
    const bool isPerhapsSame = claim == Claim::AfterLoss && !m_previous->fingerprint;
    if (claim == Claim::Ordinary || !(isSame || isPerhapsSame))
        return;
    m_changedAt = m_previous->changedAt;
    if (m_previous->isOwn)
        m_ownPasteChangeCount = m_changeCount;
}

QCoro::Task<> PasteboardWatcher::lookNowAndThen()
{
    const QPointer<PasteboardWatcher> self(this);
    Clock *const clock = &m_clock;
    while (!self.isNull()) {
        co_await clock->sleep(kPeriod);
        if (!self.isNull())
            look();
    }
}

bool PasteboardWatcher::holdsOwn() const
{
    return m_ownPasteChangeCount == m_pasteboard.changeCount();
}

} // namespace vesk
