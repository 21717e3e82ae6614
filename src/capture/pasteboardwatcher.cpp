// SPDX-License-Identifier: MIT
#include "capture/pasteboardwatcher.h"

#include "notes/markup.h"
#include "platform/clock.h"
#include "platform/pasteboard.h"

#include <QPointer>

namespace vesk {

namespace {

constexpr std::chrono::milliseconds kPeriod{500};

} // namespace

PasteboardWatcher::PasteboardWatcher(Pasteboard &pasteboard, Clock &clock)
    : m_pasteboard(pasteboard)
    , m_clock(clock)
    , m_changeCount(pasteboard.changeCount())
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
}

void PasteboardWatcher::markOwn()
{
    m_ownPasteChangeCount = m_pasteboard.changeCount();
}

PasteboardWatcher::Standing PasteboardWatcher::standing()
{
    look();
    return {.changedAt = m_changedAt, .isOwn = holdsOwn()};
}

void PasteboardWatcher::markRestored(const Standing &standing)
{
    m_changeCount = m_pasteboard.changeCount();
    m_changedAt = standing.changedAt;
    if (standing.isOwn)
        m_ownPasteChangeCount = m_changeCount;
}

QCoro::Task<std::optional<QString>> PasteboardWatcher::recentCopy(std::chrono::milliseconds maximumAge)
{
    if (holdsOwn())
        co_return std::nullopt;
    // Content that differs from what was seen last is newer than the last look, and needs no test.
    const bool isSeen = m_pasteboard.changeCount() == m_changeCount;
    if (isSeen && (!m_changedAt || m_clock.monotonic() - *m_changedAt > maximumAge))
        co_return std::nullopt;
    const QPointer<PasteboardWatcher> self(this);
    const std::optional<QString> string = co_await m_pasteboard.string();
    // This program may have written while the owner was asked.
    if (!string || self.isNull() || holdsOwn())
        co_return std::nullopt;
    const QString text = markup::trimmed(*string);
    if (text.isEmpty())
        co_return std::nullopt;
    co_return text;
}

void PasteboardWatcher::look()
{
    const qint64 current = m_pasteboard.changeCount();
    if (current == m_changeCount)
        return;
    m_changeCount = current;
    m_changedAt = m_clock.monotonic();
    Q_EMIT changed();
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
