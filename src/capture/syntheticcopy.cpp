// SPDX-License-Identifier: MIT
#include "capture/syntheticcopy.h"

#include "notes/markup.h"
#include "platform/clock.h"
#include "platform/eventtap.h"
#include "platform/logging.h"
#include "platform/workspace.h"

#include <QCoreApplication>
#include <QPointer>

#include <functional>

namespace vesk {

using namespace std::chrono_literals;

namespace {

constexpr auto kCopyPeriod = 25ms;
constexpr int kCopyWaits = 20;
/// How long after the keys were sent an application may report that it was told to copy; they reach its queue
/// at once.
constexpr auto kAsked = 100ms;
/// An application that hangs when it is told to copy does so once it recovers. Within this time, if the user
/// does nothing, a copy of unknown origin is taken to be that one.
constexpr auto kLateCopy = 10s;
/// Do not keep saved contents forever: they may be large.
constexpr auto kForgotten = 5min;

} // namespace

SyntheticCopy::SyntheticCopy(const Needs &needs)
    : m_needs(needs)
{
    connect(&needs.watcher, &PasteboardWatcher::changed, this, &SyntheticCopy::onChanged);
    connect(&needs.tap, &EventTap::keyDown, this, &SyntheticCopy::setUserBusy);
    connect(&needs.workspace, &Workspace::didActivateApplication, this,
            [this](const RunningApplication &application) {
                // When nothing was selected, Vesk comes to the front by itself.
                if (application.processIdentifier != QCoreApplication::applicationPid())
                    setUserBusy();
            });
}

QCoro::Task<std::optional<QString>> SyntheticCopy::copySelection(EventPoster::Target target)
{
    // Two at once would mistake each other's copies for the user's.
    if (m_isCopying)
        co_return std::nullopt;
    m_isCopying = true;
    m_wasPasteboardInTheWay = false;
    m_late.reset();
    const QPointer<SyntheticCopy> self(this);
    const std::optional<QString> copied = co_await copyAndRestore(target);
    if (!self.isNull())
        m_isCopying = false;
    qCDebug(captureLog) << "synthetic copy gave a text:" << copied.has_value();
    if (markup::trimmed(copied.value_or(QString())).isEmpty())
        co_return std::nullopt;
    co_return copied;
}

QCoro::Task<std::optional<QString>> SyntheticCopy::copyAndRestore(EventPoster::Target target)
{
    const QPointer<SyntheticCopy> self(this);
    Pasteboard &pasteboard = m_needs.pasteboard;
    const std::optional<RunningApplication> application = m_needs.workspace.frontmostApplication();
    const qint64 before = pasteboard.changeCount();
    const std::optional<Saved> saved = co_await save();
    if (self.isNull())
        co_return std::nullopt;
    if (!saved) {
        m_wasPasteboardInTheWay = pasteboard.changeCount() == before && pasteboard.hasContents();
        co_return std::nullopt;
    }
    // While a key is still held the user may copy something with the mouse or elsewhere. That copy is newer
    // than the selection, and the application's copy would overwrite it.
    const std::function<bool()> isWanted = [self, before] {
        return !self.isNull() && self->m_needs.pasteboard.changeCount() == before;
    };
    const bool isPosted = co_await m_needs.poster.post(EventPoster::Command::Copy, target, isWanted);
    if (self.isNull() || !isPosted)
        co_return std::nullopt;
    Request request{.processIdentifier = std::nullopt, .at = m_needs.clock.monotonic()};
    if (application)
        request.processIdentifier = application->processIdentifier;
    co_return co_await takeAnswer(request, *saved);
}

QCoro::Task<std::optional<QString>> SyntheticCopy::takeAnswer(Request request, Saved saved)
{
    const QPointer<SyntheticCopy> self(this);
    Pasteboard &pasteboard = m_needs.pasteboard;
    qint64 seen = saved.changeCount;
    for (int waits = 0;; ++waits) {
        if (pasteboard.changeCount() != seen && authorOf(request) != Author::Another)
            co_return co_await takeCopy(saved);
        if (pasteboard.changeCount() != seen) {
            // The user copied something elsewhere; that is now the contents to restore.
            seen = pasteboard.changeCount();
            const std::optional<Saved> newer = co_await save();
            if (self.isNull())
                co_return std::nullopt;
            if (newer)
                saved = *newer;
        }
        if (waits == kCopyWaits)
            break;
        co_await m_needs.clock.sleep(kCopyPeriod);
        if (self.isNull())
            co_return std::nullopt;
    }
    awaitLateCopy({.request = request, .saved = saved, .isUserBusy = false});
    co_return std::nullopt;
}

QCoro::Task<std::optional<QString>> SyntheticCopy::takeCopy(Saved saved)
{
    const QPointer<SyntheticCopy> self(this);
    Pasteboard &pasteboard = m_needs.pasteboard;
    // Some applications (LibreOffice Writer) announce one copy twice in quick succession.
    co_await m_needs.clock.sleep(kCopyPeriod);
    if (self.isNull())
        co_return std::nullopt;
    const qint64 made = pasteboard.changeCount();
    const std::optional<QString> text = co_await pasteboard.string();
    // Keep what the user has copied meanwhile.
    if (self.isNull() || pasteboard.changeCount() != made)
        co_return text;
    restore(saved);
    co_return text;
}

QCoro::Task<std::optional<SyntheticCopy::Saved>> SyntheticCopy::save()
{
    const QPointer<SyntheticCopy> self(this);
    Pasteboard &pasteboard = m_needs.pasteboard;
    Saved saved{.items = {}, .standing = m_needs.watcher.standing(), .changeCount = pasteboard.changeCount()};
    saved.items = co_await pasteboard.pasteboardItems();
    // Someone is copying at this very moment: the saved contents are useless, and that copy is the newest.
    if (self.isNull() || pasteboard.changeCount() != saved.changeCount)
        co_return std::nullopt;
    // A password, or the contents of an application that hangs, could not be restored.
    if (saved.items.isEmpty() && pasteboard.hasContents())
        co_return std::nullopt;
    co_return std::move(saved);
}

void SyntheticCopy::restore(const Saved &saved)
{
    m_needs.pasteboard.writeObjects(saved.items);
    m_needs.watcher.markRestored(saved.standing);
}

SyntheticCopy::Author SyntheticCopy::authorOf(const Request &request) const
{
    const Pasteboard::Origin origin = m_needs.pasteboard.origin();
    if (origin.processIdentifier && request.processIdentifier
        && origin.processIdentifier != request.processIdentifier)
        return Author::Another;
    const bool isAsked = origin.delay && m_needs.clock.monotonic() - *origin.delay <= request.at + kAsked;
    return isAsked ? Author::Asked : Author::Unclear;
}

void SyntheticCopy::awaitLateCopy(const Late &late)
{
    // If keys cannot be observed, a late copy looks like the user's own, which must not be undone.
    if (!m_needs.tap.start())
        return;
    m_late = late;
    stopAwaitingLater();
}

void SyntheticCopy::onChanged()
{
    if (!m_late)
        return;
    const Author author = authorOf(m_late->request);
    if (author == Author::Another) {
        saveAgain();
        return;
    }
    const Late late = *m_late;
    m_late.reset();
    // A change that follows user input may be the user's own copy.
    if (author == Author::Asked || !late.isUserBusy)
        undoLateCopy(late);
}

void SyntheticCopy::setUserBusy()
{
    if (m_late)
        m_late->isUserBusy = true;
}

QCoro::Task<> SyntheticCopy::stopAwaitingLater()
{
    const QPointer<SyntheticCopy> self(this);
    Clock *const clock = &m_needs.clock;
    const int wait = ++m_lateWait;
    co_await clock->sleep(kLateCopy);
    if (self.isNull() || m_lateWait != wait)
        co_return;
    setUserBusy();
    co_await clock->sleep(kForgotten);
    if (!self.isNull() && m_lateWait == wait)
        m_late.reset();
}

QCoro::Task<> SyntheticCopy::saveAgain()
{
    const QPointer<SyntheticCopy> self(this);
    const int wait = m_lateWait;
    const qint64 changeCount = m_needs.pasteboard.changeCount();
    // If Vesk itself wrote this, leave the writer time to mark it as Vesk's own.
    co_await m_needs.clock.sleep(kCopyPeriod);
    if (self.isNull())
        co_return;
    const std::optional<Saved> newer = co_await save();
    if (self.isNull() || !m_late || m_lateWait != wait)
        co_return;
    if (newer)
        m_late->saved = *newer;
    else if (m_needs.pasteboard.changeCount() == changeCount)
        m_late.reset(); // Contents that cannot be saved cannot be restored.
}

QCoro::Task<> SyntheticCopy::undoLateCopy(Late late)
{
    const QPointer<SyntheticCopy> self(this);
    // If Vesk itself wrote this, leave the writer time to mark it as Vesk's own. An application may announce
    // its copy twice.
    co_await m_needs.clock.sleep(kCopyPeriod);
    if (self.isNull() || m_isCopying || m_needs.watcher.standing().isOwn
        || authorOf(late.request) == Author::Another)
        co_return;
    restore(late.saved);
}

} // namespace vesk
